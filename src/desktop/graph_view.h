// The graph screen: menus and tool bar, the card with header, chart and footer, the status line.
#pragma once

#include <array>

#include "desktop/panel_view.h"
#include "graphs/graph_texts.h"

class QLabel;
class QLineEdit;
class QScrollArea;
class QVBoxLayout;

namespace lorvane {
class ChartPlot;
}

namespace lorvane::desktop {

class ElidedLabel;
class Menus;

/// "xPlot".
class GraphView final : public PanelView {
    Q_OBJECT

public:
    GraphView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

    /// Its menus, for the guide of the graph.
    Menus& menus() { return *menus_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makePage();
    QWidget* makeCard();
    void addHeader(QVBoxLayout* column);
    void addFooter(QVBoxLayout* column);
    void syncHeader(const ChartContent& chart);
    void syncFooter(const ChartContent& chart);
    void fitFooter();
    void step(Qt::Key key);

    const GraphScreen& model() const;

    Menus* menus_;
    QLabel* header_;
    QLineEdit* secondHeader_;
    ChartPlot* plot_;
    QWidget* line_;
    QScrollArea* footerArea_;
    std::array<QLabel*, footerLines> footer_{};
    ElidedLabel* status_;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
