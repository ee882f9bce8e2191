// Takes pictures of the program's windows: plays lines of commands on the real windows and saves what they
// show.
//
//     lorvane-pictures FOLDER < commands
//
// Commands: open STUDY, tool NAME, click CONTROL, spin CONTROL up|down, focus CELL, size W H, dark on|off,
// value FIELD, type CONTROL TEXT, main NAME (picture of the main window), panel WINDOW NAME (of a floating
// window), resize WINDOW W H, menu BAND NAME, ask TOOL NAME (of the box that a tool brings up; it is
// cancelled).
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QPixmap>
#include <QTextStream>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <functional>
#include <iostream>
#include <map>

#include "desktop/desk.h"
#include "desktop/desk_message_boxes.h"
#include "desktop/kit/theme.h"
#include "desktop/main_window.h"
#include "desktop/menus.h"
#include "desktop/panels.h"
#include "desktop/program_facts.h"
#include "numerics/numeric_distribution_library.h"
#include "os/disk_file_store.h"
#include "os/program_folder.h"
#include "platform/scripted_dialogs.h"
#include "qt/qt_document_press.h"

namespace {

using namespace lorvane;

// The same currency on every machine.
class PictureLocale final : public SystemLocale {
public:
    std::string currencyOfZero() const override { return "$0.00"; }
};

void settle() {
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

bool save(QWidget* widget, const QString& folder, const QString& name) {
    if (widget == nullptr)
        return false;
    settle();
    return widget->grab().save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

bool saveMenu(QMenu* menu, const QString& folder, const QString& name) {
    if (menu == nullptr)
        return false;
    menu->popup(QPoint());
    const bool saved = save(menu, folder, name);
    menu->close();
    return saved;
}

// Scripted answers; where a picture is wanted, the real box.
class PictureBoxes final : public MessageBoxes {
public:
    Answer show(const MessageBox& message) override {
        if (name.isEmpty())
            return scripted.show(message);
        QTimer::singleShot(0, [this] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            isSaved = save(box, folder, name);
            box->reject();
        });
        return boxes.show(message);
    }
    ScriptedDialogs scripted;
    desktop::DeskMessageBoxes boxes;
    QString folder;
    QString name;
    bool isSaved = false;
};

struct Stage {
    desktop::Desk& desk;
    desktop::MainWindow& window;
    desktop::Panels& panels;
    PictureBoxes& boxes;
    QString folder;

    bool ask(const QString& tool, const QString& name);

    bool run(const QStringList& words, const QString& rest);
};

bool Stage::ask(const QString& tool, const QString& name) {
    boxes.folder = folder;
    boxes.name = name;
    boxes.isSaved = false;
    desk.tool(tool.toStdString());
    boxes.name.clear();
    return boxes.isSaved;
}

bool Stage::run(const QStringList& words, const QString& rest) {
    const QString& command = words[0];
    const std::string text = rest.toStdString();
    if (command == QLatin1String("open"))
        desk.start(rest);
    else if (command == QLatin1String("tool"))
        desk.tool(text);
    else if (command == QLatin1String("click"))
        desk.click(text);
    else if (command == QLatin1String("spin"))
        desk.spin(words[1].toStdString(), words[2] == QLatin1String("up") ? 1 : -1);
    else if (command == QLatin1String("value"))
        desk.openValue(text);
    else if (command == QLatin1String("type"))
        desk.type(words[1].toStdString(), rest.section(QLatin1Char(' '), 1));
    else if (command == QLatin1String("select"))
        desk.select(words[1].toStdString(), {words[2].toULong()});
    else if (command == QLatin1String("size"))
        window.resize(words[1].toInt(), words[2].toInt());
    else if (command == QLatin1String("resize") && panels.panel(words[1]) != nullptr)
        panels.panel(words[1])->resize(words[2].toInt(), words[3].toInt());
    else if (command == QLatin1String("dark"))
        desktop::setDark(words[1] == QLatin1String("on"));
    else if (command == QLatin1String("focus") && window.cell(text) != nullptr)
        window.cell(text)->setFocus();
    else if (command == QLatin1String("main"))
        return save(&window, folder, rest);
    else if (command == QLatin1String("panel"))
        return save(panels.panel(words[1]), folder, words[2]);
    else if (command == QLatin1String("ask"))
        return ask(words[1], words[2]);
    else if (command == QLatin1String("menu"))
        return saveMenu(window.menus().menu(words[1].toStdString()), folder, words[2]);
    else
        return false;
    settle();
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication qt(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Lorvane"));
    desktop::applyTheme(qt);
    desktop::setDark(false);
    if (argc != 2) {
        std::cerr << "usage: lorvane-pictures FOLDER < commands\n";
        return 2;
    }
    NumericDistributionLibrary distributions;
    const PictureLocale locale;
    DiskFileStore files;
    PictureBoxes messages;
    messages.scripted.queue(Answer::OK);
    MemorySettings settings;
    QtDocumentPress press;
    Application application({distributions, locale, files, messages, messages.scripted, settings,
                             programFolder(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                             nullptr, &press, desktop::programFacts()});
    desktop::Desk desk(application, messages);
    desktop::MainWindow window(desk);
    desktop::Panels panels(desk, window);
    window.show();
    window.activateWindow();
    Stage stage{desk, window, panels, messages, QString::fromLocal8Bit(argv[1])};
    std::string line;
    while (std::getline(std::cin, line)) {
        const QString command = QString::fromStdString(line).trimmed();
        if (command.isEmpty() || command.startsWith(QLatin1Char('#')))
            continue;
        if (!stage.run(command.split(QLatin1Char(' ')), command.section(QLatin1Char(' '), 1))) {
            std::cerr << "cannot: " << line << '\n';
            return 1;
        }
    }
    return 0;
}
