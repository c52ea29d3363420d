#include "studies/plan/long_plan.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "base/file_error.hpp"
#include "studies/plan/plan_file.hpp"
#include "support/temporary_folder.hpp"

namespace korven::studies {
namespace {

constexpr std::size_t pochiByte = 64;  // a few rows a piece

project::DatiProgetto dueStrati() {
    project::DatiProgetto dati;
    dati.nStrati = 2;
    return dati;
}

class PianoLungoTest : public ::testing::Test {
 protected:
    PianoLungoLetto leggi(const std::string& testo, std::size_t pezzo = pochiByte) {
        std::ofstream(file, std::ios::binary) << testo;
        return PianoLungo::leggi(dueStrati(), file, pezzo);
    }
    const test::CartellaProvvisoria cartella;
    const std::string file = cartella / "piano.csv";
};

std::vector<double> riga(const Varianti& piano, std::uint64_t i) {
    std::vector<double> valori(piano.campi().size());
    EXPECT_TRUE(piano.valori(i, valori).empty());
    return valori;
}

// Rows of different lengths, blank ones, quotes, either line end.
std::string molteRighe(int quante) {
    std::string testo = "\xEF\xBB\xBFlunghezzaParatia [m];\"phiStrato[2] [°]\"\r\n";
    for (int i = 0; i < quante; ++i) {
        testo += std::to_string(8 + i % 7) + ";\"" + std::to_string(20 + i * 0.01) + '"';
        testo += i % 3 == 0 ? "\n" : "\r\n";
        if (i % 11 == 0) testo += "\n";
    }
    return testo;
}

TEST_F(PianoLungoTest, HasTheVariantsOfAPlanThatIsReadWhole) {
    const std::string testo = molteRighe(1000);
    const auto intero = leggiPiano(dueStrati(), testo);
    for (const std::size_t pezzo : {std::size_t{1}, pochiByte, std::size_t{1} << 20}) {
        const auto letto = leggi(testo, pezzo);
        ASSERT_TRUE(letto.piano) << pezzo;
        ASSERT_EQ(letto.piano->numero(), intero.piano->numero());
        ASSERT_EQ(letto.piano->campi().size(), 2U);
        // In any order, as threads ask for them.
        for (std::uint64_t k = 0; k < 1000; ++k) {
            const std::uint64_t i = k * 619 % 1000;
            EXPECT_EQ(riga(*letto.piano, i), riga(*intero.piano, i)) << pezzo << ' ' << i;
        }
    }
}

TEST_F(PianoLungoTest, TellsTheFaultsOfAPlanThatIsReadWhole) {
    const std::string buone = molteRighe(100);
    for (const std::string& testo :
         {buone + "8;trenta\n" + buone.substr(buone.find('\n') + 1) + "99;999\n8\n",
          std::string("lunghezza;phiStrato[3]\n8;30\n"), std::string(), std::string("nStrati\n"),
          buone + "\"8;30\n8;31\n",
          std::string("\xFF\xFEn\0S\0\n\0"
                      "1\0\n\0",
                      12)}) {
        const auto intero = leggiPiano(dueStrati(), testo);
        const auto letto = leggi(testo);
        EXPECT_FALSE(letto.piano);
        ASSERT_EQ(letto.difetti.size(), intero.difetti.size()) << testo;
        for (std::size_t k = 0; k < intero.difetti.size(); ++k) {
            EXPECT_EQ(letto.difetti[k].motivo, intero.difetti[k].motivo);
            EXPECT_EQ(letto.difetti[k].testo, intero.difetti[k].testo);
            EXPECT_EQ(letto.difetti[k].riga, intero.difetti[k].riga);
            EXPECT_EQ(letto.difetti[k].colonna, intero.difetti[k].colonna);
        }
    }
}

TEST_F(PianoLungoTest, IsReadByManyAtOnce) {
    const auto letto = leggi(molteRighe(2000));
    ASSERT_TRUE(letto.piano);
    std::vector<std::thread> fili;
    for (std::uint64_t f = 0; f < 4; ++f)
        fili.emplace_back([&letto, f] {
            for (std::uint64_t k = 0; k < 2000; ++k) {
                const std::uint64_t i = (k * 17 + f * 500) % 2000;
                EXPECT_EQ(riga(*letto.piano, i)[0], static_cast<double>(8 + i % 7));
            }
        });
    for (std::thread& filo : fili) filo.join();
}

TEST_F(PianoLungoTest, SaysWhenItsFileHasChanged) {
    const auto letto = leggi(molteRighe(1000));
    ASSERT_TRUE(letto.piano);
    std::ofstream(file, std::ios::binary | std::ios::in) << std::string(20000, ';');
    std::vector<double> valori(2);
    EXPECT_THROW(static_cast<void>(letto.piano->valori(500, valori)), base::ErroreFile);
}

TEST_F(PianoLungoTest, HoldsOnToItsFileWhenAnotherTakesTheName) {
    const auto letto = leggi(molteRighe(1000));
    ASSERT_TRUE(letto.piano);
    std::filesystem::rename(file, file + ".prima");
    std::ofstream(file) << "altro";
    EXPECT_EQ(riga(*letto.piano, 999)[0], 8 + 999 % 7);
    EXPECT_THROW(static_cast<void>(PianoLungo::leggi(dueStrati(), file + ".non_c_e")),
                 base::ErroreFile);
}

}  // namespace
}  // namespace korven::studies
