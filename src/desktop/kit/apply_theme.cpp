// Puts the theme on the application and keeps it in step with the system. Knows no widget.
#include <utility>

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QPointer>

#include "desktop/kit/kit_style.h"
#include "desktop/kit/style_sheet.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

/// Watches the application for changes of the system's palette and applies the theme again.
class ThemeKeeper : public QObject {
public:
    explicit ThemeKeeper(QApplication& application) : QObject(&application), application_(application) {
        setInterfaceFamily(application.font().family());
        QApplication::setStyle(new KitStyle);
        system_ = QApplication::palette();
        application.installEventFilter(this);
        apply();
    }

    void setDark(std::optional<bool> dark) {
        dark_ = dark;
        apply();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool theme = event->type() == QEvent::ThemeChange;
        const bool palette = event->type() == QEvent::ApplicationPaletteChange && watched == &application_;
        if (!applying_ && (theme || palette))
            lookLater(theme);
        return false;
    }

private:
    /// The application's own palette hides the system's, so it is taken off for the look.
    void readSystem() {
        QApplication::setPalette(QPalette());
        system_ = QApplication::palette();
    }

    /// One change of the system sends many events; one look follows them all.
    void lookLater(bool themeChanged) {
        themeChanged_ = themeChanged_ || themeChanged;
        if (std::exchange(pending_, true))
            return;
        QMetaObject::invokeMethod(this, &ThemeKeeper::look, Qt::QueuedConnection);
    }

    void look() {
        pending_ = false;
        applying_ = true;
        if (std::exchange(themeChanged_, false))
            readSystem();
        else
            system_ = QApplication::palette();
        apply();
    }

    void apply() {
        applying_ = true;
        const Theme theme = dark_ ? Theme::fixed(*dark_) : Theme::forSystem(system_);
        Theme::use(theme);
        QApplication::setFont(textFont(TextStyle::Body));
        QApplication::setPalette(theme.isHighContrast() ? system_ : theme.palette());
        application_.setStyleSheet(theme.isHighContrast() ? QString() : styleSheet(theme));
        applying_ = false;
    }

    QApplication& application_;
    QPalette system_;
    std::optional<bool> dark_;
    bool applying_ = false;
    bool pending_ = false;
    bool themeChanged_ = false;
};

QPointer<ThemeKeeper>& keeper() {
    static QPointer<ThemeKeeper> instance;
    return instance;
}

}  // namespace

void applyTheme(QApplication& application) {
    if (!keeper())
        keeper() = new ThemeKeeper(application);
}

void setDark(std::optional<bool> dark) {
    if (keeper())
        keeper()->setDark(dark);
}

}  // namespace lorvane::desktop
