// The strip of the effect: its value, what belongs to it, alpha and tails.
#pragma once

#include <memory>
#include <vector>

#include "desktop/cell_binding.h"
#include "desktop/kit/card.h"

class QHBoxLayout;
class QLabel;

namespace lorvane::desktop {

class MenuButton;
class NumberLabel;

/// A card with the cells of the effect side by side. Which of them show, and under which words, follows the
/// study.
class EffectStrip : public Card {
    Q_OBJECT

public:
    EffectStrip(Desk& desk, Menus& menus, QWidget* parent = nullptr);

    /// Copies what has changed from the models.
    void sync();

    /// The cell of a panel's name; null when it is not on the strip.
    ValueCell* cell(const std::string& panel) const;

    /// The first of the cells that are shown.
    ValueCell* firstCell() const;

private:
    /// A caption over a widget, shown and hidden together.
    struct Field {
        QWidget* box;
        QLabel* caption;
    };
    Field addField(QHBoxLayout* row, QWidget* widget);
    void addCell(QHBoxLayout* row, const std::string& panel, bool large, int width);
    NumberLabel* makeNumber();
    void addOtherForm(QHBoxLayout* row);
    void addAlpha(QHBoxLayout* row, Menus& menus);

    Desk& desk_;
    Menus& menus_;
    std::vector<std::pair<std::unique_ptr<CellBinding>, Field>> cells_;
    Field otherForm_{};
    NumberLabel* otherFormValue_ = nullptr;
    Field derived_{};
    NumberLabel* derivedValue_ = nullptr;
    Field alphaField_{};
    MenuButton* alpha_ = nullptr;
};

}  // namespace lorvane::desktop
