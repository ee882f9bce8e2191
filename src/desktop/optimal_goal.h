// The line at the top of the optimal design wizard: the two questions, each with its field.
#pragma once

#include <QWidget>
#include <vector>

#include "desktop/desk.h"

class QHBoxLayout;
class QRadioButton;

namespace lorvane::desktop {

class EntryCell;

/// A click into the field of the other question asks that one.
class GoalLine : public QWidget {
    Q_OBJECT

public:
    explicit GoalLine(Desk& desk);

    /// Shows the questions as the wizard has them.
    void sync();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Question {
        OptimalGoal goal;
        QRadioButton* option;
        EntryCell* field;
        int leastWidth;
    };

    void addQuestion(QHBoxLayout& row, OptimalGoal goal, const char* field, const char* arrows,
                     int leastWidth);
    void syncQuestion(const Question& question);

    Desk& desk_;
    std::vector<Question> questions_;
};

}  // namespace lorvane::desktop
