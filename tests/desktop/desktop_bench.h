// The windows over a real program, and the hand that presses them: pointer and keys go in where the window
// system puts them in.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QTest>
#include <QThread>
#include <QWindow>
#include <functional>

#include "desktop/desk_progress.h"
#include "desktop/kit/figure_card.h"
#include "desktop/kit/panel_dock.h"
#include "desktop/kit/value_cell.h"
#include "desktop/main_window.h"
#include "desktop/menus.h"
#include "desktop/panels.h"
#include "os/disk_file_store.h"
#include "qt/qt_clipboard.h"
#include "qt/qt_document_press.h"
#include "qt/qt_hourglass.h"
#include "support/test_library.h"

namespace lorvane::desktop {

/// Scripted answers or real boxes, and a look at the screen before a question.
struct WatchedMessageBoxes final : MessageBoxes {
    Answer show(const MessageBox& message) override {
        beforeShowing();
        return real == nullptr ? scripted.show(message) : real->show(message);
    }
    MessageBoxes* real = nullptr;  ///< in place of the scripted ones
    ScriptedDialogs scripted;
    std::function<void()> beforeShowing = [] {};
};

/// The disk, and a look at the screen before a file is read or written.
struct WatchedFiles final : FileStore {
    std::string read(const std::string& path, std::size_t largest) const override {
        beforeUse();
        return disk.read(path, largest);
    }
    bool exists(const std::string& path) const override { return disk.exists(path); }
    void replace(const std::string& path, std::string_view content) override {
        beforeUse();
        disk.replace(path, content);
    }
    DiskFileStore disk;
    std::function<void()> beforeUse = [] {};
};

/// A search that takes its time between two looks.
struct SlowProgress final : Progress {
    bool goOn() override {
        QThread::msleep(pause);
        return inner.goOn();
    }
    DeskProgress inner;
    unsigned long pause = 0;  ///< milliseconds
};

/// Real pages, and a printer that the user never chooses.
struct PaperlessPress final : DocumentPress {
    std::unique_ptr<DocumentSurface> start(const PageSetup& page) override { return inner.start(page); }
    std::string pdf(const Document& document) override { return inner.pdf(document); }
    std::string picture(const Document& document, int page) override { return inner.picture(document, page); }
    bool print(const Document& document, std::optional<int>) override {
        ++asked;
        last = document;
        return false;
    }
    QtDocumentPress inner;
    int asked = 0;  ///< to print
    Document last;  ///< that was to be printed
};

class DesktopBench : public testing::Test {
protected:
    void SetUp() override {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// The guide opens where a test asks for it, so that the windows have the room that is their subject.
    static MemorySettings withoutGuide() {
        MemorySettings kept;
        kept.SaveSetting("Lorvane", "Guide", "Open", "0");
        return kept;
    }

    /// A window manager gives the keyboard to the main window where no other has it.
    void settle() {
        for (int i = 0; i < 8; ++i) {
            QCoreApplication::processEvents();
            if (i == 4 && window.isVisible() &&
                !(QGuiApplication::focusWindow() && QApplication::activeWindow()))
                window.activateWindow();
        }
    }
    void set(const std::vector<Assignment>& values) {
        application.set(values);
        emit desk.shown();
        settle();
    }
    /// Every kind of cell: two blocked levels over the randomized one.
    void openFourLevels() { set({{"NumLevels", 4.0}, {"RandomizedLevel", 2.0}}); }

    const Study& study() const { return desk.study(); }
    ToolPanel& panel(const char* name) { return *panels.panel(QString::fromUtf8(name)); }
    PanelDock& dock(const char* name) {
        QWidget* at = &panel(name);
        while (qobject_cast<PanelDock*>(at) == nullptr)
            at = at->parentWidget();
        return static_cast<PanelDock&>(*at);
    }
    bool isShown(const char* name) { return panel(name).isVisible(); }
    ValueCell& cell(const std::string& name) { return dynamic_cast<ValueCell&>(*window.cell(name)); }
    std::string text(const std::string& name) { return cell(name).text().toStdString(); }
    QList<ValueCell*> changeableCells(const QWidget& above) {
        QList<ValueCell*> cells = above.findChildren<ValueCell*>();
        cells.removeIf([](ValueCell* cell) { return !cell->isVisible() || !cell->isChangeable(); });
        return cells;
    }
    static QPoint inside(const QWidget& cell) { return cell.mapTo(cell.window(), QPoint(20, 12)); }
    static QPoint arrow(const QWidget& cell, int direction) {
        return cell.mapTo(cell.window(), QPoint(cell.width() - 12, cell.height() * (2 - direction) / 4));
    }
    void click(const QWidget& widget, const QPoint& place, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(widget.window()->windowHandle(), button, {}, place);
        settle();
    }
    void clickArrow(const std::string& name, int direction) {
        click(cell(name), arrow(cell(name), direction));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
        settle();
    }
    static void type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text)); }
    void tool(const char* name) {
        desk.tool(name);
        settle();
    }
    void closeByFrame(QWidget& shown) {
        QCloseEvent closing;
        QCoreApplication::sendEvent(shown.windowHandle(), &closing);
        settle();
    }

    NumericDistributionLibrary distributions;
    FixedLocale locale;
    WatchedFiles files;
    WatchedMessageBoxes messages;
    MemorySettings settings = withoutGuide();
    SlowProgress progress;
    QtClipboard clipboard;
    QtHourglass hourglass;
    PaperlessPress press;
    Application application{{distributions, locale, files, messages, messages.scripted, settings, "/program",
                             nullptr, &progress, &clipboard, nullptr, &hourglass, nullptr, nullptr, nullptr,
                             &press}};
    Desk desk{application, messages};
    MainWindow window{desk};
    Panels panels{desk, window};
};

}  // namespace lorvane::desktop
