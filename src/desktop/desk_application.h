// The outermost net of the desktop: what no other handler took is told, and the program goes on.
#pragma once

#include <functional>
#include <string>

#include <QApplication>
#include <QElapsedTimer>

namespace lorvane::desktop {

class DeskApplication final : public QApplication {
    Q_OBJECT

public:
    using QApplication::QApplication;

    /// How a failure is told: one sentence, when the event that failed is over. The same sentence is not told
    /// again at once, since a window may fail with each of its paintings.
    void whenFailed(std::function<void(const std::string&)> tell) { tell_ = std::move(tell); }

    /// Delivers an event. An event that throws is given up.
    bool notify(QObject* receiver, QEvent* event) override;

private:
    void tellLater(const std::string& words);

    std::function<void(const std::string&)> tell_ = [](const std::string&) {};
    std::string told_;
    QElapsedTimer sinceTold_;
    bool telling_ = false;
};

}  // namespace lorvane::desktop
