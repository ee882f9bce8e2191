// Scenarios, start screen, files and unsaved work, as a person meets them.
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolTip>
#include <QUrl>
#include <filesystem>

#include "desktop/crash_guard.h"
#include "desktop/desk_application.h"
#include "desktop/kit/record_table.h"
#include "desktop/kit/start_page.h"
#include "desktop_bench.h"
#include "persistence/study_file.h"
#include "qt/qt_file_dialogs.h"
#include "qt/qt_settings_store.h"
#include "support/test_platform.h"

namespace lorvane::desktop {
namespace {

class Files : public DesktopBench {
protected:
    QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    std::string local(const char* name) const { return path(name).toStdString(); }
    WindowStates stateOf(WindowId id) const { return desk.design().windows().state(id); }
    RecordTable& table() { return *panel("frmScenarios").findChild<RecordTable*>(); }
    StartPage& page() { return *panel("frmStart").findChild<StartPage*>(); }
    std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const ScenarioLine& line : application.scenarios())
            all.push_back(line.name);
        return all;
    }
    QString status() { return window.statusBar()->findChild<QLabel*>()->text(); }
    bool drop(const QString& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&window, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent dropped(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window, &dropped);
        settle();
        return true;
    }

    QTemporaryDir folder;
};

TEST_F(Files, ScenariosAreKeptAndRestoredByTheKeyboardAlone) {
    tool("gfrmScenarios");
    for (const double d : {0.2, 0.8, 0.5}) {
        set({{"txtd", d}, {"ICC Metric", 1.0}});
        tool("Add scenario");
    }
    ASSERT_TRUE(isShown("frmScenarios"));
    EXPECT_EQ(table().selectedRows(), QList<int>{2}) << "the new one";
    panel("frmScenarios").activateWindow();
    table().setFocus();
    settle();
    table().sortByColumn(2, Qt::DescendingOrder);
    key(Qt::Key_Home);
    EXPECT_EQ(table().selectedRows(), QList<int>{1}) << "the highest power comes first";
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtd, 0.8);
    key(Qt::Key_Delete);
    EXPECT_EQ(names(), (std::vector<std::string>{"Scenario 0001", "Scenario 0003"}));
    key(Qt::Key_Escape);
    EXPECT_FALSE(isShown("frmScenarios"));
}

TEST_F(Files, AScenarioGetsItsNameInADialog) {
    tool("Add scenario");
    tool("gfrmScenarios");
    desk.click("frmScenarios.cmdScenarios(3)");
    settle();
    ASSERT_TRUE(isShown("frmScenariosName"));
    type("Larger");
    key(Qt::Key_Return);
    EXPECT_EQ(names(), std::vector<std::string>{"Larger"});
    EXPECT_FALSE(isShown("frmScenariosName"));
}

