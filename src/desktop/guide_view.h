// The windows of the two guides: through a study, and through the graph.
#pragma once

#include <string>
#include <vector>

#include "desktop/kit/icons.h"
#include "desktop/panel_view.h"

class QButtonGroup;
class QRadioButton;

namespace lorvane::desktop {

class GuideSheet;
class Menus;
class PushButton;

/// What both have: the sheet, Back and Next, and a button that opens the menu which the frame speaks of. Alt
/// with an arrow to the side moves, too.
class GuideBase : public PanelView {
    Q_OBJECT

protected:
    GuideBase(Desk& desk, ToolPanel* panel, const std::string& name, Menus& menus);

    GuideSheet* sheet() const { return sheet_; }

    /// A button that presses a control of the program; its model tells how it stands.
    void addTool(Icon sign, const std::string& control, const Button& model);
    PushButton* addStep(Icon sign, const std::string& control, const Button& model, bool primary = false,
                        bool signIsLast = false);
    void addMenuButton(const std::string& control, const Button& model);
    void addKeys(const std::string& back, const std::string& next);
    void syncButtons();

    /// The menu that the frame speaks of.
    virtual std::string menu() const = 0;

private:
    struct Row {
        PushButton* button;
        const Button* model;
    };
    void listen(PushButton* button, const std::string& control, const Button& model);
    void move(const std::string& control);

    GuideSheet* sheet_;
    Menus& menus_;
    std::vector<Row> buttons_;
};

/// "frmTips": the guide through a study.
class GuideView final : public GuideBase {
    Q_OBJECT

public:
    GuideView(Desk& desk, ToolPanel* panel, Menus& menus);

    bool isOpen() const override;
    void sync() override;

private:
    struct Choice {
        QRadioButton* button;
        const Option* model;
    };
    void addSections();
    void addChoices();
    QButtonGroup* addChoices(const std::vector<std::pair<std::string, const Option*>>& options);
    void showSections(QWidget* below);
    std::string menu() const override;

    std::vector<Choice> choices_;
};

/// "frmTipsGraph": the guide through the graph, whose menus it opens.
class GraphGuideView final : public GuideBase {
    Q_OBJECT

public:
    GraphGuideView(Desk& desk, ToolPanel* panel, Menus& graphMenus, const QWidget& graph);

    bool isOpen() const override;
    void sync() override;

private:
    std::string menu() const override;
    void standBeside();

    const QWidget& graph_;
};

}  // namespace lorvane::desktop
