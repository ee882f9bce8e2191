// Questions and messages in their own boxes.
#include <QPushButton>
#include <QScreen>
#include <QTimer>

#include "desktop/desk_message_boxes.h"
#include "desktop/kit/message_dialog.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

/// Keys pressed in boxes that come up one after the other.
class Answers : public QObject {
public:
    explicit Answers(std::vector<QKeyCombination> keys) : keys_(std::move(keys)) {
        connect(&timer_, &QTimer::timeout, this, [this] { answer(); });
        timer_.start(10);
    }
    QStringList headings;
    QStringList texts;
    QStringList buttons;  ///< of the last box, from left to right

private:
    void answer() {
        auto* box = qobject_cast<MessageDialog*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isActiveWindow() || box->property("isAnswered").toBool())
            return;
        box->setProperty("isAnswered", true);
        headings += box->accessibleName();
        texts += box->accessibleDescription();
        QList<QPushButton*> shown = box->findChildren<QPushButton*>();
        std::sort(shown.begin(), shown.end(), [](auto* a, auto* b) { return a->x() < b->x(); });
        buttons.clear();
        for (QPushButton* button : shown)
            buttons +=
                button->text().remove(QLatin1Char('&')) + QLatin1String(button->isDefault() ? "*" : "");
        const QKeyCombination next = keys_.empty() ? QKeyCombination(Qt::Key_Escape) : keys_.front();
        if (!keys_.empty())
            keys_.erase(keys_.begin());
        QTest::keyClick(box, next.key(), next.keyboardModifiers());
    }
    std::vector<QKeyCombination> keys_;
    QTimer timer_;
};

class Messages : public DesktopBench {
protected:
    void SetUp() override {
        DesktopBench::SetUp();
        boxes.setOwner(&window);
        messages.real = &boxes;
    }

    DeskMessageBoxes boxes;
};

TEST_F(Messages, ABoxFitsTheScreenAndLeavesWorkAloneByDefault) {
    const QRect screen = window.screen()->availableGeometry();
    for (const auto& [text, kind, preset] :
         {std::tuple{std::string(5000, 'x'), MessageKind::question, "OK*|"},
          {"Ok to delete 2 rows?                 ", MessageKind::loss, "Cancel*|"},
          {[] {
               std::string lines;
               for (int i = 0; i < 400; ++i)
                   lines += "A line. \n";
               return lines;
           }(),
           MessageKind::failure, "OK*|"}}) {
        QSize size;
        QTimer::singleShot(0, &window,
                           [&] { size = QApplication::activeModalWidget()->frameGeometry().size(); });
        Answers answers({});
        EXPECT_EQ(boxes.show({"Title", text, {Answer::OK, Answer::Cancel}, {}, kind}), Answer::Cancel);
        EXPECT_EQ(size.width(), 500);
        EXPECT_LE(size.height(), screen.height());
        EXPECT_TRUE(
            (answers.buttons.join(QLatin1Char('|')) + QLatin1Char('|')).contains(QLatin1String(preset)));
        EXPECT_FALSE(answers.headings[0].endsWith(QLatin1Char(' ')));
    }
}

}  // namespace
}  // namespace lorvane::desktop
