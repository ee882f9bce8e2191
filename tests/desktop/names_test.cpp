// Names that look like markup, mark a key, or are very long: every window shows them letter by letter.
#include <sys/stat.h>

#include <fcntl.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QDir>
#include <QLabel>
#include <QTabBar>
#include <QTextEdit>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>
#include <atomic>
#include <set>
#include <thread>

#include "base/names.h"
#include "desktop/desk_message_boxes.h"
#include "desktop/kit/message_dialog.h"
#include "desktop/kit/tool_panel.h"
#include "desktop_bench.h"

namespace lorvane::desktop {
namespace {

/// A pipe in a folder of its own. Whoever opens it for reading would wait for ever; this notes it and lets
/// go.
class WatchedPipe {
public:
    WatchedPipe() {
        QDir().mkpath(folder);
        ::mkfifo(path().c_str(), 0600);
        watcher_ = std::thread([this] {
            while (!over_) {
                const int end = ::open(path().c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
                opened_ = opened_ || end >= 0;
                if (end >= 0)
                    ::close(end);
                QThread::msleep(1);
            }
        });
    }
    ~WatchedPipe() {
        over_ = true;
        watcher_.join();
        QDir(folder).removeRecursively();
    }
    bool wasOpened() const { return opened_; }
    std::string path() const { return folder.toStdString() + "/pipe"; }

    /// In small letters, as the program writes names within a sentence.
    const QString folder =
        QStringLiteral("%1/lorvane-names-%2").arg(QDir::tempPath()).arg(QCoreApplication::applicationPid());

private:
    std::atomic<bool> opened_ = false;
    std::atomic<bool> over_ = false;
    std::thread watcher_;
};

class Names : public DesktopBench {
protected:
    void SetUp() override {
        DesktopBench::SetUp();
        set({{"NumLevels", 4.0},
             {"RandomizedLevel", 2.0},
             {"txtName(4)", "<b>R&D</b>"},
             {"txtName(3)", std::string(60, 'W')},
             {"txtName(2)", picture},
             {"txtName(1)", "&lt;i&gt; R&D"},
             {"txtGroupName(1)", picture},
             {"txtGroupName(2)", "<b>R&D"}});
        openWithCurrency("<u>&amp;", "<b>R&D[*] <img src='x'>.Lorvane");
    }
    void TearDown() override { QToolTip::hideText(); }

    /// Only a file brings a currency other than the system's.
    void openWithCurrency(const std::string& symbol, const std::string& name) {
        const std::string path = pipe.folder.toStdString() + "/" + name;
        application.save(path);
        std::string content = files.read(path, 1u << 20);
        const std::string before = ",Currency,$";
        ASSERT_NE(content.find(before), std::string::npos);
        files.replace(path, content.replace(content.find(before), before.size(), ",Currency," + symbol));
        application.open(path);
        settle();
    }

    /// Everything that shows text at the moment.
    void inspect() {
        for (QWidget* widget : QApplication::allWidgets()) {
            if (widget->isVisible())
                inspectShown(*widget);
            for (const QAction* action : widget->actions())
                expectNoKey(action->text());
        }
        for (const ToolPanel* panel : window.findChildren<ToolPanel*>())
            unseen.remove(panel->isVisible() ? panel : nullptr);
    }
    void inspectShown(const QWidget& widget) {
        EXPECT_EQ(widget.whatsThis(), QString());
        if (const auto* text = qobject_cast<const QTextEdit*>(&widget)) {
            EXPECT_TRUE(text->isReadOnly() && !text->acceptRichText());
            hostile += text->toPlainText().contains(QLatin1String("R&D"));
        }
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
            hostile += Qt::mightBeRichText(label->text()) || label->text().contains(QLatin1String("R&D"));
        }
        if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
            expectNoKey(button->text());
        if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                expectNoKey(tabs->tabText(tab));
        }
        if (Qt::mightBeRichText(widget.toolTip()))
            tips.insert(widget.toolTip());
    }
    static void expectNoKey(const QString& text) {
        EXPECT_FALSE(text.contains(QLatin1String("R&D"))) << text.toStdString();
    }
    void expectPlainTip(const QString& text) {
        QToolTip::showText(QPoint(10, 10), text, &window);
        const auto all = QApplication::allWidgets();
        const auto tip = std::find_if(all.begin(), all.end(), [&](const QWidget* widget) {
            return widget->inherits("QTipLabel") && widget->isVisible();
        });
        ASSERT_NE(tip, all.end());
        EXPECT_EQ(qobject_cast<QLabel*>(*tip)->textFormat(), Qt::PlainText);
        EXPECT_EQ(qobject_cast<QLabel*>(*tip)->text(), text);
    }
    template <typename Act>
    void run(const std::string& name, Act act) {
        SCOPED_TRACE(name);
        std::invoke(act, desk, name);
        settle();
        inspect();
    }
    void runTool(const std::string& name) { run(name, &Desk::tool); }
    void runClick(const std::string& name) { run(name, &Desk::click); }

