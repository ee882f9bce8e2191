// Citations stand in braces, which Markdown leaves alone.
#include "manual/source_list.h"

#include <set>
#include <sstream>
#include <string_view>
#include <vector>

#include "manual/manual_problem.h"

namespace lorvane {

namespace {

constexpr std::string_view opening = "{cite ";
constexpr std::string_view list = "{sources}";

std::string trimmed(const std::string& text) {
    constexpr const char* blanks = " \t\r";
    const std::size_t from = text.find_first_not_of(blanks);
    return from == std::string::npos ? "" : text.substr(from, text.find_last_not_of(blanks) - from + 1);
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

// So that no sign of a reference is taken for one of Markdown.
std::string plain(const std::string& text) {
    std::string escaped;
    for (const char sign : text) {
        if (std::string_view("\\`*_[]<>#").find(sign) != std::string_view::npos)
            escaped += '\\';
        escaped += sign;
    }
    return escaped;
}

class Citations {
public:
    Citations(const SourceList& sources, const std::string& file) : sources_(sources), file_(file) {}

    std::string filled(std::string line, int number) {
        for (std::size_t at = 0; (at = line.find(opening, at)) != std::string::npos;) {
            const std::size_t end = line.find('}', at);
            if (end == std::string::npos)
                throw ManualProblem(file_, number, "A citation has no closing brace in its line.");
            const std::string key = trimmed(line.substr(at + opening.size(), end - at - opening.size()));
            const std::string words = plain(sourceOf(key, number).shortForm);
            line.replace(at, end + 1 - at, words);
            at += words.size();
        }
        return line;
    }

    std::string listed() const {
        std::set<std::string> references;
        for (const std::string& key : cited_)
            references.insert(sources_.at(key).full);
        std::string all;
        for (const std::string& reference : references)
            all += "- " + plain(reference).append("\n");
        return all;
    }

    int firstLine() const { return firstLine_; }

private:
    const Source& sourceOf(const std::string& key, int number) {
        const auto found = sources_.find(key);
        if (found == sources_.end())
            throw ManualProblem(file_, number, "The source \"" + key + "\" is not in the list of sources.");
        cited_.insert(key);
        firstLine_ = firstLine_ == 0 ? number : firstLine_;
        return found->second;
    }

    const SourceList& sources_;
    const std::string& file_;
    std::set<std::string> cited_;
    int firstLine_ = 0;
};

}  // namespace

SourceList sourcesOf(const std::string& text, const std::string& file) {
    SourceList sources;
    int number = 0;
    for (const std::string& line : linesOf(text)) {
        ++number;
        if (trimmed(line).empty() || line.front() == '#')
            continue;
        const std::size_t first = line.find('|');
        const std::size_t second = first == std::string::npos ? first : line.find('|', first + 1);
        if (second == std::string::npos)
            throw ManualProblem(file, number, "A source is told as \"key | short form | full reference\".");
        const Source source{trimmed(line.substr(first + 1, second - first - 1)),
                            trimmed(line.substr(second + 1))};
        if (!sources.emplace(trimmed(line.substr(0, first)), source).second)
            throw ManualProblem(file, number, "A source with this key stands above.");
    }
    return sources;
}

std::string withSources(const std::string& markdown, const SourceList& sources, const std::string& file) {
    Citations citations(sources, file);
    std::vector<std::string> lines = linesOf(markdown);
    std::string* place = nullptr;
    int number = 0;
    for (std::string& line : lines) {
        line = citations.filled(line, ++number);
        if (trimmed(line) == list)
            place = &line;
    }
    if (place)
        *place = citations.listed();
    else if (citations.firstLine() > 0)
        throw ManualProblem(file, citations.firstLine(),
                            "Sources are cited, but no line {sources} lists them.");
    std::string all;
    for (const std::string& line : lines)
        all.append(line).append("\n");
    return all;
}

}  // namespace lorvane
