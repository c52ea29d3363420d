#include "exchange/layer_file.hpp"

#include <gtest/gtest.h>

#include <random>

#include "base/file_error.hpp"
#include "exchange/ags_text.hpp"
#include "exchange/csv_writer.hpp"
#include "exchange/import_rows.hpp"
#include "exchange/layer_checks.hpp"
#include "support/temporary_folder.hpp"

namespace korven::exchange {
namespace {

using namespace std::string_literals;
using Frasi = std::vector<std::string>;

const std::string ags = test::gruppoLoca({{"BH1", "101.35"}, {"BH2", "99.00"}}) +
                        test::gruppoGeol({{"BH1", "0.00", "3.40", "Firm \"\"brown\"\" CLAY"},
                                          {"BH1", "3.40", "10.00", "Dense SAND"},
                                          {"BH2", "0.00", "5.00", "Sabbia à"}});
const std::string csv =
    testoCsv({{"3.5", "18", "19.5", "30", "0", "5000", "103C3 Sabbia; \"fine\"\nà"},
              {"12", "19", "", "24", "10", "", "105 Argilla"}},
             csvPuntoEVirgola);

TEST(FileStrati, KnowsWhatItIsByItsContent) {
    const FileStrati tabella(csv);
    EXPECT_FALSE(tabella.ags());
    EXPECT_EQ(tabella.strati().righe.size(), 2U);
    const FileStrati indagini(ags);
    EXPECT_TRUE(indagini.ags());
    ASSERT_EQ(indagini.fori().size(), 2U);
    EXPECT_EQ(indagini.strati(1, {TestaAlForo::Modo::quota, "98"}).righe[0][profondita], "4");
}

TEST(FileStrati, TellsWhyNoHoleCanBeChosen) {
    const FileStrati vecchio("\"**PROJ\"\r\n");
    EXPECT_TRUE(vecchio.ags());
    EXPECT_EQ(vecchio.strati().difetti,
              Frasi{"riga 1: questo è un file AGS 3: serve un file AGS 4"});
}

TEST(FileStrati, SaysOfAWorkbookWhatToDoWithIt) {
    EXPECT_EQ(FileStrati("PK\x03\x04\x14\0\0\0"s).strati().difetti,
              Frasi{"non è un file di testo: salvare la tabella del foglio di calcolo come CSV"});
}

TEST(FileStrati, ReadsAFileOrTellsThatItCanNot) {
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "strati.csv", csv);
    EXPECT_EQ(FileStrati::apri(cartella / "strati.csv").strati().righe.size(), 2U);
    EXPECT_THROW((void)FileStrati::apri(cartella / "manca.csv"), base::ErroreFile);
}

// What is taken of any file stands in the table without a fault, or nothing is taken and a fault
// says why.
void verifica(const StratiLetti& letti) {
    ASSERT_EQ(letti.righe.empty(), !letti.riuscita());
    ASSERT_LE(letti.righe.size(), 100U);
    for (const bool si : {false, true}) {
        const auto importo = preparaRighe(letti, {}, {.tieniValori = si, .mettiCodice = si});
        ASSERT_EQ(difettiRighe(importo.righe), Frasi{});
    }
}

std::string mutata(std::string testo, std::mt19937& caso) {
    const std::string segni = "\",;\t\r\n \0.-e9x\xFF\xC3\xEF"s;
    for (auto quante = 1 + caso() % 4; quante > 0 && !testo.empty(); --quante) {
        const std::size_t qui = caso() % testo.size();
        switch (caso() % 5) {
            case 0:
                testo[qui] = segni[caso() % segni.size()];
                break;
            case 1:
                testo.insert(qui, 1, segni[caso() % segni.size()]);
                break;
            case 2:
                testo.erase(qui, 1 + caso() % 12);
                break;
            case 3:
                testo.insert(qui, testo.substr(caso() % testo.size(), caso() % 80));
                break;
            default:
                if (caso() % 8 == 0) testo.resize(qui);
        }
    }
    return testo;
}

TEST(FileStrati, TakesAnyBytesWithoutHarm) {
    std::mt19937 caso(32);
    int presi = 0, rifiutati = 0;
    for (int prova = 0; prova < 3000; ++prova) {
        const FileStrati file(mutata(prova % 2 ? ags : csv, caso));
        const auto fori = std::max<std::size_t>(file.fori().size(), 1);
        for (std::size_t foro = 0; foro < fori; ++foro) {
            const auto letti = file.strati(foro, {TestaAlForo::Modo::profondita, "0.7"});
            ASSERT_NO_FATAL_FAILURE(verifica(letti)) << "seed 32, file " << prova;
            (letti.riuscita() ? presi : rifiutati) += 1;
        }
    }
    EXPECT_GT(presi, 500);  // or nothing but refusals was looked at
    EXPECT_GT(rifiutati, 500);
}

}  // namespace
}  // namespace korven::exchange
