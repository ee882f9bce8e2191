// Display model of the study screen.
#include "screen/main_screen.h"

#include <utility>

#include "engine/study.h"

namespace lorvane {

namespace {

void displayMode(Panel& digits, Panel& graph, int mode) {
    digits.Visible = mode == DisplayModes::digits;
    graph.Visible = mode == DisplayModes::graph;
}

}  // namespace

void MainScreen::OutlineProblem(int number, const Colour& colour, std::string from, std::string to) {
    outlines(number) = {true, colour, std::move(from), std::move(to)};
}

void DisplayPowerMode(MainScreen& screen, int Powermode) {
    displayMode(screen.pnlPower, screen.pnlPowerOuter, Powermode);
}

void DisplayCostMode(MainScreen& screen, int Costmode) {
    displayMode(screen.pnlCost, screen.pnlCostOuter, Costmode);
}

}  // namespace lorvane
