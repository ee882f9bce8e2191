// Reading the texts of the guide.
#include "guidance/guide_reader.h"

#include <optional>
#include <stdexcept>

#include "base/number_text.h"
#include "guidance/guide_texts.h"

namespace lorvane {

namespace {

constexpr std::string_view eachMark = "each ";

struct Line {
    std::string_view text;
    int number;
};

[[noreturn]] void refuse(const Line& line, const std::string& why) {
    throw std::logic_error("Line " + std::to_string(line.number) + " of a text of the guide, \"" +
                           std::string(line.text) + "\": " + why);
}

std::string_view upTo(std::string_view text, char mark) { return text.substr(0, text.find(mark)); }

std::string_view after(std::string_view text, char mark) {
    const std::size_t at = text.find(mark);
    return at == std::string_view::npos ? std::string_view() : text.substr(at + 1);
}

// Collects lines into frames.
class Reader {
public:
    explicit Reader(GuideEntries& entries) : entries_(entries) {}

    void read(const Line& line) {
        if (line.text.starts_with('#'))
            return;
        if (line.text.empty())
            endParagraph();
        else if (line.text.starts_with("frame "))
            beginFrame(line);
        else if (entry_ == nullptr)
            refuse(line, "it stands before the first frame.");
        else if (!inText_)
            readKey(line);
        else
            readText(line);
    }

    void end() {
        endParagraph();
        entry_ = nullptr;
    }

private:
    void beginFrame(const Line& line) {
        end();
        const auto number = readNumber(after(line.text, ' '));
        if (!number)
            refuse(line, "a frame has a number.");
        const auto [place, isNew] = entries_.try_emplace(static_cast<int>(*number));
        if (!isNew)
            refuse(line, "this frame is there twice.");
        entry_ = &place->second;
        inText_ = false;
    }

    void readKey(const Line& line) {
        const std::string_view key = upTo(line.text, ' ');
        const std::string value(after(line.text, ' '));
        if (key == "title")
            entry_->title = value;
        else if (key == "at")
            entry_->at = value;
        else if (key == "menu")
            entry_->menu = value;
        else
            refuse(line, "there are the keys title, at and menu.");
    }

    // A line with a mark begins another piece of the paragraph.
    void readText(const Line& line) {
        std::string_view text = line.text;
        if (text.starts_with('[')) {
            endPiece();
            readMark(upTo(text.substr(1), ']'));
            text = trimmed(after(text, ']'));
        }
        if (!text.empty())
            text_.append(text_.empty() ? "" : " ").append(text);
    }

    void readMark(std::string_view mark) {
        while (!trimmed(mark).empty()) {
            const std::string_view word = trimmed(upTo(mark, ','));
            if (word.starts_with(eachMark))
                piece_.levels = std::string(word.substr(eachMark.size()));
            else
                piece_.conditions.emplace_back(word);
            mark = after(mark, ',');
        }
    }

    void endPiece() {
        if (!text_.empty()) {
            piece_.text = markedText(text_);
            paragraph_.push_back(std::move(piece_));
        }
        piece_ = {};
        text_.clear();
    }

    // The empty line after the keys begins the text.
    void endParagraph() {
        endPiece();
        if (!paragraph_.empty())
            entry_->paragraphs.push_back(std::move(paragraph_));
        paragraph_.clear();
        inText_ = true;
    }

    GuideEntries& entries_;
    GuideEntry* entry_ = nullptr;
    bool inText_ = false;
    GuideParagraph paragraph_;
    GuidePiece piece_;
    std::string text_;
};

template <typename Read>
void forEachLine(std::string_view text, Read read) {
    for (int number = 1; !text.empty(); ++number) {
        read(Line{trimmed(upTo(text, '\n')), number});
        text = after(text, '\n');
    }
}

std::map<std::string, std::string, std::less<>> readSources() {
    std::map<std::string, std::string, std::less<>> sources;
    forEachLine(guideSources(), [&](const Line& line) {
        if (line.text.empty() || line.text.starts_with('#'))
            return;
        const std::string_view rest = after(line.text, '|');
        sources.emplace(trimmed(upTo(line.text, '|')), trimmed(upTo(rest, '|')));
    });
    return sources;
}

}  // namespace

void readGuide(std::string_view text, GuideEntries& entries) {
    Reader reader(entries);
    forEachLine(text, [&](const Line& line) { reader.read(line); });
    reader.end();
}

std::string shortSource(std::string_view key) {
    static const auto sources = readSources();
    const auto found = sources.find(key);
    if (found == sources.end())
        throw std::logic_error("No source has the key \"" + std::string(key) + "\".");
    return found->second;
}

}  // namespace lorvane
