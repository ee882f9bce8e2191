// Writing the shared texts. A text that does not fit into its record goes on in a CONTINUE, whose first byte
// tells again how wide its letters are.
#include "sheets/shared_strings.h"

#include <algorithm>
#include <string_view>

#include "sheets/utf16.h"

namespace lorvane {

namespace {

// What stands before the letters of a text must not be parted, and at least one letter stays with it.
constexpr std::size_t smallestPart = 2 + 1 + 2;
// EXTSST tells where every so many texts begin.
constexpr std::size_t smallestBucket = 8;
constexpr std::size_t mostBuckets = 128;

std::size_t bucketSize(std::size_t texts) { return std::max(smallestBucket, texts / mostBuckets + 1); }

class SstWriter {
public:
    SstWriter(RecordStream& stream, std::size_t cells, std::size_t texts) : stream_(stream) {
        body_.dword(cells).dword(texts);
        places_.word(bucketSize(texts));
    }

    void add(std::u16string_view text, bool startsBucket) {
        if (room() < smallestPart)
            endRecord();
        if (startsBucket)
            notePlace();
        body_.word(text.size()).byte(wideLetters);
        addLetters(text);
    }

    void end() {
        endRecord();
        stream_.add(RecordId::extSst, places_);
    }

private:
    std::size_t room() const { return RecordStream::largestBody - body_.size(); }

    void addLetters(std::u16string_view letters) {
        while (true) {
            const std::u16string_view part = letters.substr(0, room() / 2);
            body_.text(part);
            letters.remove_prefix(part.size());
            if (letters.empty())
                return;
            endRecord();
            body_.byte(wideLetters);
        }
    }

    void notePlace() {
        const std::size_t offset = RecordStream::headerSize + body_.size();
        places_.dword(stream_.position() + offset).word(offset).word(0);
    }

    void endRecord() {
        stream_.add(id_, body_);
        id_ = RecordId::continued;
        body_ = LittleEndian();
    }

    RecordStream& stream_;
    RecordId id_ = RecordId::sst;
    LittleEndian body_;
    LittleEndian places_;
};

}  // namespace

void SharedStrings::add(const std::string& text) {
    ++cells_;
    if (numbers_.try_emplace(text, texts_.size()).second)
        texts_.push_back(utf16(text));
}

void SharedStrings::write(RecordStream& stream) const {
    SstWriter writer(stream, cells_, texts_.size());
    for (std::size_t i = 0; i < texts_.size(); ++i)
        writer.add(texts_[i], i % bucketSize(texts_.size()) == 0);
    writer.end();
}

}  // namespace lorvane
