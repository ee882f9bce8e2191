// The literature that manuals cite, and the places in a text that cite it.
#pragma once

#include <map>
#include <string>

namespace lorvane {

struct Source {
    std::string shortForm;  ///< "Adams et al. 2004"
    std::string full;
};

/// By their keys, as "adams2004".
using SourceList = std::map<std::string, Source>;

/// The list that a file holds: "key | short form | full reference", a line a source; empty lines and lines
/// that begin with "#" are left out. Throws ManualProblem, which names the file.
SourceList sourcesOf(const std::string& text, const std::string& file);

/// The Markdown with every "{cite key}" as the short form of its source, and the line "{sources}" as the list
/// of those that are cited, sorted. Lines keep their numbers up to that list. Throws ManualProblem where a
/// source is unknown, or where some are cited and none are listed.
std::string withSources(const std::string& markdown, const SourceList& sources, const std::string& file);

}  // namespace lorvane
