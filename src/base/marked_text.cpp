// Reading marks, and leaving them out.
#include "base/marked_text.h"

namespace lorvane {

namespace {

constexpr std::string_view mark = "**";

void add(Paragraph& paragraph, std::string_view text, bool strong) {
    if (!text.empty())
        paragraph.push_back({std::string(text), strong});
}

}  // namespace

Paragraph markedText(std::string_view text) {
    Paragraph paragraph;
    while (!text.empty()) {
        const std::size_t begin = text.find(mark);
        const std::size_t end = begin == text.npos ? text.npos : text.find(mark, begin + mark.size());
        if (end == text.npos)
            break;
        add(paragraph, text.substr(0, begin), false);
        add(paragraph, text.substr(begin + mark.size(), end - begin - mark.size()), true);
        text.remove_prefix(end + mark.size());
    }
    add(paragraph, text, false);
    return paragraph;
}

std::string plainText(const Paragraph& paragraph) {
    std::string text;
    for (const Run& run : paragraph)
        text += run.text;
    return text;
}

std::string plainText(const std::vector<Paragraph>& paragraphs) {
    std::string text;
    for (const Paragraph& paragraph : paragraphs)
        text += (text.empty() ? "" : "\n\n") + plainText(paragraph);
    return text;
}

}  // namespace lorvane
