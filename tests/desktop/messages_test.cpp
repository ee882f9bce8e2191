// Questions and messages in their own boxes, the card of a file, About and the page of the keys.
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/desk_message_boxes.h"
#include "desktop/kit/key_list.h"
#include "desktop/kit/message_dialog.h"
#include "desktop/kit/notice_card.h"
#include "desktop/kit/record_table.h"
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
    std::string local(const char* name) const {
        return folder.filePath(QString::fromUtf8(name)).toStdString();
    }
    void saveAndChange() {
        set({{"txtd", 0.7}, {"txtNT(2)", 5.0}});
        application.save(local("Reading.Lorvane"));
        set({{"txtd", 0.3}});
        set({{"txtNT(2)", 9.0}});
        application.tool("Add scenario");
    }
    double savedD(const char* name) {
        Application other({distributions, locale, files, messages, messages.scripted, settings, "/program"});
        other.open(local(name));
        return other.session().study().txtd;
    }
    QString status() { return window.statusBar()->findChild<QLabel*>()->text(); }

    DeskMessageBoxes boxes;
    QTemporaryDir folder;
};

TEST_F(Messages, UnsavedWorkIsSavedThrownAwayOrKeptByItsThreeButtons) {
    struct Case {
        QKeyCombination key;
        bool goes;
        double onDisk;
    };
    for (const char* way : {"Clear", "Exit"}) {
        for (const Case& c : {Case{Qt::Key_Escape, false, 0.7},
                              {Qt::ALT | Qt::Key_C, false, 0.7},
                              {Qt::ALT | Qt::Key_D, true, 0.7},
                              {Qt::Key_Return, true, 0.3}}) {
            if (desk.design().isClosed())
                continue;
            saveAndChange();
            Answers answers({c.key});
            tool(way);
            ASSERT_EQ(answers.headings, QStringList(QStringLiteral("Save the changes to “Reading”?")));
            EXPECT_TRUE(answers.texts[0].contains(QLatin1String("data and saved scenarios. Ok to ")));
            EXPECT_TRUE(answers.texts[0].contains(QLatin1String("2 changes and 1 scenario since ")));
            EXPECT_EQ(answers.buttons.join(QLatin1Char('|')), QLatin1String("Don't save|Cancel|Save*"));
            EXPECT_EQ(study().txtd == 0.3 && !desk.design().isClosed(), !c.goes);
            EXPECT_EQ(savedD("Reading.Lorvane"), c.onDisk);
        }
    }
    EXPECT_TRUE(desk.design().isClosed());
}

TEST_F(Messages, ASaveThatComesToNothingGoesBackToTheStudy) {
    set({{"txtd", 0.4}});
    for (const char* chosen : {"", "none/here.Lorvane"}) {
        if (*chosen != '\0')
            messages.scripted.queueFile(local(chosen));
        Answers answers({Qt::Key_Return, Qt::Key_Escape});
        closeByFrame(window);
        EXPECT_EQ(answers.headings.size(), *chosen == '\0' ? 1 : 2) << "a failure is told";
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(desk.session().isAsSaved());
        const auto shown = messages.scripted.take();
        EXPECT_EQ(std::get<ScriptedDialogs::ShownFileDialog>(shown.at(0)).dialog.suggestedName,
                  "Two-level hierarchical design.Lorvane");
    }
    messages.scripted.queueFile(local("Here.Lorvane"));
    Answers answers({Qt::Key_Return});
    closeByFrame(window);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(savedD("Here.Lorvane"), 0.4);
}

TEST_F(Messages, WithoutAChangeNothingIsAskedAndASaveIsToldBelow) {
    Answers answers({});
    set({{"txtd", 0.4}});
    messages.scripted.queueFile(local("One.Lorvane"));
    key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(status(), QStringLiteral("Saved in One.Lorvane."));
    application.open(local("One.Lorvane"));
    tool("Clear");
    application.open(local("One.Lorvane"));
    closeByFrame(window);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(answers.headings.isEmpty()) << answers.headings.join(QLatin1Char('|')).toStdString();
}

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

