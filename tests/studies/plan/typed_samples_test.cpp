#include "studies/plan/typed_samples.hpp"

#include <gtest/gtest.h>

#include <array>

#include "studies/plan/fault_words.hpp"

namespace korven::studies {
namespace {

using enum MotivoPiano;

project::DatiProgetto dueStrati() {
    project::DatiProgetto dati;
    dati.nStrati = 2;
    return dati;
}

const project::DatiProgetto dati = dueStrati();

TEST(LeggeScritta, IsReadInBothLanguagesWithBlanksAnywhere) {
    for (const char* testo : {"phiStrato[2]=normale(32,2)", " phiStrato[2] = normal( 32 , 2 ) "}) {
        const auto letto = leggiLegge(dati, testo);
        ASSERT_TRUE(std::holds_alternative<CampoCasuale>(letto)) << testo;
        const auto& [campo, legge] = std::get<CampoCasuale>(letto);
        EXPECT_EQ(campo.riga, 2);
        EXPECT_EQ(legge.tipo, TipoLegge::normale);
        EXPECT_EQ(legge.parametri, (std::array<double, 3>{32, 2, 0}));
    }
    const auto triangolo = leggiLegge(dati, "lunghezzaParatia=triangular(8,9,14)");
    EXPECT_EQ(std::get<CampoCasuale>(triangolo).legge.parametri, (std::array<double, 3>{8, 9, 14}));
}

TEST(LeggeScritta, SaysWhatIsWrongAndAtWhichCharacter) {
    struct Caso {
        const char* testo;
        MotivoPiano motivo;
        std::size_t carattere;
    };
    const Caso casi[] = {
        {"phiStrato[1]", forma, 1},
        {"phiStrato[1]=", forma, 14},
        {"phiStrato[1]=normale 32,2", forma, 14},
        {"phiStrato[1]=normale(32,2", forma, 14},
        {"phiStrato[1]=gauss(32,2)", leggeIgnota, 14},
        {"phiStrato[1]=normale(32)", parametri, 22},
        {"phiStrato[1]=normale(32,5,2)", parametri, 22},
        {"phiStrato[1]=normale(32,due)", nonNumero, 25},
        {"phiStrato[1]=normale(32,0)", scarto, 14},
        {"phiStrato[1]=lognormale(-1,2)", media, 14},
        {"phiStrato[1]=uniforme(5,4)", estremi, 14},
        {"phiStrato[1]=triangolare(1,5,4)", estremi, 14},
        {"sezione.fck=lognormale(1e300,1e308)", oltreNumeri, 13},
        {"gammaAcqua=normale(12,2)", mediaFuori, 12},
        {"phiStrato[1]=uniforme(60,61)", mediaFuori, 14},
        {"phiStrato[1]=triangolare(50,60,80)", mediaFuori, 14},
        {"vincoloPiede=uniforme(1,3)", nonContinuo, 1},
        {"nFasi=uniforme(1,3)", nonContinuo, 1},
        {"sezione.tipoPali=uniforme(0,1)", nonContinuo, 1},
        {"descrStrato[1]=uniforme(0,1)", testo, 1},
        {"phi=normale(32,2)", campo, 1},
    };
    for (const auto& caso : casi) {
        const auto letto = leggiLegge(dati, caso.testo);
        ASSERT_TRUE(std::holds_alternative<DifettoPiano>(letto)) << caso.testo;
        const auto& trovato = std::get<DifettoPiano>(letto);
        EXPECT_EQ(trovato.motivo, caso.motivo) << caso.testo;
        EXPECT_EQ(trovato.carattere, caso.carattere) << caso.testo;
    }
}

// Up to 60: a mean at the end is within.
TEST(LeggeScritta, MayReachBeyondTheRangeOfItsFieldButNotInTheMean) {
    EXPECT_TRUE(
        std::holds_alternative<CampoCasuale>(leggiLegge(dati, "phiStrato[1]=normale(60,5)")));
    const auto letto = leggiLegge(dati, "gammaAcqua=normale(12,2)");
    const std::string perche = parole(std::get<DifettoPiano>(letto));
    EXPECT_EQ(perche,
              "gammaAcqua=normale(12,2), carattere 12: media della legge: gammaAcqua [t/m³] = 12: "
              "ammessi valori da 0 a 1.5");
}

TEST(RhoScritto, IsReadAndRefused) {
    const auto letto = leggiRho(dati, "phiStrato[1] , coesione[1] = -0.5");
    ASSERT_TRUE(std::holds_alternative<RhoScritto>(letto));
    EXPECT_EQ(std::get<RhoScritto>(letto).seconda.campo->nome, "coesione");
    EXPECT_EQ(std::get<RhoScritto>(letto).rho, -0.5);

    struct Caso {
        const char* testo;
        MotivoPiano motivo;
        std::size_t carattere;
    };
    const Caso casi[] = {
        {"phiStrato[1]=0.5", forma, 1},
        {"phiStrato[1],coesione[1]", forma, 1},
        {"phiStrato[1],coesione[1],phiStrato[2]=0.5", forma, 1},
        {"phiStrato[1],coesione[9]=0.5", campo, 14},
        {"phiStrato[1],phiStrato[1]=0.5", stessoCampo, 14},
        {"phiStrato[1],coesione[1]=1", rho, 26},
        {"phiStrato[1],coesione[1]=-1.5", rho, 26},
        {"phiStrato[1],coesione[1]=0,5", virgola, 26},
    };
    for (const auto& caso : casi) {
        const auto rifiutato = leggiRho(dati, caso.testo);
        ASSERT_TRUE(std::holds_alternative<DifettoPiano>(rifiutato)) << caso.testo;
        EXPECT_EQ(std::get<DifettoPiano>(rifiutato).motivo, caso.motivo) << caso.testo;
        EXPECT_EQ(std::get<DifettoPiano>(rifiutato).carattere, caso.carattere) << caso.testo;
    }
}

CampioniScritti scritti() {
    return {.leggi = {"phiStrato[1]=normale(32,2)", "coesione[1]=lognormale(5,2)",
                      "phiStrato[2]=uniforme(25,35)"},
            .rho = {},
            .numero = 100,
            .seme = 7};
}

// What stands in a project is what samples of these laws give, in the order in which they are
// typed.
TEST(CampioniScritti, AreThoseOfTheirLaws) {
    const auto letti = leggiCampioni(dati, scritti());
    ASSERT_TRUE(std::holds_alternative<Campioni>(letti));
    const auto& campioni = std::get<Campioni>(letti);
    EXPECT_EQ(campioni.numero(), 100U);
    EXPECT_EQ(campioni.seme(), 7U);
    ASSERT_EQ(campioni.campi().size(), 3U);
    EXPECT_EQ(campioni.campi()[1].campo->nome, "coesione");
    EXPECT_EQ(campioni.legge(2).tipo, TipoLegge::uniforme);
    EXPECT_TRUE(campioni.indipendenti());
}

MotivoPiano rifiuto(const CampioniScritti& testi) {
    const auto letti = leggiCampioni(dati, testi);
    EXPECT_TRUE(std::holds_alternative<DifettoPiano>(letti));
    return std::get<DifettoPiano>(letti).motivo;
}

TEST(CampioniScritti, AreRefusedWhereTheirTextsDoNotGoTogether) {
    auto testi = scritti();
    testi.leggi.emplace_back("phiStrato[1]=uniforme(1,2)");
    EXPECT_EQ(rifiuto(testi), campoRipetuto);

    testi = scritti();
    testi.rho = {"phiStrato[1],coesione[2]=0.5"};
    EXPECT_EQ(rifiuto(testi), senzaLegge);
    testi.rho = {"phiStrato[1],coesione[1]=0.5", "coesione[1],phiStrato[1]=0.4"};
    EXPECT_EQ(rifiuto(testi), coppiaRipetuta);
    testi.rho = {"phiStrato[1],coesione[1]=0.9", "phiStrato[1],phiStrato[2]=0.9",
                 "coesione[1],phiStrato[2]=-0.9"};
    EXPECT_EQ(rifiuto(testi), nonDefinita);
    testi.rho = {"phiStrato[1],coesione[1]=-0.5"};
    EXPECT_TRUE(std::holds_alternative<Campioni>(leggiCampioni(dati, testi)));
    testi.disegno = Disegno::ipercubo;
    EXPECT_EQ(rifiuto(testi), rhoConIpercubo);

    testi = scritti();
    testi.numero = 2'000'000'000'000'000;
    EXPECT_EQ(rifiuto(testi), troppeVarianti);
}

}  // namespace
}  // namespace korven::studies
