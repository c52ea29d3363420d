#include "studies/plan/typed_grid.hpp"

#include <gtest/gtest.h>

#include "support/sample_projects.hpp"

namespace korven::studies {
namespace {

using enum MotivoPiano;

class GrigliaScritta : public testing::Test {
 protected:
    [[nodiscard]] DifettoPiano difetto(std::string_view testo) const {
        const auto letto = leggiAsse(dati, testo);
        EXPECT_TRUE(std::holds_alternative<DifettoPiano>(letto)) << testo;
        return std::holds_alternative<DifettoPiano>(letto) ? std::get<DifettoPiano>(letto)
                                                           : DifettoPiano{};
    }

    project::DatiProgetto dati = [] {
        project::DatiProgetto d;
        d.nStrati = 2;
        d.nFasi = 3;
        return d;
    }();
};

TEST_F(GrigliaScritta, IsReadWithBlanksAnywhere) {
    for (const char* testo : {"phiStrato[2]=30:34:0.5", "  phiStrato[2] = 30 : 34 : 0.5 "}) {
        const auto letto = leggiAsse(dati, testo);
        ASSERT_TRUE(std::holds_alternative<Asse>(letto)) << testo;
        const auto& asse = std::get<Asse>(letto);
        EXPECT_EQ(asse.campo().riga, 2);
        EXPECT_EQ(asse.numero(), 9U);
        EXPECT_EQ(asse.valore(8), 34);
    }
}

TEST_F(GrigliaScritta, MayBeOfCodesAndOfNumbersOfRows) {
    EXPECT_TRUE(std::holds_alternative<Asse>(leggiAsse(dati, "vincoloPiede=1:3:1")));
    EXPECT_TRUE(std::holds_alternative<Asse>(leggiAsse(dati, "nFasi=1:3:1")));
}

TEST_F(GrigliaScritta, SaysWhatIsWrongAndAtWhichCharacter) {
    struct Caso {
        const char* testo;
        MotivoPiano motivo;
        std::size_t carattere;
    };
    const Caso casi[] = {
        {"lunghezzaParatia", forma, 1},
        {"lunghezzaParatia=", forma, 18},
        {"lunghezzaParatia=8:12", forma, 18},
        {"lunghezzaParatia=8:12:1:1", forma, 18},
        {"lunghezzaParatia=8:dodici:1", nonNumero, 20},
        {"lunghezzaParatia=8:12:0,5", virgola, 23},
        {"lunghezzaParatia=8:12: 0", passoNullo, 24},
        {"lunghezzaParatia=8:12:-1", passoContrario, 23},
        {"lunghezzaParatia=8:12:1e-30", troppeVarianti, 23},
        {"descrStrato[1]=1:2:1", testo, 1},
    };
    for (const auto& caso : casi) {
        const auto trovato = difetto(caso.testo);
        EXPECT_EQ(trovato.motivo, caso.motivo) << caso.testo;
        EXPECT_EQ(trovato.carattere, caso.carattere) << caso.testo;
        EXPECT_EQ(trovato.opzione, caso.testo);
    }
}

TEST_F(GrigliaScritta, HandsOnWhyAFieldOrAValueIsRefused) {
    struct Caso {
        const char* testo;
        project::MotivoRifiuto motivo;
        const char* scritto;
    };
    using enum project::MotivoRifiuto;
    const Caso casi[] = {
        {"lunghezza=8:12:1", nomeIgnoto, ""},          {"phiStrato=8:12:1", senzaRiga, ""},
        {"phiStrato[3]=8:12:1", rigaAssente, ""},      {"phiStrato[1]=50:70:5", fuoriLimiti, "70"},
        {"phiStrato[1]=-10:40:5", fuoriLimiti, "-10"}, {"nFasi=1:3:0.5", nonIntero, "1.5"},
        {"vincoloPiede=0:2:1", codiceIgnoto, "0"},     {"metodoSpinte=1:3:1", nonConservato, "3"},
    };
    for (const auto& caso : casi) {
        const auto trovato = difetto(caso.testo);
        EXPECT_EQ(trovato.motivo, campo) << caso.testo;
        ASSERT_TRUE(trovato.rifiuto) << caso.testo;
        EXPECT_EQ(trovato.rifiuto->motivo, caso.motivo) << caso.testo;
        EXPECT_EQ(trovato.rifiuto->scritto, caso.scritto) << caso.testo;
    }
}

TEST_F(GrigliaScritta, IsTheProductOfItsAxes) {
    const std::vector<std::string> assi = {"lunghezzaParatia=8:12:1", "phiStrato[1]=30:32:1"};
    EXPECT_EQ(std::get<Griglia>(leggiGriglia(dati, assi)).numero(), 15U);
    const std::vector<std::string> doppi = {"phiStrato[1]=30:32:1", "phiStrato[1]=30:32:1"};
    EXPECT_EQ(std::get<DifettoPiano>(leggiGriglia(dati, doppi)).motivo, campoRipetuto);
}

}  // namespace
}  // namespace korven::studies
