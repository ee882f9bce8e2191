// The form of the tables of commands and menus.
#include "app/command_table.h"

#include <utility>

namespace lorvane {

namespace {

BandEntry entryOf(const std::string& key) {
    if (key == "-")
        return {BandEntry::Kind::line, ""};
    if (key == ">")
        return {BandEntry::Kind::stretch, ""};
    if (key[0] == '+')
        return {BandEntry::Kind::band, key.substr(1)};
    return {BandEntry::Kind::tool, key};
}

}  // namespace

std::string plainCaption(std::string name) {
    for (std::size_t at = name.find('&'); at != std::string::npos; at = name.find('&', at + 2))
        name.insert(at, 1, '&');
    return name;
}

Tool toolOf(std::string key, std::string caption, const char* tip, ToolCategory category,
            const Looks& looks) {
    return {std::move(key),  std::move(caption), tip,        category,
            looks.sign,      looks.withWord,     looks.word, looks.shortcut,
            looks.keyOfCell, looks.opensDialog};
}

void addCommands(std::vector<Command>& commands, const Program& program, std::span<const CommandRow> rows) {
    for (const CommandRow& row : rows) {
        Command command{toolOf(row.key, row.caption, row.tip, row.category, row.looks), {}, {}};
        if (row.run != nullptr)
            command.run = [program, run = row.run] { run(program); };
        if (row.state != nullptr)
            command.state = [program, state = row.state] { return state(program); };
        commands.push_back(std::move(command));
    }
}

Band bandOf(const MenuRow& row) {
    Band band{row.name, row.caption, row.kind, {}};
    for (const std::string& key : row.keys)
        band.entries.push_back(entryOf(key));
    return band;
}

}  // namespace lorvane
