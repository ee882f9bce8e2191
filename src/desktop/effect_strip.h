// The strip of the effect: its value, what belongs to it, alpha and tails.
#pragma once

#include <deque>
#include <memory>
#include <vector>

#include "desktop/cell_binding.h"
#include "desktop/kit/card.h"
#include "desktop/page_sizes.h"

class QLabel;

namespace lorvane::desktop {

class MenuButton;
class NumberLabel;

/// A card with the cells of the effect side by side. Which of them show, and under which words, follows the
/// study. Where there is little room, gaps and words become shorter.
class EffectStrip : public Card {
    Q_OBJECT

public:
    EffectStrip(Desk& desk, Menus& menus, QWidget* parent = nullptr);

    /// Copies what has changed from the models.
    void sync();

    /// The height of the strip, and whether its gaps are narrow.
    void setSizes(const PageSizes& sizes, bool narrow);

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

    /// The cell of a panel's name; null when it is not on the strip.
    ValueCell* cell(const std::string& panel) const;

    /// The caption over a cell or a number of the strip; null for a widget of another place.
    QWidget* captionOf(const QWidget* widget) const;

    /// The first of the cells that are shown.
    ValueCell* firstCell() const;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A caption over a widget, shown and hidden together. A width of 0 is that of the widget's text.
    struct Field {
        QLabel* caption = nullptr;
        QWidget* widget = nullptr;
        QString words, brief;
        int width = 0;
        bool shown = true;
    };
    /// How much room the strip takes.
    struct Form {
        int gap;
        int widestCaption;
        bool brief;
    };
    static constexpr Form forms[] = {{22, 240, false}, {18, 240, false}, {12, 150, true}};

    Field& addField(QWidget* widget, int width);
    NumberLabel* makeNumber();
    void show(Field& field, bool shown, const std::string& words, const std::string& brief);
    void syncOthers();
    void chooseForm();
    static const QString& captionOf(const Field& field, const Form& form);
    QString alphaText(const Form& form) const;
    void write(const Form& form);
    int widthOf(const Field& field, const Form& form) const;
    int widthIn(const Form& form) const;
    int place(const Field& field, int left, const Form& form);
    void placeAll();

    Desk& desk_;
    Menus& menus_;
    std::vector<std::unique_ptr<CellBinding>> cells_;
    std::deque<Field> fields_;  ///< from left to right, the cells first
    Field* otherForm_;
    Field* derived_;
    Field* alphaField_;
    NumberLabel* otherFormValue_;
    NumberLabel* derivedValue_;
    MenuButton* alpha_;
    int meanLine_ = 0;   ///< a line behind the effect itself, where the scale of the outcome is told
    int alphaLine_ = 0;  ///< a line before alpha
    PageSizes sizes_ = pageSizes({});
    bool narrow_ = false;
    const Form* form_ = forms;
};

}  // namespace lorvane::desktop
