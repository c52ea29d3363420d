#include "results/report_numbers.hpp"

#include <gtest/gtest.h>

#include "analysis/calcolo_paratia.hpp"
#include "base/code_page.hpp"
#include "base/value_error.hpp"
#include "structure/partial_factors.hpp"
#include "support/random_walls.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::results {
namespace {

using analysis::ChiusuraRisultati;
using analysis::EsitoCorsa;
using project::DatiProgetto;
using test::Banco;

constexpr int limite = 60;

// Gives up on a stage that does not come to rest.
class ConLimite : public analysis::OsservatoreCorsa {
 public:
    void iterazione(const analysis::StatoIterazione& stato) override {
        oltre_ = stato.iterazione >= limite && !stato.convergente;
    }
    [[nodiscard]] bool fermata() override { return oltre_; }

 private:
    bool oltre_ = false;
};

ChiusuraRisultati chiusura(const EsitoCorsa& corsa) {
    return {0, 0, corsa.mMaxTotale, corsa.mMinTotale, structure::fsAzioniSezione};
}

void uguali(const NumeroRelazione& a, const NumeroRelazione& b) {
    EXPECT_EQ(a.valore, b.valore);
    EXPECT_EQ(a.z, b.z);
    EXPECT_EQ(a.fase, b.fase);
}

void uguali(const NumeriRelazione& a, const NumeriRelazione& b) {
    uguali(a.momento, b.momento);
    uguali(a.taglio, b.taglio);
    EXPECT_EQ(a.tiriMassimi, b.tiriMassimi);
    ASSERT_EQ(a.fasi.size(), b.fasi.size());
    for (std::size_t s = 0; s < a.fasi.size(); ++s) {
        uguali(a.fasi[s].momento(), b.fasi[s].momento());
        uguali(a.fasi[s].taglio, b.fasi[s].taglio);
        ASSERT_EQ(a.fasi[s].tiri.size(), b.fasi[s].tiri.size());
        for (std::size_t j = 0; j < a.fasi[s].tiri.size(); ++j) {
            EXPECT_EQ(a.fasi[s].tiri[j].valore, b.fasi[s].tiri[j].valore);
            EXPECT_EQ(a.fasi[s].tiri[j].nelTaglio, b.fasi[s].tiri[j].nelTaglio);
        }
    }
}

// The run on files and the one in memory, whose text and numbers must be the same.
// @return false if the project comes to no end within the limit
bool confronta(const DatiProgetto& dati, int nSeg) {
    Banco banco(dati, nSeg);
    banco.avanzamento.adOgniIterazione = [](const analysis::StatoIterazione& stato) {
        if (stato.iterazione >= limite) analysis::stopCalcolo = true;
    };
    banco.calcola();
    if (analysis::erroreCalcolo || analysis::stopCalcolo) return false;
    ConLimite seguito;
    const EsitoCorsa corsa = analysis::calcolaFasi(dati, nSeg, seguito);
    if (!corsa.finita()) return false;

    DatiProgetto memoria = dati;
    const DatiRelazione letti = leggiRisultati(banco.risultati(), memoria);
    EXPECT_EQ(base::inCp1252(testoRisultati(dati, nSeg, corsa, letti.chiusura)),
              test::contenuto(banco.risultati()));
    const DatiRelazione inMemoria = risultatiInMemoria(dati, nSeg, corsa, chiusura(corsa));
    EXPECT_EQ(inMemoria.progetto, letti.progetto);
    EXPECT_EQ(inMemoria.Vmax, letti.Vmax);
    uguali(numeriRelazione(inMemoria), numeriRelazione(letti));
    return true;
}

TEST(NumeriRelazione, OfARunInMemoryAreThoseOfItsResultFileForTheExamples) {
    for (const auto& percorso : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(percorso);
        EXPECT_TRUE(confronta(test::leggiMuro(percorso), 24));
    }
}

TEST(NumeriRelazione, OfARunInMemoryAreThoseOfItsResultFileForTheWallsThatComeToRest) {
    int finiti = 0;
    for (const auto& percorso : test::muriIn(KORVEN_WALLS)) {
        SCOPED_TRACE(percorso);
        finiti += confronta(test::leggiMuro(percorso), 50) ? 1 : 0;
    }
    EXPECT_EQ(finiti, 7);
    test::MuriCasuali caso(32);
    finiti = 0;
    for (int m = 0; m < 60; ++m) {
        SCOPED_TRACE(m);
        finiti += confronta(caso.prossimo(), 20) ? 1 : 0;
    }
    EXPECT_GT(finiti, 30);
}

// 8 m in 4 segments; one anchor at the node at 2 m of 500 t/m and 5 t, from the second stage on.
DatiRelazione aMano() {
    DatiProgetto d = test::progettoSemplice();
    d.lunghezzaParatia = 8;
    d.nTiranti = d.nFasi = 0;
    test::aggiungiFase(d, {.scavo = 1, .falda = 4});
    test::aggiungiFase(d, {.scavo = 2, .falda = 5});
    test::aggiungiTirante(d, 2, 500, 5);
    d.tirantiFase[2] = 1;
    EsitoCorsa corsa;
    corsa.fasi.resize(2);
    auto& prima = corsa.fasi[0].risultati;
    auto& seconda = corsa.fasi[1].risultati;
    prima.yNodo[2] = 0.02;
    prima.momentoNodo[3] = -2.25;
    prima.momentoNodo[4] = 1;
    prima.taglioNodo[5] = 3;
    seconda.yNodo[2] = 0.00600004;  // the file rounds it to 0.006
    seconda.momentoNodo[2] = 1.5;
    seconda.taglioNodo[3] = 0.5;
    corsa.mMaxTotale = 1.5;
    corsa.mMinTotale = -2.25;
    return risultatiInMemoria(d, 4, corsa, chiusura(corsa));
}

TEST(NumeriRelazione, AreTheLargestOfEachStageAndOfAllWithDepthAndStage) {
    const NumeriRelazione n = numeriRelazione(aMano());
    ASSERT_EQ(n.fasi.size(), 2u);
    uguali(n.fasi[0].momentoMassimo, {1, 6, 1});
    uguali(n.fasi[0].momentoMinimo, {-2.25, 4, 1});
    uguali(n.fasi[0].taglio, {3, 8, 1});
    uguali(n.fasi[1].momento(), {1.5, 2, 2});
    uguali(n.momento, {-2.25, 4, 1});
    uguali(n.taglio, {3, 8, 1});
}

TEST(NumeriRelazione, HoldTheForceThatTheShearSubtractsForASlackAnchorToo) {
    const NumeriRelazione n = numeriRelazione(aMano());
    EXPECT_TRUE(n.fasi[0].tiri.empty());
    ASSERT_EQ(n.fasi[1].tiri.size(), 1u);
    // It came in at 0.02 m: 5 + 500 (0.006 - 0.02)
    EXPECT_DOUBLE_EQ(n.fasi[1].tiri[0].valore, -2);
    EXPECT_TRUE(n.fasi[1].tiri[0].nelTaglio);
    // 2 x 0.5 - 0 below the anchor, and 1 - (-2) above it.
    uguali(n.fasi[1].taglio, {3, 2, 2});
    // The report prints the prestress of an anchor that was only pushed back.
    EXPECT_EQ(n.tiriMassimi, std::vector<double>{5});
}

TEST(RisultatiInMemoria, RefuseWhatIsNoNumberAsTheFileDoes) {
    EsitoCorsa corsa;
    corsa.fasi.resize(1);
    corsa.fasi[0].risultati.yNodo[2] = std::numeric_limits<double>::infinity();
    auto d = test::progettoSemplice();
    d.nFasi = 1;
    EXPECT_THROW((void)risultatiInMemoria(d, 4, corsa, {}), base::ErroreValore);
}

}  // namespace
}  // namespace korven::results
