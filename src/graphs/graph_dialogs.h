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

/// What both dialogs are: a window with boxes of numbers, which draws the graph anew when it is accepted.
class GraphDialog {
public:
    bool isOpen() const;
    void close();

    const Dialog& dialog() const { return dialog_; }
    virtual void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events);

protected:
    /// The state must outlive it; draw draws the graph anew.
    GraphDialog(Design& design, GraphState& state, std::function<void()> draw);
    virtual ~GraphDialog() = default;

    virtual void Init() = 0;
    virtual void accept() = 0;
    virtual void cancel() = 0;

    void openDialog();
    void addButtons();
    void tell(std::string text);
    void tellRefused(std::string why);
    void clearMarks();

    Design& design_;
    GraphState& state_;
    std::function<void()> draw_;
    Dialog dialog_;
};

/// "frmXVar".
class AxisDialog final : public GraphDialog {
public:
    AxisDialog(Design& design, GraphState& state, std::function<void()> draw);

    /// Prepares the dialog for the variable of the X-axis and opens it.
    void open() { openDialog(); }

private:
    void Init() override;
    void accept() override;
    void cancel() override { close(); }
    void SetDisplay(int mode);
    void choose(int mode);
    void acceptByHand();
    bool refusesValues();
    void keep(const XRange& range);

    FieldLimits limits_;
    int decimals_ = 0;
};

/// "frmLVar".
class LineDialog final : public GraphDialog {
public:
    LineDialog(Design& design, GraphState& state, std::function<void()> draw);

    /// Prepares the dialog for the variable of the series and opens it.
    void open() { openDialog(); }
    void registerNames(ControlRegistry& registry) const override;

private:
    void Init() override;
    void accept() override;
    void cancel() override;
    void setNumLines(int lines);
    bool refusesValues();
    void keepSorted();

    int NumLines_ = 0;
    int txtvalid_ = 0;
};

}  // namespace lorvane