TEST_F(Files, ATipTellsOfAnIccThatCouldNotBeKept) {
    for (const double icc : {0.01, 0.1}) {
        set({{"DataType", 2.0}, {"ICC Metric", 1.0}, {"txtPrev", 0.2}, {"txtICC(2)", icc}});
        tool("Add scenario");
    }
    tool("gfrmScenarios");
    for (const int row : {0, 1}) {
        const QPoint at = table().visualRect(table().model()->index(row, 0)).center();
        QHelpEvent help(QEvent::ToolTip, at, table().viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(table().viewport(), &help);
        EXPECT_EQ(QToolTip::text().contains("the ICC of 0.1 for"), row == 1);
    }
}

TEST_F(Files, TheStartScreenOpensARecentFile) {
    set({{"txtd", 0.7}});
    application.save(local("One.Lorvane"));
    set({{"txtd", 0.3}});
    application.save(local("Two.Lorvane"));
    tool("gfrmOpenWizard");
    ASSERT_TRUE(isShown("frmStart"));
    panel("frmStart").activateWindow();
    page().setFocus();
    settle();
    key(Qt::Key_Down);
    EXPECT_EQ(application.startScreen().StartChoice(), StartChoices::existingFile);
    page().focusFiles();
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(study().txtd, 0.7);
    EXPECT_FALSE(isShown("frmStart"));
    tool("gfrmOpenWizard");
    panel("frmStart").activateWindow();
    settle();
    key(Qt::Key_Escape);
    EXPECT_EQ(stateOf(WindowId::frmStart), WindowStates::notLoaded);
}

TEST_F(Files, ADroppedStudyOpensAfterTheQuestionAndAFailureIsTold) {
    set({{"txtd", 0.7}});
    application.save(local("One.Lorvane"));
    EXPECT_FALSE(drop(path("notes.txt")));
    set({{"txtd", 0.1}});
    EXPECT_TRUE(drop(path("One.Lorvane")));
    EXPECT_EQ(study().txtd, 0.1) << "Cancel";
    messages.scripted.queue(Answer::OK);
    EXPECT_TRUE(drop(path("One.Lorvane")));
    EXPECT_EQ(study().txtd, 0.7);
    messages.scripted.queue(Answer::OK);
    EXPECT_TRUE(drop(path("none.Lorvane")));
    EXPECT_TRUE(status().contains(QLatin1String("none.Lorvane\" cannot be read"))) << status().toStdString();
    tool("Show power using digits");
    EXPECT_FALSE(status().contains(QLatin1String("none.Lorvane"))) << "the hint is back";
}

// The hourglass shows while a file is read or written, whatever led there and however it ends.
TEST_F(Files, TheHourglassShowsWhileAFileIsOpenedOrSaved) {
    const auto isWaiting = [] {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        return cursor != nullptr && cursor->shape() == Qt::WaitCursor;
    };
    int used = 0;
    files.beforeUse = [&] {
        EXPECT_TRUE(isWaiting());
        ++used;
    };
    messages.beforeShowing = [&] { EXPECT_FALSE(isWaiting()); };
    const auto queueFile = [&](const char* name) { messages.scripted.queueFile(local(name)); };
    const std::function<void()> ways[] = {
        [&] { queueFile("One.Lorvane"), tool("SaveAs"); },
        [&] { queueFile("One.Lorvane"), tool("Open"); },
        [&] { queueFile("none.Lorvane"), tool("Open"); },
        [&] { queueFile("no/folder.Lorvane"), tool("SaveAs"); },
        [&] { tool("Clear"); },
        [&] { drop(path("One.Lorvane")); },
        [&] { desk.start(path("One.Lorvane")); },
        [&] { tool("gfrmOpenWizard"), desk.click("frmStart.optStart(2)"), desk.click("frmStart.cmdOK(0)"); }};
    for (const auto& way : ways) {
        const int before = used;
        messages.scripted.queue(Answer::OK);
        way();
        EXPECT_EQ(used, before + 1) << "way " << (&way - ways);
        EXPECT_FALSE(isWaiting()) << "way " << (&way - ways);
    }
    files.beforeUse = [] { throw std::bad_alloc(); };
    drop(path("One.Lorvane"));
    EXPECT_FALSE(isWaiting());
}

// What nobody foresaw is told in a sentence, wherever it was thrown, and the program goes on.
TEST_F(Files, EveryFailureIsToldAndTheStudyIsKept) {
    set({{"txtd", 0.7}});
    application.save(local("One.Lorvane"));
    const std::function<void()> failures[] = {
        [] { throw std::bad_alloc(); }, [] { throw std::filesystem::filesystem_error("", {}); },
        [] { throw FileProblem("Of its own: try again."); }, [] { throw 5; }};
    std::vector<std::string> told;
    auto& net = dynamic_cast<DeskApplication&>(*qApp);
    net.whenFailed([&](const std::string& words) { told.push_back(words); });
    for (const auto& failure : failures) {
        files.beforeUse = failure;
        desk.askAndOpen(path("One.Lorvane"));
        const bool isTold = !application.design().screen().pnlStatus.Caption.empty();
        EXPECT_EQ(messages.scripted.take().size() + isTold, 1u);
        QTimer::singleShot(0, &window, failure);
        settle();
    }
    EXPECT_EQ(told.size(), 4u);
    for (const std::string& words : told)
        EXPECT_TRUE(words.ends_with("try again.")) << words;
    files.beforeUse = [] {};
    EXPECT_EQ(study().txtd, 0.7);
    tool("Add a level");
    EXPECT_EQ(study().NumLevels, 3);
    net.whenFailed([](const std::string&) {});
}

// Whoever closes the message would get the next one at once otherwise.
TEST_F(Files, AWindowThatCannotBePaintedIsToldOnce) {
    struct Broken : QWidget {
        void paintEvent(QPaintEvent*) override { throw std::runtime_error("no paint"); }
    } broken;
    int told = 0;
    auto& net = dynamic_cast<DeskApplication&>(*qApp);
    net.whenFailed([&](const std::string&) { ++told; });
    broken.show();
    for (int i = 0; i < 5; ++i) {
        broken.update();
        settle();
    }
    EXPECT_EQ(told, 1);
    net.whenFailed([](const std::string&) {});
}

// A place for pictures that counts them.
struct CountedPictures final : UnsavedStore {
    std::vector<UnsavedStudy> kept;
    int drops = 0;
    int leaves = 0;
    std::optional<LeftBehind> left;
    void keep(const UnsavedStudy& study) override { kept.push_back(study); }
    void drop() override { ++drops; }
    std::optional<LeftBehind> takeLeftBehind() override { return std::exchange(left, {}); }
    void leave() override { ++leaves; }
    void setAside() override {}
};

TEST_F(Files, UnsavedWorkIsPicturedOffTheClickAndForgottenWhenSaved) {
    CountedPictures store;
    CrashGuard guard(desk, store, 50);
    set({{"txtd", 0.2}});
    set({{"txtd", 0.3}});
    EXPECT_TRUE(store.kept.empty()) << "not on the click";
    QTest::qWait(200);
    tool("gfrmDetails");
    QTest::qWait(200);
    desk.tool("Exit");
    messages.scripted.queue(Answer::OK);
    guard.finish();
    ASSERT_EQ(store.kept.size(), 1u) << "one picture of one state";
    EXPECT_NE(store.kept[0].table.find(",d,0.3,"), std::string::npos);
    EXPECT_EQ(store.drops, 1);
}

// What an earlier run left unsaved stays on the disk until the study that came from it is saved.
TEST_F(Files, APictureOutlivesAStudyThatIsNotSaved) {
    struct Case {
        const char* tool;  ///< before the program ends
        int drops, leaves;
    };
    for (const Case& c : {Case{"", 0, 1}, {"Clear", 0, 1}, {"Save", 1, 0}}) {
        SCOPED_TRACE(c.tool);
        TestPlatform outside;
        CountedPictures store;
        store.left = LeftBehind{{"/study", studyFileText(savedTable(application.session())), 0}, "", "", ""};
        Application next(outside.platform(&store));
        Desk face(next, outside.messages);
        CrashGuard guard(face, store, 50);
        outside.messages.queue(Answer::Yes);
        face.start("");
        EXPECT_EQ(next.session().currentFile(), "/study");
        outside.messages.queue(Answer::OK);
        if (*c.tool != '\0')
            face.tool(c.tool);
        guard.finish();
        EXPECT_EQ(store.drops, c.drops);
        EXPECT_EQ(store.leaves, c.leaves);
    }
}

/// What a person does in a file dialog: types names until one is taken.
class FileDialogsTest : public testing::Test {
protected:
    /// Each name is typed and accepted; what the dialog says to it is answered with No or OK.
    std::optional<std::string> answer(const FileDialog& dialog, const QStringList& names) {
        said.clear();
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            title = box->windowTitle();
            filter = box->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"))->currentText();
            box->setDirectory(folder.path());
            for (const QString& name : names) {
                box->findChild<QLineEdit*>()->setText(name);
                QTimer::singleShot(0, box, [this] { closeMessage(); });
                QTest::keyClick(box->findChild<QLineEdit*>(), Qt::Key_Return);
            }
            if (box->isVisible())
                box->reject();
        });
        return dialogs.choose(dialog);
    }
    void closeMessage() {
        if (auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            said += message->text();
            message->reject();
        }
    }
    std::string inFolder(const char* name) const {
        return folder.filePath(QString::fromUtf8(name)).toStdString();
    }

    const FileDialog save{FileDialog::Kind::save, "Save file", "(*.Lorvane)|*.Lorvane", ""};
    const FileDialog open{FileDialog::Kind::open, "Open file", "(*.Lorvane)|*.Lorvane", ".Lorvane"};
    const FileDialog more{FileDialog::Kind::open, "Open database", "(*..Lorvane)|*.Lorvane", ""};
    const QTemporaryDir folder;
    QtFileDialogs dialogs;
    QString title, filter;
    QStringList said;
};

