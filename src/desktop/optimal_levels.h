// The card of levels in the optimal design wizard: a row a level with its two options and its sizes.
#pragma once

#include <vector>

#include "desktop/desk.h"
#include "desktop/kit/card.h"

class QLabel;
class QRadioButton;

namespace lorvane::desktop {

class EntryCell;
class LevelName;
class Menus;
class NumberLabel;

class OptimalLevels : public Card {
    Q_OBJECT

public:
    OptimalLevels(Desk& desk, Menus& menus);

    /// Shows the levels as the wizard has them.
    void sync();

private:
    struct Row {
        int level;
        QWidget* line;
        LevelName* name;
        QLabel* searched;
        QRadioButton* automatic;
        QRadioButton* manual;
        EntryCell* size;
        NumberLabel* treated;
        NumberLabel* control;
        NumberLabel* block;
    };

    QWidget* makeHeads();
    QWidget* makeRow(int level);
    QRadioButton* makeOption(const char* stem, int level);
    EntryCell* makeSize(int level);
    NumberLabel* makeCell(int level, int width);

    void syncRow(const Row& row);
    void syncSize(const Row& row);
    void syncCells(const Row& row);

    const OptimalWindow& model() const;

    Desk& desk_;
    Menus& menus_;
    NumberLabel* heads_[2];
    std::vector<Row> rows_;
};

}  // namespace lorvane::desktop
