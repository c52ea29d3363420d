#include "outdoc/zip_archive.hpp"

#include <array>
#include <limits>

#include "base/table.hpp"

namespace korven::outdoc {

namespace {

constexpr std::uint32_t localSignature = 0x04034B50;
constexpr std::uint32_t directorySignature = 0x02014B50;
constexpr std::uint32_t endSignature = 0x06054B50;
constexpr int version = 20;  // 2.0, the least that every program reads
constexpr int firstDay = (1 << 5) | 1;
constexpr std::size_t headLength = 30;  // of a file, in front of its name

// Numbers stand low byte first.
void put(std::string& bytes, std::uint32_t value, int length) {
    for (; length > 0; --length, value >>= 8) bytes += static_cast<char>(value & 0xFF);
}

void put16(std::string& bytes, std::size_t value) {
    put(bytes, static_cast<std::uint32_t>(value), 2);
}

void put32(std::string& bytes, std::size_t value) {
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    if (value > most) throw base::ErroreIndice(std::numeric_limits<std::int32_t>::max(), most);
    put(bytes, static_cast<std::uint32_t>(value), 4);
}

// What the head of a file and its entry in the directory have in common.
std::string description(const ZipEntry& entry) {
    std::string bytes;
    put16(bytes, version);
    put16(bytes, 0);  // no flags
    put16(bytes, 0);  // stored
    put16(bytes, 0);  // midnight
    put16(bytes, firstDay);
    put(bytes, crc32(entry.content), 4);
    put32(bytes, entry.content.size());  // as stored
    put32(bytes, entry.content.size());  // as it is
    put16(bytes, entry.name.size());
    put16(bytes, 0);  // no extra field
    return bytes;
}

}  // namespace

std::uint32_t crc32(std::string_view bytes) {
    static const auto table = [] {
        constexpr std::uint32_t polynomial = 0xEDB88320;
        std::array<std::uint32_t, 256> made{};
        for (std::uint32_t i = 0; i < made.size(); ++i) {
            std::uint32_t c = i;
            for (int bit = 0; bit < 8; ++bit) c = (c & 1) != 0 ? polynomial ^ (c >> 1) : c >> 1;
            made[i] = c;
        }
        return made;
    }();
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes)
        sum = table[(sum ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (sum >> 8);
    return ~sum;
}

std::optional<std::size_t> storedEntryBefore(std::string_view archive, std::size_t at) {
    constexpr std::size_t sum = 14, packed = 18, plain = 22, name = 26;
    const std::size_t start = archive.rfind("PK\x03\x04", at);
    if (start == std::string_view::npos || archive.size() - start < headLength) return std::nullopt;
    const auto number = [&](std::size_t offset, int length) {
        std::uint32_t value = 0;
        for (int i = length; i-- > 0;)
            value = value << 8 | static_cast<unsigned char>(
                                     archive[start + offset + static_cast<std::size_t>(i)]);
        return value;
    };
    const std::size_t first = start + headLength + number(name, 2), length = number(plain, 4);
    if (first > at || at - first >= length || archive.size() - first < length ||
        number(packed, 4) != length || number(sum, 4) != crc32(archive.substr(first, length)))
        return std::nullopt;
    return start;
}

std::string zipFiles(const std::vector<ZipEntry>& entries) {
    std::string files;
    for (const ZipEntry& entry : entries) {
        put32(files, localSignature);
        files.append(description(entry)).append(entry.name).append(entry.content);
    }
    return files;
}

std::string zipArchive(const std::vector<ZipEntry>& entries) {
    std::string archive = zipFiles(entries), directory;
    std::size_t at = 0;
    for (const ZipEntry& entry : entries) {
        put32(directory, directorySignature);
        put16(directory, version);
        directory += description(entry);
        put16(directory, 0);   // no comment
        put16(directory, 0);   // the one disk
        put16(directory, 0);   // internal attributes
        put(directory, 0, 4);  // external attributes
        put32(directory, at);
        directory += entry.name;
        at += headLength + entry.name.size() + entry.content.size();
    }
    const std::size_t start = archive.size();
    archive += directory;
    put32(archive, endSignature);
    put16(archive, 0);  // the one disk
    put16(archive, 0);
    put16(archive, entries.size());
    put16(archive, entries.size());
    put32(archive, directory.size());
    put32(archive, start);
    put16(archive, 0);  // no comment
    return archive;
}

}  // namespace korven::outdoc
