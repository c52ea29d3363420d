#include "outdoc/earlier_document.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include "base/file_error.hpp"
#include "outdoc/document_renderer.hpp"
#include "outdoc/zip_archive.hpp"
#include "support/failing_disk.hpp"
#include "support/temporary_folder.hpp"

namespace korven::outdoc {
namespace {

namespace fs = std::filesystem;
using test::contenuto;
using test::metti;

class EarlierDocument : public testing::Test {
 protected:
    EarlierDocument() { report("uno"); }

    void report(const std::string& text) const {
        metti(folder / "muro.TAB",
              "#RESET 2,2,2,2,2,2,12,Arial\r\n" + text + "\r\n#ENDDOCUMENT\r\n");
    }
    std::string convert() const { return convertReport(folder / "muro.TAB").kept; }
    [[nodiscard]] bool exists(const char* name) const { return fs::exists(folder / name); }

    const test::CartellaProvvisoria folder;
    const std::string document = folder / "muro.doc";
};

TEST_F(EarlierDocument, OfItsOwnIsReplacedWithoutACopy) {
    EXPECT_EQ(convert(), "");
    EXPECT_TRUE(isOwnWork(contenuto(document)));
    report("due");
    EXPECT_EQ(convert(), "");
    EXPECT_FALSE(exists("muro.doc.bak"));
}

TEST_F(EarlierDocument, ThatItDidNotWriteIsKept) {
    metti(document, "la lettera al committente");
    fs::permissions(document, fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(convert(), document + ".bak");
    EXPECT_EQ(contenuto(document + ".bak"), "la lettera al committente");
    EXPECT_EQ(fs::status(document + ".bak").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(isOwnWork(contenuto(document)));
}

TEST_F(EarlierDocument, ThatWasChangedInOneByteIsKept) {
    (void)convert();
    const std::string own = contenuto(document);
    const auto marked = storedFile(own, markedPart);
    ASSERT_TRUE(marked);
    std::string changed = own;
    for (std::size_t at = 0; at < marked->head; ++at) {
        ++changed[at];
        EXPECT_FALSE(isOwnWork(changed)) << at;
        --changed[at];
    }
    for (const char* part : {"uno", "outdoc-"}) {
        changed = own;
        ++changed[changed.rfind(part)];
        EXPECT_FALSE(isOwnWork(changed)) << part;
    }
    metti(document, changed);
    EXPECT_EQ(convert(), document + ".bak");
    EXPECT_EQ(contenuto(document + ".bak"), changed);
}

// As it was written before documents were compressed.
TEST_F(EarlierDocument, OfAnOlderVersionIsReplacedWithoutACopy) {
    const std::string older = contenuto(KORVEN_OUTDOC_FILES "/stored_document.doc");
    EXPECT_NE(older.find("<w:t xml:space=\"preserve\">uno</w:t>"), std::string::npos) << "stored";
    EXPECT_TRUE(isOwnWork(older));
    std::string changed = older;
    changed[changed.find("uno")] = 'U';
    EXPECT_FALSE(isOwnWork(changed));
    metti(document, older);
    EXPECT_EQ(convert(), "");
    EXPECT_LT(contenuto(document).size(), older.size() / 2);
}

TEST_F(EarlierDocument, LosesNoCopyThatWasKeptBefore) {
    for (const char* text : {"primo", "secondo", "terzo"}) {
        metti(document, text);
        EXPECT_NE(convert(), "");
    }
    EXPECT_EQ(contenuto(document + ".bak"), "primo");
    EXPECT_EQ(contenuto(document + ".bak2"), "secondo");
    EXPECT_EQ(contenuto(document + ".bak3"), "terzo");
    metti(document, "secondo");
    EXPECT_EQ(convert(), "") << "these bytes are kept already";
    EXPECT_FALSE(exists("muro.doc.bak4"));
}

TEST_F(EarlierDocument, GoesThroughNoLinkOfTheNameOfTheCopy) {
    metti(folder / "altrui", "da tenere");
    fs::create_symlink("altrui", document + ".bak");
    fs::create_symlink("nessuno", document + ".bak2");
    metti(document, "lettera");
    EXPECT_EQ(convert(), document + ".bak3");
    EXPECT_EQ(contenuto(folder / "altrui"), "da tenere");
    EXPECT_FALSE(exists("nessuno"));
}

TEST_F(EarlierDocument, ThatCannotBeKeptIsNotReplaced) {
    const std::string large(20000, 'x');
    metti(document, large);
    const test::DiscoPieno disk(15000);  // the new document would fit
    EXPECT_THROW((void)convertReport(folder / "muro.TAB", disk), base::ErroreFile);
    EXPECT_EQ(contenuto(document), large);
    EXPECT_FALSE(exists("muro.doc.bak"));
}

TEST_F(EarlierDocument, StaysWhenTheNewOneFindsNoRoom) {
    EXPECT_EQ(convert(), "");
    const std::string earlier = contenuto(document);
    report("due");
    const test::DiscoPieno disk(500);
    try {
        (void)convertReport(folder / "muro.TAB", disk);
        FAIL();
    } catch (const base::ErroreScrittura& error) {
        EXPECT_EQ(error.percorso(), document);
        EXPECT_NE(error.atteso().find(test::nonCeSpazio), std::string::npos);
    }
    EXPECT_EQ(contenuto(document), earlier);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.percorso()), {}), 2) << "and the report";
}

TEST(IsOwnWork, IsNothingThatOnlyHoldsTheMark) {
    EXPECT_FALSE(isOwnWork(""));
    EXPECT_FALSE(isOwnWork("outdoc-"));
    EXPECT_FALSE(isOwnWork("PK\x03\x04 outdoc-00000000"));
    // A word processor packs anew: the mark is in an archive with other parts in front.
    const auto archive = [](const std::string& content, const std::string& marked) {
        ZipWriter file;
        file.add("word/document.xml", content, Packing::deflated);
        const std::string parts(file.files());
        file.add(markedPart, marked.empty() ? ownMark(parts) : marked, Packing::stored);
        return std::pair(parts, file.finish());
    };
    const auto [parts, ours] = archive("nostro", "");
    EXPECT_TRUE(isOwnWork(ours));
    EXPECT_FALSE(isOwnWork(archive("altro", ownMark(parts)).second));
}

}  // namespace
}  // namespace korven::outdoc
