// What can be done on the screen, by the names of its controls: buttons, text boxes, arrows, windows to
// close. Faces, scripts and tests act through it; it knows no meaning of any of them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/names.h"
#include "platform/controls.h"

namespace lorvane {

class EventRegistry {
public:
    using Handler = std::function<void()>;

    void onClick(std::string control, Handler handler) {
        enter(clicks_, std::move(control), std::move(handler));
    }
    void onClose(std::string window, Handler handler) {
        enter(closes_, std::move(window), std::move(handler));
    }
    /// A point of a chart: "xPlot.CurrChart(2,15)" is line 2, point 15.
    void onPick(std::string chart, std::function<void(int line, int point)> handler) {
        picks_.insert_or_assign(std::move(chart), std::move(handler));
    }
    /// The arrows of a window's own number; the handler gets 1 for up and -1 for down.
    void onSpin(std::string control, std::function<void(int)> handler) {
        spins_.insert_or_assign(std::move(control), std::move(handler));
    }

    /// A number of a window that can be written, with the limits that it keeps, both inclusive.
    struct Number {
        double low;
        double high;
        std::function<void(double)> write;
    };
    void addNumber(std::string name, Number number) {
        numbers_.insert_or_assign(std::move(name), std::move(number));
    }

    void addTextBox(std::string name, TextBox& box) { textBoxes_.emplace(std::move(name), &box); }

    /// Runs after a text was typed into a box that is not read by a button.
    void onTyped(std::string box, Handler handler) { enter(typed_, std::move(box), std::move(handler)); }
    const Handler* typed(const std::string& box) const { return find(typed_, box); }

    void addGrid(std::string name, Grid& grid) { grids_.emplace(std::move(name), &grid); }

    /// Runs after rows of a table were selected that more than the table itself depends on.
    void onSelect(std::string grid, Handler handler) {
        enter(selections_, std::move(grid), std::move(handler));
    }
    void selected(std::string_view grid) const { run(selections_, grid); }

    /// Each runs the handler of a name; false when there is none.
    bool click(std::string_view control) const { return run(clicks_, control) || pick(control); }
    bool close(std::string_view window) const { return run(closes_, window); }

    /// The arrows and the number of a name; null when there are none.
    const std::function<void(int)>* spin(const std::string& control) const { return find(spins_, control); }
    const Number* number(const std::string& name) const { return find(numbers_, name); }

    /// The text box of a name; null when there is none.
    TextBox* textBox(std::string_view name) const {
        const auto found = textBoxes_.find(std::string(name));
        return found == textBoxes_.end() ? nullptr : found->second;
    }

    /// The table in which rows can be selected; null when there is none of that name.
    Grid* selectableGrid(std::string_view name) const {
        const auto found = grids_.find(std::string(name));
        return found == grids_.end() ? nullptr : found->second;
    }

    /// Runs after every handled event, when all models are right again: faces redraw then.
    void whenShown(Handler handler) { shown_.push_back(std::move(handler)); }
    void announceShown() const {
        for (const Handler& handler : shown_)
            handler();
    }

private:
    using Handlers = std::unordered_map<std::string, Handler>;

    template <typename T>
    static const T* find(const std::unordered_map<std::string, T>& values, const std::string& name) {
        const auto found = values.find(name);
        return found == values.end() ? nullptr : &found->second;
    }
    static void enter(Handlers& handlers, std::string name, Handler handler) {
        handlers.insert_or_assign(std::move(name), std::move(handler));
    }
    static bool run(const Handlers& handlers, std::string_view name) {
        const auto found = handlers.find(std::string(name));
        if (found == handlers.end())
            return false;
        found->second();
        return true;
    }

    bool pick(std::string_view control) const {
        const auto name = splitPairName(control);
        const auto* handler = name ? find(picks_, std::string(name->stem)) : nullptr;
        if (handler == nullptr)
            return false;
        (*handler)(name->first, name->second);
        return true;
    }

    std::unordered_map<std::string, std::function<void(int, int)>> picks_;
    Handlers clicks_;
    Handlers typed_;
    Handlers selections_;
    Handlers closes_;
    std::unordered_map<std::string, std::function<void(int)>> spins_;
    std::unordered_map<std::string, Number> numbers_;
    std::unordered_map<std::string, TextBox*> textBoxes_;
    std::unordered_map<std::string, Grid*> grids_;
    std::vector<Handler> shown_;
};

}  // namespace lorvane
