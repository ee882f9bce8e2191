// A floating window of the main window. Whether it closes is for its owner to say; it knows no content.
#pragma once

#include <optional>

#include <QPoint>
#include <QWidget>

class QVBoxLayout;

namespace lorvane::desktop {

/// Stays above the main window, and is hidden at first. The owner shows and hides it.
class ToolPanel : public QWidget {
    Q_OBJECT

public:
    /// Who decides the size of the window.
    enum class Sizing {
        ToContent,  ///< always as large as its content
        Free,       ///< the user may resize it
    };

    /// A panel of a window, the owner, which deletes it.
    explicit ToolPanel(const QString& title, QWidget* owner, Sizing sizing = Sizing::ToContent);

    /// The column that takes the content, with 22 pixels of room around it.
    QVBoxLayout* content() const { return content_; }

    /// Makes it a part of a dock instead of a window: no size of its own, and so much room around its
    /// content where it had the usual one.
    void standInDock(const QMargins& padding);

    /// The top left corner of the frame on the screen when it was last hidden or placed; nothing before the
    /// first time.
    std::optional<QPoint> place() const { return place_; }

    /// The place it takes now, or when it is shown next.
    void setPlace(const QPoint& place);

signals:
    /// The user asks to close the window by its frame. It stays open until the owner hides it.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QVBoxLayout* content_;
    std::optional<QPoint> place_;
};

}  // namespace lorvane::desktop
