#include "outdoc/zip_archive.hpp"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "base/table.hpp"
#include "support/unpacked.hpp"

namespace korven::outdoc {
namespace {

using test::contentOf;
using test::endLength;
using test::entryLength;
using test::headLength;
using test::number;

struct Entry {
    std::string name, content;
    Packing packing;
};

const std::vector<Entry> entries{{"a.txt", std::string(2000, 'a'), Packing::deflated},
                                 {"b/c.xml", "", Packing::deflated},
                                 {"d", "\x01\x02\xFF", Packing::stored}};

std::string packed(const std::vector<Entry>& files) {
    ZipWriter archive;
    for (const auto& [name, content, packing] : files) archive.add(name, content, packing);
    return archive.finish();
}

TEST(CheckSum, HasThePublishedCheckValue) {
    EXPECT_EQ(checkSum("123456789"), 0xCBF43926u);
    EXPECT_EQ(checkSum(""), 0u);
}

TEST(ZipWriter, RefusesContentsLongerThanItsFormatTells) {
    const std::string_view beyond("", std::size_t{1} << 31);  // refused for its length, never read
    try {
        ZipWriter().add("word/document.xml", beyond, Packing::deflated);
        ADD_FAILURE() << "taken";
    } catch (const base::ErroreIndice& error) {
        EXPECT_STREQ(error.what(), "word/document.xml: il file è troppo grande");
    }
}

TEST(ZipWriter, LeadsFromTheEndOfTheArchiveToEachFile) {
    const std::string bytes = packed(entries);
    const std::size_t end = bytes.size() - endLength;
    ASSERT_EQ(number(bytes, end, 4), 0x06054B50u);
    EXPECT_EQ(number(bytes, end + 10, 2), 3u);
    std::size_t at = number(bytes, end + 16, 4);
    EXPECT_EQ(at + number(bytes, end + 12, 4), end);
    for (const auto& entry : entries) {
        const std::string& content = entry.content;
        ASSERT_EQ(number(bytes, at, 4), 0x02014B50u);
        EXPECT_EQ(number(bytes, at + 10, 2), entry.packing == Packing::stored ? 0u : 8u);
        EXPECT_EQ(number(bytes, at + 16, 4), checkSum(content));
        EXPECT_EQ(number(bytes, at + 24, 4), content.size());
        EXPECT_EQ(bytes.substr(at + entryLength, number(bytes, at + 28, 2)), entry.name);
        const std::size_t head = number(bytes, at + 42, 4);
        ASSERT_EQ(number(bytes, head, 4), 0x04034B50u);
        EXPECT_EQ(bytes.substr(head + headLength, entry.name.size()), entry.name);
        EXPECT_EQ(contentOf(bytes, at), content);
        at += entryLength + entry.name.size();
    }
    EXPECT_LT(bytes.size(), 500u) << "2000 times the same letter is deflated";
}

TEST(ZipWriter, DatesAllFilesTheSameSoThatEqualFilesMakeEqualArchives) {
    const std::string bytes = packed(entries);
    constexpr std::uint32_t firstDay = 1 << 5 | 1;  // month and day, years from 1980
    EXPECT_EQ(number(bytes, 10, 2), 0u) << "midnight";
    EXPECT_EQ(number(bytes, 12, 2), firstDay);
    EXPECT_EQ(packed(entries), bytes);
}

TEST(ZipWriter, TellsWhatTheArchiveBeginsWith) {
    ZipWriter archive;
    EXPECT_EQ(archive.files(), "");
    archive.add("d", "uno", Packing::stored);
    EXPECT_EQ(archive.files().size(), headLength + 4);
    const std::string begun(archive.files());
    archive.add("e", "due", Packing::stored);
    EXPECT_TRUE(archive.finish().starts_with(begun));
}

TEST(ZipWriter, MayPackNothing) { EXPECT_EQ(packed({}).size(), endLength); }

TEST(ZipWriter, LeavesNothingOpenWhenItIsGivenUp) {
    ZipWriter archive;
    archive.add("d", "uno", Packing::stored);
}

TEST(StoredFile, IsFoundByItsNameWithThePlaceOfItsHead) {
    const std::string bytes = packed(entries);
    const auto found = storedFile(bytes, "d");
    ASSERT_TRUE(found);
    EXPECT_EQ(found->content, "\x01\x02\xFF");
    EXPECT_EQ(bytes.substr(found->head, 4), "PK\x03\x04");
    EXPECT_EQ(bytes.substr(found->head + headLength, 1), "d");
    for (const char* name : {"D", "a.txt", "e"}) EXPECT_FALSE(storedFile(bytes, name)) << name;
}

TEST(StoredFile, IsNoneThatWasChangedOrCutShort) {
    const std::string bytes = packed(entries);
    std::string changed = bytes;
    ++changed[storedFile(bytes, "d")->head + headLength + 1];  // its first byte
    EXPECT_FALSE(storedFile(changed, "d"));
    for (std::size_t length = 0; length <= bytes.size() - endLength; ++length)
        EXPECT_FALSE(storedFile(bytes.substr(0, length), "d")) << length;
    EXPECT_FALSE(storedFile("la lettera al committente", "d"));
}

}  // namespace
}  // namespace korven::outdoc
