// The two dialogs of the graph: the range of the X-axis and the values of the series. A refused value stays,
// turns red, and leaves the tables as they were.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "graphs/graph_state.h"
#include "screen/design.h"
#include "screen/dialog.h"

namespace lorvane {

/// "frmXVar".
class AxisDialog {
public:
    /// The state must outlive it; draw draws the graph anew.
    AxisDialog(Design& design, GraphState& state, std::function<void()> draw);

    /// Prepares the dialog for the variable of the X-axis and opens it.
    void open();
    bool isOpen() const;
    void close();

    const Dialog& dialog() const { return dialog_; }
    void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events);

private:
    void Init();
    void SetDisplay(int mode);
    void choose(int mode);
    void accept();
    void acceptByHand();
    bool refusesValues();
    void keep(const XRange& range);

    Design& design_;
    GraphState& state_;
    std::function<void()> draw_;
    Dialog dialog_;
    FieldLimits limits_;
    int decimals_ = 0;
};

/// "frmLVar".
class LineDialog {
public:
    /// The state must outlive it; draw draws the graph anew.
    LineDialog(Design& design, GraphState& state, std::function<void()> draw);

    /// Prepares the dialog for the variable of the series and opens it.
    void open();
    bool isOpen() const;
    void close();

    const Dialog& dialog() const { return dialog_; }
    void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events);

private:
    void Init();
    void setNumLines(int lines);
    void accept();
    void cancel();
    bool refusesValues();
    void keepSorted();

    Design& design_;
    GraphState& state_;
    std::function<void()> draw_;
    Dialog dialog_;
    int NumLines_ = 0;
    int txtvalid_ = 0;
};

}  // namespace lorvane
