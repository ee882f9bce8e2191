// The names under which scripts see the two dispersion panels.
#include <utility>

#include "base/names.h"
#include "screen/dispersion_panels.h"

namespace lorvane {

namespace {

void registerPicture(ControlRegistry& registry, const std::string& window, const Schematic& picture) {
    registry.add(window + "pnlSchematic", picture.pnlSchematic);
    registry.add(window + "pnlFooter", picture.pnlFooter);
    registry.add(window + "pnlNote", picture.pnlNote);
    registry.add(window + "pnlVal", picture.pnlVal);
    registry.add(window + "Scale.Low", &picture.low);
    registry.add(window + "Scale.High", &picture.high);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const std::string name = indexedName(window + "bar", level);
        registry.add(name + ".Visible", &picture.bars(level).Visible);
        registry.add(name + ".Low", &picture.bars(level).low);
        registry.add(name + ".High", &picture.bars(level).high);
    }
}

using NamedPanel = std::pair<const char*, const Panel*>;

void registerPanels(ControlRegistry& registry, const std::string& window,
                    std::initializer_list<NamedPanel> panels) {
    for (const auto& [name, panel] : panels)
        registry.add(window + name, *panel);
}

template <typename Cells>
void registerColumn(ControlRegistry& registry, const std::string& column, const Cells& cells) {
    for (int level = lowestLevel; level <= highestLevel; ++level)
        registry.add(indexedName(column, level), cells(level));
}

void registerArrows(ControlRegistry& registry, const std::string& arrows, const PerLevel<Cell>& cells) {
    for (int level = lowestLevel; level <= highestLevel; ++level)
        registry.add(indexedName(arrows, level) + ".Visible", &cells(level).spinVisible);
}

}  // namespace

void IccPanel::registerNames(ControlRegistry& registry) const {
    const std::string window = "frmDisplayICC.";
    registry.add("frmDisplayICC.Caption", &pnlTitle.Caption);
    registerPanels(registry, window,
                   {{"lblUnit", &lblUnit},
                    {"lblIcc", &lblIcc},
                    {"lblSpan", &lblSpan},
                    {"lblRange", &lblRange},
                    {"pnlMsgOuter", &pnlMsgOuter},
                    {"pnlMsgInner", &pnlMsgInner}});
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        registry.add(indexedName(window + "txtICC", level), &txtICC(level));
        registry.add(indexedName(window + "txtSpan", level), &txtSpan(level));
    }
    registerColumn(registry, window + "pnlUnit", pnlUnit);
    registerColumn(registry, window + "pnlICC", pnlICC);
    registerColumn(registry, window + "pnlWidth", pnlWidth);
    registerColumn(registry, window + "pnlExample", pnlExample);
    registerArrows(registry, window + "spnIcc", pnlICC);
    registerArrows(registry, window + "spnMRange", pnlWidth);
    registerPicture(registry, window, picture);
    registry.add(window + "cmdDelta", cmdDelta);
    registry.add(window + "cmdOptions", cmdOptions);
    registry.add(window + "Command1", Command1);
}

void TauSqPanel::registerNames(ControlRegistry& registry) const {
    const std::string window = "frmDisplayTauSq.";
    registry.add("frmDisplayTauSq.Caption", &pnlTitle.Caption);
    registerPanels(registry, window,
                   {{"lblUnit", &lblUnit},
                    {"lblTauSq", &lblTauSq},
                    {"lblSpan", &lblSpan},
                    {"lblOmega", &lblOmega},
                    {"lblRange", &lblRange},
                    {"pnlMsgOuter", &pnlMsgOuter},
                    {"pnlMsgInner", &pnlMsgInner}});
    registerColumn(registry, window + "pnlUnit", pnlUnit);
    registerColumn(registry, window + "pnlTauSq", pnlTauSq);
    registerColumn(registry, window + "pnlWidth", pnlWidth);
    registerColumn(registry, window + "pnlOmega", pnlOmega);
    registerColumn(registry, window + "pnlExample", pnlExample);
    registerArrows(registry, window + "spnTauSq", pnlTauSq);
    registerArrows(registry, window + "spnDRange", pnlWidth);
    registerArrows(registry, window + "spnOmega", pnlOmega);
    registerPicture(registry, window, picture);
}

}  // namespace lorvane