    /// The real boxes in place of the scripted ones.
    void inspectMessages() {
        DeskMessageBoxes boxes;
        std::set<std::string> texts;
        for (const ScriptedDialogs::Shown& shown : messages.scripted.take()) {
            const auto* message = std::get_if<ScriptedDialogs::ShownMessage>(&shown);
            if (message == nullptr || kindOf(message->message) == MessageKind::formality ||
                !texts.insert(message->message.text).second)
                continue;
            QTimer::singleShot(0, &window, [this] {
                auto* box = qobject_cast<MessageDialog*>(QApplication::activeModalWidget());
                box->grab();
                inspect();
                box->reject();
            });
            SCOPED_TRACE(message->message.title);
            boxes.show(message->message);
        }
    }

    WatchedPipe pipe;
    const std::string picture = "<img src='" + pipe.path() + "'>";
    QSet<const ToolPanel*> unseen;
    int hostile = 0;
    QSet<QString> tips;
};

// A view to come needs no care of its own.
TEST_F(Names, ArePlainInAFreshLabel) {
    QWidget view;
    auto* label = new QLabel(QString::fromStdString(picture));
    label->setWordWrap(true);
    QVBoxLayout(&view).addWidget(label);
    view.adjustSize();
    view.grab();
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_FALSE(pipe.wasOpened());
}

TEST_F(Names, AreShownLetterByLetterInEveryWindow) {
    // Nothing opens the window of errors; its text is a fixed one.
    for (const ToolPanel* panel : window.findChildren<ToolPanel*>()) {
        if (panel->objectName() != QLatin1String("frmErr"))
            unseen.insert(panel);
    }
    EXPECT_TRUE(window.windowHandle()->title().contains(QLatin1String("<b>R&D[*] <img src='x'>.Lorvane")))
        << window.windowHandle()->title().toStdString();
    runTool("Add scenario");
    runTool("gfrmScenarios");
    runClick("frmScenarios.cmdScenarios(3)");
    for (const char* box : {"frmScenariosName.txtScenariosName", "frmScenariosName.txtScenariosDesc"})
        desk.type(box, QString::fromStdString(picture));
    runClick("frmScenariosName.cmdScenarioNameOk(0)");
    set({{"txtRsq(2)", 0.5}});
    runTool("gfrmProblems");
    set({{"txtRsq(2)", 0.0}});
    runTool("gfrmDetails");
    forEachField([&](FieldRef field) {
        if (field->cell.stem.empty())
            return;
        const std::string cell(field->cell.stem);
        runClick(field->index == FieldIndex::none ? cell : indexedName(cell, field.index));
        run(field.name(), [](Desk& opener, const std::string& name) { opener.openValue(name); });
        run("frmValue", &Desk::close);
    });
    runTool("gfrmOptimal");
    for (const char* button :
         {"frmOptimal.optManual(1)", "frmOptimal.cmdOpt(2)", "frmOptimal.cmdAdjustClose"})
        runClick(button);
    runTool("gfrmMDES");
    runClick("frmMDES.cmdComputeMDES");
    runTool("gfrmOpenWizard");
    runClick("frmStart.optStart(2)");
    messages.scripted.queue(Answer::Yes);
    messages.scripted.queue(Answer::Yes);
    for (const char* tool :
         {"gfrmPrint", "Graph", "gfrmTipsGraph", "Show cost", "Show table", "L Number of Level 1"})
        runTool(tool);
    runClick("frmLVar.Command1");
    set({{"txtQ(1)", 0.0}, {"txtRsq(1)", 0.4}});
    runTool("gfrmProblems");
    set({{"txtNB(4)", 1.0}, {"txtMRange(3)", 0.95}});
    const std::vector<Tool> tools = desk.application().commands().tools();
    for (const Tool& tool : tools) {
        if (desk.application().commands().find(tool.Name)->Enabled && tool.Name != "Exit")
            runTool(tool.Name);
    }
    set({{"DataType", 2.0}, {"BinaryType", 1.0}, {"txtOR", 1000.0}});
    inspect();
    set({{"txtOR", 2.0}});
    runTool("gfrmCounts");
    runClick("frmDelta.cmdHelp");
    EXPECT_TRUE(window.isVisible());
    EXPECT_GT(hostile, 100);
    EXPECT_FALSE(tips.isEmpty());
    for (const QString& tip : std::as_const(tips))
        expectPlainTip(tip);
    inspectMessages();
    EXPECT_FALSE(pipe.wasOpened());
    EXPECT_LE(window.minimumSizeHint().width(), 1280) << "long names give way";
    // The graph and the report open as large as the screen lets them.
    for (const char* large : {"xPlot", "frmPrint"})
        panel(large).resize(100, 100);
    for (const ToolPanel* panel : window.findChildren<ToolPanel*>())
        EXPECT_LE(panel->width(), 950) << panel->objectName().toStdString();
    for (const ToolPanel* panel : unseen)
        ADD_FAILURE() << panel->objectName().toStdString() << " was never shown";
}

}  // namespace
}  // namespace lorvane::desktop
