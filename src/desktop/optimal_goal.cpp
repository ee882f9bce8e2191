// The line of the two questions.
#include "desktop/optimal_goal.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "base/names.h"
#include "desktop/kit/entry_cell.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/rule.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr int fieldHeight = 28;
constexpr int powerWidth = 75;
constexpr int budgetWidth = 111;
constexpr int largestWidth = 200;
constexpr int besideText = 34;  // in a field, with the arrows
constexpr int fieldGap = 7;     // the option ends in as much of its own
constexpr int questionGap = 40;
constexpr int lineGap = 12;

}  // namespace

GoalLine::GoalLine(Desk& desk) : desk_(desk) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(lineGap);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    addQuestion(*row, OptimalGoal::cheapest, "frmOptimal.txtReqPower", "frmOptimal.spnReqPower", powerWidth);
    row->addSpacing(questionGap);
    addQuestion(*row, OptimalGoal::mostPower, "frmOptimal.txtBudget", "frmOptimal.spnBudget", budgetWidth);
    row->addStretch(1);
    box->addLayout(row);
    box->addWidget(new Rule);
}

void GoalLine::addQuestion(QHBoxLayout& row, OptimalGoal goal, const char* field, const char* arrows,
                           int leastWidth) {
    const Question question{goal, new QRadioButton, new EntryCell, leastWidth};
    const std::string option = indexedName("frmOptimal.optGoal", static_cast<int>(goal));
    question.option->setObjectName(QString::fromStdString(option));
    setTextStyle(*question.option, TextStyle::Body);
    connect(question.option, &QRadioButton::clicked, this, [this, option] { desk_.click(option); });
    question.field->setObjectName(QString::fromLatin1(field));
    question.field->installEventFilter(this);
    connect(question.field, &EntryCell::stepped, this, [this, arrows](int direction, int times) {
        desk_.spin(arrows, direction, ArrowHold::click, times);
    });
    connect(question.field, &EntryCell::entered, this,
            [this, field](const QString& text) { desk_.type(field, text); });
    row.addWidget(question.option);
    row.addSpacing(fieldGap);
    row.addWidget(question.field);
    questions_.push_back(question);
}

bool GoalLine::eventFilter(QObject* watched, QEvent* event) {
    const auto* cell = qobject_cast<EntryCell*>(watched);
    if (cell != nullptr && cell->isAtRest() && event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        desk_.click(cell->objectName().toStdString());
    return QWidget::eventFilter(watched, event);
}

void GoalLine::syncQuestion(const Question& question) {
    const OptimalQuestion& model = desk_.application().optimalWindow().question();
    const Option& option = model.optGoal(question.goal);
    const QString words = shownText(option.Caption);
    const QString text = shownText(model.field(question.goal).Text);
    question.option->setText(words);
    question.option->setChecked(option.Value);
    question.option->setAccessibleName(words + QLatin1Char(' ') + text);
    question.field->setText(text);
    question.field->setAtRest(model.isAtRest(question.goal));
    question.field->setAccessibleName(words);
    const int wanted = static_cast<int>(std::ceil(numberWidth(textFont(TextStyle::Value), text)));
    question.field->setFixedSize(std::clamp(wanted + besideText, question.leastWidth, largestWidth),
                                 fieldHeight);
}

void GoalLine::sync() {
    for (const Question& question : questions_)
        syncQuestion(question);
}

}  // namespace lorvane::desktop
