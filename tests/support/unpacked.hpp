#pragma once

#include <zlib.h>

#include <cstdint>
#include <string>

// Archives as the description of their format has them: the end record is 22 bytes long, an entry
// of the directory 46 and the head of a file 30, each followed by the name.

namespace korven::test {

inline constexpr std::size_t endLength = 22, entryLength = 46, headLength = 30;

/// A number of `length` bytes, the low one first.
inline std::uint32_t number(const std::string& bytes, std::size_t at, int length) {
    std::uint32_t value = 0;
    for (int i = length; i > 0; --i)
        value =
            value << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i) - 1]);
    return value;
}

/// What a deflated file holds; empty if it is broken or of another length.
inline std::string inflated(std::string packed, std::size_t length) {
    std::string plain(length, '\0');
    z_stream stream{};
    stream.next_in = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef*>(plain.data());
    stream.avail_out = static_cast<uInt>(length);
    constexpr int withoutHead = -MAX_WBITS;
    if (inflateInit2(&stream, withoutHead) != Z_OK) return {};
    const bool whole = inflate(&stream, Z_FINISH) == Z_STREAM_END && stream.avail_out == 0;
    inflateEnd(&stream);
    return whole ? plain : std::string();
}

/// The content of the file whose entry in the directory begins at `entry`.
inline std::string contentOf(const std::string& archive, std::size_t entry) {
    const std::size_t head = number(archive, entry + 42, 4);
    const std::size_t start = head + headLength + number(archive, head + 26, 2);
    const std::string packed = archive.substr(start, number(archive, entry + 20, 4));
    const std::size_t length = number(archive, entry + 24, 4);
    return number(archive, entry + 10, 2) == 0 ? packed : inflated(packed, length);
}

/// The content of a file of an archive; empty if there is none of that name.
inline std::string unpacked(const std::string& archive, const std::string& name) {
    if (archive.size() < endLength) return {};
    const std::size_t end = archive.size() - endLength;
    for (std::size_t at = number(archive, end + 16, 4); at < end;) {
        const std::size_t nameLength = number(archive, at + 28, 2);
        if (archive.substr(at + entryLength, nameLength) == name) return contentOf(archive, at);
        at += entryLength + nameLength;
    }
    return {};
}

}  // namespace korven::test
