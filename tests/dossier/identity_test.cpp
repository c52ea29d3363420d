#include "dossier/identity.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>

#include "base/text_lines.hpp"
#include "project/project_file.hpp"
#include "support/sample_projects.hpp"

namespace korven::dossier {
namespace {

// The digits are those of `sha256sum` of the files.
TEST(Impronta, IsTheSumOfTheFileThatSavingWrites) {
    const std::pair<const char*, const char*> somme[] = {
        {"diaframma_due_ordini",
         "df1439eebc68cb566112d2c1c5a2f047d7376d7c81835267fc607eb1e7ca729a"},
        {"pali_armati_staffe", "9b4b6d5330ae8ee6e7bfaeeb5a8bc068f8e8655fd7dcfa5c64b05dd0e6a6ac94"},
        {"trincea_puntellata", "bade90717009197f5352a3d39bbf2fd5d0ed3830cf98a46ec563177cab96e7db"}};
    for (const auto& [nome, somma] : somme) {
        auto file = base::LettoreRighe::apri(KORVEN_EXAMPLES "/" + std::string(nome) + ".kvd");
        project::DatiProgetto dati;
        project::leggiDati(file, dati);
        EXPECT_EQ(impronta(dati), somma) << nome;
    }
}

TEST(Impronta, ChangesWithEachTextAndNumberOfTheProject) {
    const auto dati = test::progettoSemplice();
    auto altri = dati;
    altri.titoli[6] = "rev. 2";
    EXPECT_NE(impronta(dati), impronta(altri));
    altri = dati;
    altri.phiStrato[2] += 1e-7;
    EXPECT_NE(impronta(dati), impronta(altri));
    EXPECT_EQ(impronta(dati), impronta(test::progettoSemplice()));
    EXPECT_EQ(inBreve("0123456789abcdef"), "0123456789ab");
}

FontiData fonti(std::string voluta, std::optional<std::string> epoca) {
    return {std::move(voluta), std::move(epoca), [] { return std::string("2026-11-22"); }};
}

TEST(DataCorsa, IsTheOneAskedForElseThatOfTheEpochElseTheClocks) {
    EXPECT_EQ(data(fonti("2024-02-29", "1700000000")), "2024-02-29");
    EXPECT_EQ(data(fonti("", "1700000000")), "2023-11-14");  // 22:13:20 UTC
    EXPECT_EQ(data(fonti("", "0")), "1970-01-01");
    EXPECT_EQ(data(fonti("", "253402300799")), "9999-12-31");
    EXPECT_EQ(data(fonti("", std::nullopt)), "2026-11-22");
}

TEST(DataCorsa, PassesOverAnEpochThatIsNoNumberOfSeconds) {
    for (const char* epoca : {"", "ieri", "253402300800"})
        EXPECT_EQ(data(fonti("", epoca)), "2026-11-22") << epoca;
}

TEST(DataCorsa, TakesDaysOfTheCalendarAlone) {
    for (const char* buona : {"1900-01-01", "2026-12-31", "2024-02-29"})
        EXPECT_TRUE(dataValida(buona)) << buona;
    for (const char* no : {"", "2026-2-1", "22-11-2026", "2026/11/22", "2026-13-01", "2026-00-10",
                           "2025-02-29", "2026-04-31", "1899-12-31", "2026-11-2x", "2026-11-221"})
        EXPECT_FALSE(dataValida(no)) << no;
}

TEST(FontiDiSistemaTest, ReadTheEnvironmentAndAClockThatTellsADay) {
    ASSERT_EQ(setenv("SOURCE_DATE_EPOCH", "86400", 1), 0);
    EXPECT_EQ(data(fontiDiSistema("")), "1970-01-02");
    ASSERT_EQ(unsetenv("SOURCE_DATE_EPOCH"), 0);
    EXPECT_FALSE(fontiDiSistema("").epoca);
    ASSERT_EQ(setenv("SOURCE_DATE_EPOCH", "", 1), 0);
    EXPECT_FALSE(fontiDiSistema("").epoca);
    ASSERT_EQ(unsetenv("SOURCE_DATE_EPOCH"), 0);
    EXPECT_TRUE(dataValida(data(fontiDiSistema(""))));
}

}  // namespace
}  // namespace korven::dossier
