// Between the windows and the program.
#include "desktop/desk.h"

#include <QFile>

#include "base/arithmetic_fault.h"
#include "platform/failure_words.h"
#include "session/field_words.h"

namespace lorvane::desktop {

Desk::Desk(Application& application, MessageBoxes& messages)
    : application_(application), messages_(messages) {
    application_.whenShown([this] { emit shown(); });
}

template <typename Event>
void Desk::act(Event event) {
    try {
        event();
    } catch (const ArithmeticFault& fault) {
        messages_.show(failureMessage("The study cannot be computed", fault.what()));
    } catch (const UseProblem& problem) {
        messages_.show(failureMessage("That is not available", problem.what()));
    } catch (...) {
        messages_.show(failureMessage(failureTitle, failureWords()));
    }
}

void Desk::tool(const std::string& name) {
    act([&] { application_.tool(name); });
}

void Desk::toggleForm(const std::string& name) {
    act([&] { application_.toggleForm(name); });
}

void Desk::click(const std::string& control) {
    act([&] { application_.click(control); });
}

void Desk::type(const std::string& control, const QString& text) {
    act([&] { application_.type(control, text.toStdString()); });
}

void Desk::close(const std::string& window) {
    act([&] { application_.close(window); });
}

void Desk::spin(const std::string& control, int direction, ArrowHold hold, int times) {
    act([&] { application_.spin(control, direction, hold, times); });
}

void Desk::spinReleased() {
    act([&] { application_.spinReleased(); });
}

void Desk::setNumber(const std::string& name, double value) {
    act([&] { application_.setNumber(name, value); });
}

void Desk::openValue(const std::string& field, const std::string& firstText) {
    act([&] { application_.openValue(field, firstText); });
}

void Desk::focus(FieldRef field) {
    act([&] { application_.focus(field); });
}

void Desk::toggleLink(FieldRef field) {
    act([&] { application_.toggleLink(field); });
}

void Desk::enterValue(FieldRef field, double value) {
    act([&] { application_.enterValue(field, value); });
}

void Desk::select(const std::string& grid, const std::vector<std::size_t>& rows) {
    act([&] { application_.select(grid, rows); });
}

void Desk::start(const QString& file) {
    act([&] { application_.start(QFile::encodeName(file).toStdString()); });
}

void Desk::askAndOpen(const QString& path) {
    act([&] { application_.askAndOpen(QFile::encodeName(path).toStdString()); });
}

QString Desk::hintOf(FieldRef field) const { return shownText(fieldHint(session().state(), field)); }

void Desk::suspend() { application_.suspendForms(); }

void Desk::restore() { application_.restoreForms(); }

}  // namespace lorvane::desktop
