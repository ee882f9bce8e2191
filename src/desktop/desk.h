// Between the windows and the program: what a widget does goes in by name, what the program shows comes out.
// A fault on the way is told in one sentence, and the program goes on.
#pragma once

#include <QObject>
#include <QString>

#include "app/application.h"

namespace lorvane::desktop {

class Desk : public QObject {
    Q_OBJECT

public:
    Desk(Application& application, MessageBoxes& messages);

    const Application& application() const { return application_; }
    const Design& design() const { return application_.design(); }
    const Session& session() const { return application_.session(); }
    const Study& study() const { return session().study(); }

    void tool(const std::string& name);
    void click(const std::string& control);
    void type(const std::string& control, const QString& text);
    void close(const std::string& window);
    void spin(const std::string& control, int direction, ArrowHold hold = ArrowHold::click);
    void spinReleased();
    void openValue(const std::string& field);
    void setNumber(const std::string& name, double value);

    void select(const std::string& grid, const std::vector<std::size_t>& rows);

    /// Opens the program for a person, with the file of the command line or none.
    void start(const QString& file);

    /// Asks whether unsaved work may go, and opens a study file; the status line tells when it cannot be
    /// opened.
    void askAndOpen(const QString& path);

    /// The floating windows make way and come back.
    void suspend();
    void restore();

    /// What a field is and which keys change it.
    QString hintOf(FieldRef field) const;

signals:
    /// All models are right again; windows copy what has changed.
    void shown();
    /// What the cell with the focus is and which keys change it.
    void hinted(const QString& hint);

private:
    template <typename Event>
    void act(Event event);

    Application& application_;
    MessageBoxes& messages_;
};

/// Text of the program for a widget.
inline QString shownText(const std::string& text) { return QString::fromStdString(text); }

}  // namespace lorvane::desktop