TEST_F(Messages, AFileThatCannotBeOpenedIsToldOnACardUntilTheNextEvent) {
    auto* card = window.findChild<NoticeCard*>();
    cell("pnlNT(2)").setFocus();
    const auto open = [&] { desk.askAndOpen(QString::fromStdString(local("none.Lorvane"))), settle(); };
    open();
    ASSERT_TRUE(card->isVisible());
    EXPECT_TRUE(card->accessibleDescription().contains(QLatin1String("none.Lorvane\" cannot be read")));
    EXPECT_TRUE(status().contains(QLatin1String("cannot be read")));
    key(Qt::Key_Escape);
    EXPECT_FALSE(card->isVisible());
    EXPECT_TRUE(cell("pnlNT(2)").hasFocus());
    open();
    tool("Show power using digits");
    EXPECT_FALSE(card->isVisible());

    application.save(local("Gone.Lorvane"));
    QFile::remove(QString::fromStdString(local("Gone.Lorvane")));
    tool("gfrmOpenWizard");
    panel("frmStart").activateWindow();
    desk.click("frmStart.optStart(2)");
    desk.click("frmStart.cmdOK(0)");
    settle();
    auto* over = panel("frmStart").findChild<NoticeCard*>();
    EXPECT_TRUE(over->isVisible());
    EXPECT_FALSE(card->isVisible());
    key(Qt::Key_Escape);
    EXPECT_FALSE(over->isVisible());
    EXPECT_TRUE(isShown("frmStart")) << "the first Escape closes the card alone";
}

TEST_F(Messages, DeletedScenariosComeBackAndANewOneIsShownWhereItStands) {
    tool("gfrmScenarios");
    auto* table = panel("frmScenarios").findChild<RecordTable*>();
    for (int i = 0; i < 30; ++i) {
        set({{"txtNT(2)", 40.0 - i}});
        tool("Add scenario");
        table->sortByColumn(0, Qt::DescendingOrder);
    }
    EXPECT_EQ(status(), QStringLiteral("“Scenario 0030” added."));
    EXPECT_EQ(table->selectedRows(), QList<int>{29});
    EXPECT_TRUE(
        table->viewport()->rect().intersects(table->visualRect(table->selectionModel()->selectedRows()[0])));
    application.save(local("Thirty.Lorvane"));
    desk.select("frmScenarios.vsNames", {3, 7});
    Answers answers({Qt::ALT | Qt::Key_O});
    desk.click("frmScenarios.cmdScenarios(2)");
    EXPECT_EQ(answers.buttons.join(QLatin1Char('|')), QLatin1String("Cancel*|OK"));
    EXPECT_EQ(status(), QStringLiteral("2 scenarios deleted. Ctrl+Z brings them back."));
    EXPECT_EQ(application.scenarios().size(), 28u);
    tool("Undo");
    EXPECT_EQ(application.scenarios()[6].name, "Scenario 0007");
    EXPECT_TRUE(desk.session().isAsSaved());
    EXPECT_FALSE(desk.session().isDirty());
}

TEST_F(Messages, AboutAndTheKeysAreReachedFromHelp) {
    tool("About");
    ASSERT_TRUE(isShown("frmAbout"));
    panel("frmAbout").findChild<QAbstractButton*>(QStringLiteral("cmdCite"))->click();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QLatin1String("Lorvane, version ")));
    panel("frmAbout").activateWindow();
    settle();
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown("frmAbout"));

    tool("Keyboard");
    ASSERT_TRUE(isShown("frmKeyboard"));
    QString all;
    for (const KeyList* list : panel("frmKeyboard").findChildren<KeyList*>())
        all += list->accessibleName();
    for (const Tool& tool : application.commands().tools()) {
        const bool hasKeys = tool.keyOfCell.empty() && !tool.shortcut.empty();
        const bool isOnPage = !hasKeys || !application.commands().row(tool.Name)->run ||
                              all.contains(shownText(tool.shortcut + ": " + tool.ToolTipText));
        EXPECT_TRUE(isOnPage) << tool.Name;
    }
    EXPECT_EQ(all.count(QLatin1String("F1: ")), 2) << "of a value and of the graph, each once";
    desk.click("frmKeyboard.cmdPrint");
    EXPECT_EQ(press.asked, 1);
    EXPECT_TRUE(press.inner.pdf(press.last).starts_with("%PDF"));
}

}  // namespace
}  // namespace lorvane::desktop
