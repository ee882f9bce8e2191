// Bytes with the lowest one of a number first, as the older files of spreadsheets have them.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lorvane {

/// Numbers and texts one behind another. A number is cut to the bits that it is written with.
class LittleEndian {
public:
    LittleEndian& byte(std::uint64_t value) { return bits(value, 1); }
    LittleEndian& word(std::uint64_t value) { return bits(value, 2); }
    LittleEndian& dword(std::uint64_t value) { return bits(value, 4); }
    LittleEndian& real(double value) { return bits(std::bit_cast<std::uint64_t>(value), 8); }

    LittleEndian& text(std::u16string_view letters) {
        for (const char16_t letter : letters)
            word(letter);
        return *this;
    }

    LittleEndian& raw(std::string_view bytes) {
        bytes_ += bytes;
        return *this;
    }

    /// Fills up with a byte to a size; what is longer stays as it is.
    LittleEndian& padTo(std::size_t size, char filler = '\0') {
        if (bytes_.size() < size)
            bytes_.resize(size, filler);
        return *this;
    }

    /// Writes over the four bytes at a position.
    void overwrite(std::size_t position, std::uint64_t value) {
        bytes_.replace(position, 4, LittleEndian().dword(value).bytes());
    }

    std::size_t size() const { return bytes_.size(); }
    const std::string& bytes() const { return bytes_; }

private:
    LittleEndian& bits(std::uint64_t value, int count) {
        for (int i = 0; i < count; ++i)
            bytes_ += static_cast<char>(value >> 8 * i & 0xFF);
        return *this;
    }

    std::string bytes_;
};

}  // namespace lorvane
