#include "drawings/hatch_library.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_error.hpp"
#include "support/hatch_setup.hpp"

namespace korven::drawings {
namespace {

using test::CampituraDiProva;
using test::metti;

class Libreria : public test::ProvaCampiture {
 protected:
    Libreria() { scriviLibreria(programma, libreria); }

    [[nodiscard]] std::string righe(int quante, const std::string& riga) const {
        std::string testo;
        for (int i = 0; i < quante; ++i) testo += riga + "\r\n";
        return testo;
    }
    [[nodiscard]] std::string nomeFile(const std::string& percorso) const {
        return std::filesystem::path(percorso).filename().string();
    }
    // A row that breaks nothing: no strokes, but a unit.
    [[nodiscard]] std::string unita(std::string_view nome) const {
        return nome == "set1.rtn" ? "0" : "1";
    }
    // The file and line that the error of `lettura` names.
    template <class Lettura>
    [[nodiscard]] std::string errore(Lettura lettura) const {
        try {
            (void)lettura();
        } catch (const base::ErroreFile& e) {
            return nomeFile(e.percorso()) + ":" + std::to_string(e.riga());
        }
        return "none";
    }
    [[nodiscard]] std::string erroreDiLettura() const {
        dimenticaCampiture();
        return errore([] { return campiture(); });
    }

    test::LibreriaDiProva libreria{
        {5, {0.005, {{-100, -100, 100, 100}, {-1, 2, -300, 32000}}, "Sabbia"}},
        {12, {0.01, {{1, 2, 3, 4}}, "Argilla \xE8"}}};
};

TEST_F(Libreria, HoldsCountUnitNameAndFirstStrokeOfEachPattern) {
    const Campiture& tutte = campiture();
    EXPECT_EQ(tutte[5].nTratti, 2);
    EXPECT_EQ(tutte[5].unita, 0.005);
    EXPECT_EQ(tutte[5].nome, "Sabbia");
    EXPECT_EQ(tutte[5].primoTratto, 1);
    EXPECT_EQ(tutte[6].primoTratto, 3);
    EXPECT_EQ(tutte[12].nTratti, 1);
    EXPECT_EQ(tutte[12].nome, "Argilla è");
    EXPECT_EQ(tutte[12].primoTratto, 3);
    EXPECT_EQ(tutte[100].primoTratto, 4);
    EXPECT_EQ(tutte[0].nTratti, 0);
}

TEST_F(Libreria, HoldsStrokesOfSixteenBitsLowByteFirst) {
    const std::vector<TrattoCampitura> attesi{{-100, -100, 100, 100}, {-1, 2, -300, 32000}};
    EXPECT_EQ(leggiTratti(campiture()[5]), attesi);
    EXPECT_EQ(leggiTratti(campiture()[12]), (std::vector<TrattoCampitura>{{1, 2, 3, 4}}));
    EXPECT_TRUE(leggiTratti(campiture()[100]).empty());
}

TEST_F(Libreria, IsReadOnceAndKept) {
    (void)campiture();
    scriviLibreria(programma, {});
    EXPECT_EQ(campiture()[5].nTratti, 2);
    dimenticaCampiture();
    EXPECT_EQ(campiture()[5].nTratti, 0);
}

TEST_F(Libreria, TakesTheNamesOfTheLanguageInForce) {
    metti(programma / "set3deu.rtn", righe(100, "Sand"));
    base::impostaLingua(2);
    EXPECT_EQ(campiture()[5].nome, "Sand");
}

TEST_F(Libreria, OfALanguageWithoutNamesIsMissing) {
    base::impostaLingua(6);
    EXPECT_EQ(erroreDiLettura(), "set3por.rtn:0");
}

TEST_F(Libreria, WithoutOneOfItsFilesIsAnError) {
    for (const char* nome : {"set1.rtn", "set2.rtn", "set3ita.rtn"}) {
        scriviLibreria(programma, libreria);
        std::filesystem::remove(programma / nome);
        EXPECT_EQ(erroreDiLettura(), std::string(nome) + ":0");
    }
}

TEST_F(Libreria, CutShortIsAnErrorAtTheLineThatIsNotThere) {
    for (const char* nome : {"set1.rtn", "set2.rtn", "set3ita.rtn"}) {
        scriviLibreria(programma, libreria);
        metti(programma / nome, righe(42, unita(nome)));
        EXPECT_EQ(erroreDiLettura(), std::string(nome) + ":43");
    }
}

TEST_F(Libreria, WithWhatIsNoNumberIsAnErrorAtItsLine) {
    for (const char* nome : {"set1.rtn", "set2.rtn"}) {
        scriviLibreria(programma, libreria);
        metti(programma / nome, righe(6, unita(nome)) + "sette\r\n" + righe(93, unita(nome)));
        EXPECT_EQ(erroreDiLettura(), nome + std::string(":7"));
    }
}

TEST_F(Libreria, RefusesCountsThatAreNone) {
    for (const char* conteggio : {"-1", "1.5"}) {
        metti(programma / "set1.rtn", righe(2, "0") + conteggio + "\r\n" + righe(97, "0"));
        EXPECT_EQ(erroreDiLettura(), "set1.rtn:3") << conteggio;
    }
}

TEST_F(Libreria, RefusesMoreStrokesThanSixteenBitsCount) {
    metti(programma / "set2.rtn", righe(100, "0.01"));
    metti(programma / "set1.rtn", "32000\r\n766\r\n" + righe(98, "0"));
    EXPECT_EQ(erroreDiLettura(), "none");
    EXPECT_EQ(campiture()[100].primoTratto, 32767);
    metti(programma / "set1.rtn", "32000\r\n767\r\n" + righe(98, "0"));
    EXPECT_EQ(erroreDiLettura(), "set1.rtn:2");
}

TEST_F(Libreria, RefusesAPatternWithStrokesAndNoUnit) {
    for (const char* unita : {"0", "-0.01"}) {
        metti(programma / "set2.rtn", righe(4, "0.01") + unita + "\r\n" + righe(95, "0.01"));
        EXPECT_EQ(erroreDiLettura(), "set2.rtn:5") << unita;
    }
}

TEST_F(Libreria, WithoutTheStrokesOfAPatternIsAnErrorThatNamesIt) {
    const Campitura sabbia = campiture()[5], argilla = campiture()[12];
    std::filesystem::resize_file(programma / "set4.rtn", 20);
    EXPECT_EQ(leggiTratti(sabbia).size(), 2u);
    EXPECT_EQ(errore([&] { return leggiTratti(argilla); }), "set4.rtn:0");
    std::filesystem::remove(programma / "set4.rtn");
    EXPECT_EQ(errore([&] { return leggiTratti(sabbia); }), "set4.rtn:0") << "read anew";
}

}  // namespace
}  // namespace korven::drawings
