#include "outdoc/zip_archive.hpp"

#include <gtest/gtest.h>

namespace korven::outdoc {
namespace {

std::uint32_t number(const std::string& bytes, std::size_t at, int length) {
    std::uint32_t value = 0;
    for (int i = length; i > 0; --i)
        value =
            value << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i) - 1]);
    return value;
}

TEST(Crc32, HasThePublishedCheckValue) {
    EXPECT_EQ(crc32("123456789"), 0xCBF43926u);
    EXPECT_EQ(crc32(""), 0u);
}

// Offsets as in the description of the format: the end record is 22 bytes long, an entry of the
// directory 46 and the head of a file 30, each with the name behind it.
TEST(ZipArchive, LeadsFromItsEndToEachFile) {
    const std::vector<ZipEntry> entries{{"a.txt", "uno"}, {"b/c.xml", ""}, {"d", "\x01\x02\xFF"}};
    const std::string bytes = zipArchive(entries);
    const std::size_t end = bytes.size() - 22;
    ASSERT_EQ(number(bytes, end, 4), 0x06054B50u);
    EXPECT_EQ(number(bytes, end + 10, 2), 3u);
    std::size_t at = number(bytes, end + 16, 4);
    EXPECT_EQ(at + number(bytes, end + 12, 4), end);
    for (const auto& entry : entries) {
        ASSERT_EQ(number(bytes, at, 4), 0x02014B50u);
        EXPECT_EQ(number(bytes, at + 10, 2), 0u);  // stored
        EXPECT_EQ(number(bytes, at + 16, 4), crc32(entry.content));
        const std::size_t nameLength = number(bytes, at + 28, 2);
        EXPECT_EQ(bytes.substr(at + 46, nameLength), entry.name);
        const std::size_t file = number(bytes, at + 42, 4);
        ASSERT_EQ(number(bytes, file, 4), 0x04034B50u);
        EXPECT_EQ(number(bytes, file + 18, 4), entry.content.size());
        EXPECT_EQ(number(bytes, file + 22, 4), entry.content.size());
        EXPECT_EQ(bytes.substr(file + 30, nameLength), entry.name);
        EXPECT_EQ(bytes.substr(file + 30 + nameLength, entry.content.size()), entry.content);
        at += 46 + nameLength;
    }
}

TEST(ZipArchive, MayBeEmpty) { EXPECT_EQ(zipArchive({}).size(), 22u); }

}  // namespace
}  // namespace korven::outdoc