TEST_F(FileDialogsTest, ShowTheFilterAsToldAndGiveTheEnding) {
    EXPECT_EQ(answer(save, {QStringLiteral("Größe")}), inFolder("Größe.Lorvane"));
    EXPECT_EQ(title.toStdString() + filter.toStdString(), "Save file(*.Lorvane)");
    DiskFileStore().replace(inFolder("Größe.Lorvane"), "");
    EXPECT_EQ(answer(open, {QStringLiteral("Größe")}), inFolder("Größe.Lorvane"));
    EXPECT_EQ(title.toStdString() + filter.toStdString(), "Open file(*.Lorvane)");
    EXPECT_EQ(answer(more, {QStringLiteral("Größe.Lorvane")}), inFolder("Größe.Lorvane"));
    EXPECT_EQ(title.toStdString() + filter.toStdString(), "Open database(*..Lorvane)");
    EXPECT_EQ(answer(more, {}), std::nullopt);
}

TEST_F(FileDialogsTest, StayOpenForAPathThatCannotBeTaken) {
    const QString there = QStringLiteral("There.Lorvane");
    DiskFileStore().replace(inFolder("There.Lorvane"), "");
    EXPECT_EQ(answer(save, {QString(300, QLatin1Char('x')), QStringLiteral("no/folder"), there}),
              std::nullopt);
    ASSERT_EQ(said.size(), 3) << said.join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(said[0].toStdString() + said[1].toStdString(), std::string(nameTooLong) + folderMissing);
    EXPECT_TRUE(said[2].contains(there)) << "it is there already";
    EXPECT_EQ(answer(open, {QStringLiteral("None"), there}), inFolder("There.Lorvane"));
    EXPECT_EQ(said.size(), 1);
}

TEST(QtSettingsStoreTest, KeepsTextsAndLivesWithoutAPlace) {
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    const std::string path = "/home/Größe, \"x\"=\\y;.Lorvane";
    QtSettingsStore().SaveSetting("Lorvane", "Recent", " 0", path);
    EXPECT_EQ(QtSettingsStore().GetSetting("Lorvane", "Recent", " 0", "none"), path);
    EXPECT_EQ(QtSettingsStore().GetSetting("Lorvane", "Recent", " 1", "none"), "none");
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("/proc/nowhere"));
    QtSettingsStore().SaveSetting("Elsewhere", "Recent", " 0", path);
}

}  // namespace
}  // namespace lorvane::desktop
