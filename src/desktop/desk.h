// Between the windows and the program: what a widget does goes in by name, what the program shows comes out.
// A fault on the way is told in one sentence, and the program goes on.
#pragma once

#include <QObject>
#include <QString>

#include "app/application.h"

namespace lorvane::desktop {

/// The way from the widgets to the program. Every call carries out one event, and all views are told of it
/// afterwards. What cannot be done is told in a message box.
class Desk : public QObject {
    Q_OBJECT

public:
    Desk(Application& application, MessageBoxes& messages);

    /// What views read; nothing of it can be changed through here.
    const Application& application() const { return application_; }
    const Design& design() const { return application_.design(); }
    const Session& session() const { return application_.session(); }
    const Study& study() const { return session().study(); }

    /// A command by its key, and a button, a cell or an option by its name.
    void tool(const std::string& name);
    void click(const std::string& control);

    /// A command of the menu of all windows, which closes what is open.
    void toggleForm(const std::string& name);

    /// The text of a box as it was typed; it is read when a button is pressed.
    void type(const std::string& control, const QString& text);

    /// The frame of a window asks it to close.
    void close(const std::string& window);

    /// Arrows by their name, a step up (1) or down (-1). The release of a held arrow brings up what its ticks
    /// left out.
    void spin(const std::string& control, int direction, ArrowHold hold = ArrowHold::click, int times = 1);
    void spinReleased();

    /// Opens the value of a field for typing, with a first text where that was typed on its cell already.
    void openValue(const std::string& field, const std::string& firstText = {});

    /// Writes a number for a field, and one of a window within its limits.
    void enterValue(FieldRef field, double value);
    void setNumber(const std::string& name, double value);

    /// A cell has got the focus; its two arms are linked or let part.
    void focus(FieldRef field);
    void toggleLink(FieldRef field);

    /// Selects rows of a table; they count from 1, below the heads.
    void select(const std::string& grid, const std::vector<std::size_t>& rows);

    /// Opens the program for a person, with the file of the command line or none.
    void start(const QString& file);

    /// Asks whether unsaved work may go, and opens a study file; the status line tells when it cannot be
    /// opened.
    void askAndOpen(const QString& path);

    /// The floating windows make way for a message or a file dialog, and the same ones come back.
    void suspend();
    void restore();

    /// What a field is and which keys change it.
    QString hintOf(FieldRef field) const;

signals:
    /// All models are right again; windows copy what has changed.
    void shown();

private:
    template <typename Event>
    void act(Event event);

    Application& application_;
    MessageBoxes& messages_;
};

/// Text of the program for a widget.
inline QString shownText(const std::string& text) { return QString::fromStdString(text); }

}  // namespace lorvane::desktop
