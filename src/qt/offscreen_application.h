// Qt for programs without windows: drawing needs an application, and a command line has none.
#pragma once

#include <memory>

class QApplication;

namespace lorvane {

class OffscreenApplication {
public:
    OffscreenApplication();
    ~OffscreenApplication();

    /// Makes an application that needs no display, unless the program has one. The locale stays as it is.
    void ensure();

    /// Whether the program has an application that was not made here, and so may show windows.
    static bool hasWindows();

private:
    std::unique_ptr<QApplication> own_;
};

}  // namespace lorvane
