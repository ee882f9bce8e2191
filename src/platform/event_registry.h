// What can be done on the screen, by the names of its controls: tools, buttons, text boxes, arrows, windows
// to close. Faces, scripts and tests act through it; it knows no meaning of any of them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/controls.h"

namespace lorvane {

class EventRegistry {
public:
    using Handler = std::function<void()>;

    void onTool(std::string name, Handler handler) { enter(tools_, std::move(name), std::move(handler)); }
    void onClick(std::string control, Handler handler) {
        enter(clicks_, std::move(control), std::move(handler));
    }
    void onClose(std::string window, Handler handler) {
        enter(closes_, std::move(window), std::move(handler));
    }
    void addTextBox(std::string name, TextBox& box) { textBoxes_.emplace(std::move(name), &box); }

    void addGrid(std::string name, Grid& grid) { grids_.emplace(std::move(name), &grid); }

    /// Each runs the handler of a name; false when there is none.
    bool tool(std::string_view name) const { return run(tools_, name); }
    bool click(std::string_view control) const { return run(clicks_, control); }
    bool close(std::string_view window) const { return run(closes_, window); }

    bool knowsTool(std::string_view name) const { return tools_.contains(std::string(name)); }

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

    Handlers tools_;
    Handlers clicks_;
    Handlers closes_;
    std::unordered_map<std::string, TextBox*> textBoxes_;
    std::unordered_map<std::string, Grid*> grids_;
    std::vector<Handler> shown_;
};

}  // namespace lorvane
