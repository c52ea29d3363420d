#include "verification/collection.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_error.hpp"
#include "support/temporary_folder.hpp"

namespace korven::verification {
namespace {

constexpr const char* caso =
    "titolo: T\nfonte: F\n[parete]\nlunghezzaParatia = 10\nrigidezzaEJ = 5000\n"
    "profStrato = 20\nprofFase = 2\n[attesi]\nesito = equilibrio\n";

std::string rifiuto(const std::string& cartella) {
    try {
        std::ignore = leggiCasi(cartella, KORVEN_EXAMPLES);
    } catch (const base::ErroreFile& e) {
        return e.atteso();
    }
    return {};
}

TEST(LeggiCasi, RefusesWhatIsNoFolderOfCases) {
    const test::CartellaProvvisoria cartella;
    constexpr const char* attesa = "atteso: una cartella di casi di verifica";
    EXPECT_EQ(rifiuto(cartella / "manca"), attesa);
    EXPECT_EQ(rifiuto(cartella.percorso()), attesa) << "nothing in it";
    test::metti(cartella / "note.md", "no case");
    EXPECT_EQ(rifiuto(cartella.percorso()), attesa);
}

TEST(LeggiCasi, OrdersGroupsByTheirNumberAndThoseWithoutOneByName) {
    const test::CartellaProvvisoria cartella;
    for (const char* nome : {"zeta", "alfa", "beta"}) {
        std::filesystem::create_directory(cartella / nome);
        test::metti(cartella / (std::string(nome) + "/uno.txt"), caso);
    }
    test::metti(cartella / "zeta/gruppo.txt", "titolo: Z\ndescrizione: D\nordine: 1\n");
    const auto gruppi = leggiCasi(cartella.percorso(), KORVEN_EXAMPLES);
    ASSERT_EQ(gruppi.size(), 3U);
    EXPECT_EQ(gruppi[0].titolo, "Z");
    EXPECT_EQ(gruppi[1].nome, "alfa");
    EXPECT_EQ(gruppi[2].nome, "beta");
    EXPECT_EQ(gruppi[1].casi.size(), 1U);
}

}  // namespace
}  // namespace korven::verification
