// Finding text in a document.
#include "reporting/document_search.h"

#include <algorithm>
#include <string_view>

#include "base/letter_case.h"
#include "base/utf8.h"

namespace lorvane {

namespace {

// The letters of a text in small ones, each with its place.
struct Letter {
    std::string small;
    std::size_t from;
};

std::vector<Letter> lettersOf(std::string_view text) {
    std::vector<Letter> letters;
    std::size_t from = 0;
    while (from < text.size()) {
        const std::size_t length = std::max<std::size_t>(letterLength(text.substr(from)), 1);
        letters.push_back({lowerCased(text.substr(from, length)), from});
        from += length;
    }
    return letters;
}

class Search {
public:
    explicit Search(const std::string& text) : wanted_(lettersOf(text)) {}

    void in(const std::string& text, const TextPlace& place) {
        if (wanted_.empty())
            return;
        const std::vector<Letter> letters = lettersOf(text);
        const auto same = [](const Letter& a, const Letter& b) { return a.small == b.small; };
        auto from = letters.begin();
        for (;;) {
            from = std::search(from, letters.end(), wanted_.begin(), wanted_.end(), same);
            if (from == letters.end())
                return;
            TextPlace& found = found_.emplace_back(place);
            found.from = from->from;
            from += static_cast<std::ptrdiff_t>(wanted_.size());
            found.length = (from == letters.end() ? text.size() : from->from) - found.from;
        }
    }

    std::vector<TextPlace> found() { return std::move(found_); }

private:
    std::vector<Letter> wanted_;
    std::vector<TextPlace> found_;
};

void searchTable(Search& search, const DocumentTable& table, std::size_t step) {
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        for (std::size_t column = 0; column < table.rows[row].size(); ++column)
            search.in(table.rows[row][column].text, {step, row, column});
    }
}

}  // namespace

std::vector<TextPlace> placesOf(const std::string& text, const Document& document) {
    Search search(text);
    for (std::size_t i = 0; i < document.steps.size(); ++i) {
        if (const auto* paragraph = std::get_if<step::Paragraph>(&document.steps[i]))
            search.in(paragraph->text, {i});
        if (const auto* table = std::get_if<DocumentTable>(&document.steps[i]))
            searchTable(search, *table, i);
    }
    return search.found();
}

}  // namespace lorvane
