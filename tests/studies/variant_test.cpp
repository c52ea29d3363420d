#include "studies/variant.hpp"

#include <gtest/gtest.h>

#include "equilibrium/extremes.hpp"
#include "safety/margin.hpp"
#include "safety/told_stages.hpp"
#include "studies/small_study.hpp"
#include "support/sample_projects.hpp"

namespace korven::studies {
namespace {

using project::DatiProgetto;
using safety::Causa;
using test::UnaVariante;

// What the command `equilibrio` tells of a file, which has the stiffness of its section where it
// has none of its own.
void controllaConEquilibrio(const DatiProgetto& cambiato, const RisultatoVariante& r) {
    DatiProgetto dati = project::comeRiletto(cambiato);
    if (dati.rigidezzaEJ == 0)
        dati.rigidezzaEJ = structure::rigidezzaOfferta(dati.sezione).value_or(0);
    const auto racconto = safety::raccontaFasi(dati, 50);
    ASSERT_FALSE(racconto.caduta());
    ASSERT_TRUE(r.sta());
    equilibrium::Estremi attesi;
    std::vector<double> tiri;
    for (const auto& fase : racconto.fasi) {
        equilibrium::aggiungi(fase.fase, racconto.h, attesi);
        tiri.resize(fase.fase.tiri.size());
        for (std::size_t j = 0; j < tiri.size(); ++j)
            tiri[j] = std::max(tiri[j], fase.fase.tiri[j]);
    }
    EXPECT_EQ(r.estremi.spostamento.valore, attesi.spostamento.valore);
    EXPECT_EQ(r.estremi.spostamento.z, attesi.spostamento.z);
    EXPECT_EQ(r.estremi.momentoMassimo.valore, attesi.momentoMassimo.valore);
    EXPECT_EQ(r.estremi.momentoMinimo.valore, attesi.momentoMinimo.valore);
    EXPECT_EQ(r.estremi.taglio.valore, attesi.taglio.valore);
    EXPECT_EQ(r.estremi.taglio.fase, attesi.taglio.fase);
    EXPECT_EQ(r.tiri, tiri);
}

TEST(CalcoloVariante, HasTheNumbersOfAFileThatIsChangedSavedAndOpenedAgain) {
    const DatiProgetto dati = test::esempioStudio("diaframma_due_ordini");
    UnaVariante variante(dati, {"phiStrato[1]", "pretTirante[2]", "gammaN[1]"});
    for (int i = 0; i < 5; ++i) {
        // Thirds have more decimals than a file.
        const double phi = 30 + i / 3.0, forza = 100 + 100 * i / 3.0, peso = 18 + i / 7.0;
        DatiProgetto cambiato = dati;
        cambiato.phiStrato[1] = phi;
        cambiato.pretTirante[2] = forza / 10;
        cambiato.gammaN[1] = peso / 10;
        SCOPED_TRACE(i);
        controllaConEquilibrio(cambiato, variante({phi, forza, peso}));
    }
    EXPECT_EQ(variante.calcolo().scritti()[0], 31.3333333);
}

TEST(CalcoloVariante, TakesTheStiffnessOfItsSectionWhereTheFileHasNone) {
    DatiProgetto dati = test::esempioStudio("diaframma_due_ordini");
    dati.rigidezzaEJ = 0;
    UnaVariante variante(dati, {"sezione.spessoreDiaframma"});
    double prima = 0;
    for (const double spessore : {600.0, 800.0, 1000.0}) {
        DatiProgetto cambiato = dati;
        cambiato.sezione.spessoreDiaframma = spessore / 10;
        controllaConEquilibrio(cambiato, variante({spessore}));
        EXPECT_GT(variante.calcolo().dati().rigidezzaEJ, prima);
        prima = variante.calcolo().dati().rigidezzaEJ;
    }
    EXPECT_GT(variante({600}).flessione->mrPos, 0);
}

TEST(CalcoloVariante, KeepsATypedStiffnessUnlessItIsToBeComputedAnew) {
    const DatiProgetto dati = test::esempioStudio("diaframma_due_ordini");
    ASSERT_GT(dati.rigidezzaEJ, 0);
    UnaVariante mantiene(dati, {"sezione.spessoreDiaframma"});
    UnaVariante ricalcola(dati, {"sezione.spessoreDiaframma"}, {.nSeg = 50, .ricalcolaEJ = true});
    (void)mantiene({1200});
    (void)ricalcola({1200});
    EXPECT_EQ(mantiene.calcolo().dati().rigidezzaEJ, dati.rigidezzaEJ);
    EXPECT_GT(ricalcola.calcolo().dati().rigidezzaEJ, dati.rigidezzaEJ);
    (void)ricalcola({200});  // not that of the variant before
    EXPECT_LT(ricalcola.calcolo().dati().rigidezzaEJ, dati.rigidezzaEJ);
}

TEST(CalcoloVariante, TellsTheMovementOfAMechanismAndItsStage) {
    UnaVariante variante(test::muro().lungo(10).fase({.scavo = 2}).fase({.scavo = 6}).dati(),
                         {"lunghezzaParatia"});
    const RisultatoVariante& corta = variante({11});  // embedded 5 m, 5.6 m by Blum
    EXPECT_EQ(corta.causa, Causa::meccanismo);
    EXPECT_EQ(corta.motivo, Motivo::rotazione);
    EXPECT_EQ(corta.faseCaduta, 2);
    EXPECT_TRUE(variante({16}).sta());  // what fell before leaves nothing behind
    EXPECT_EQ(variante({16}).faseCaduta, 0);
}

// Numbers of which no equilibrium is certain are told for what they are, with the stage.
TEST(CalcoloVariante, SaysWhichNumberMakesTheEquilibriumUncertain) {
    const auto causata = [](const auto& muta, Motivo motivo, int fase) {
        DatiProgetto dati = test::progettoSemplice();
        muta(dati);
        UnaVariante variante(dati, {"lunghezzaParatia"});
        const RisultatoVariante& r = variante({12});
        EXPECT_EQ(r.causa, Causa::nonDefinito) << static_cast<int>(motivo);
        EXPECT_EQ(r.motivo, motivo);
        EXPECT_EQ(r.faseCaduta, fase);
    };
    causata([](DatiProgetto& d) { d.rigTirante[1] = -5; }, Motivo::tirante, 2);
    causata([](DatiProgetto& d) { d.ksStrato[2] = -100; }, Motivo::modulo, 1);
    causata([](DatiProgetto& d) { d.rigidezzaEJ = -1000; }, Motivo::parete, 1);
    // A negative cohesion pushes the active limit beyond the passive one.
    causata([](DatiProgetto& d) { d.coesione[1] = d.coesione[2] = -100; }, Motivo::limiti, 1);
}

TEST(CalcoloVariante, HasAVerdictForDataThatNoRunWouldTake) {
    const DatiProgetto dati = test::esempioStudio("diaframma_due_ordini");
    const struct {
        const char* campo;
        double valore;
        Motivo motivo;
    } casi[] = {{"lunghezzaParatia", 0, Motivo::lunghezza},
                {"nStrati", 0, Motivo::strati},
                {"nFasi", 0, Motivo::fasi},
                {"nFasi", 2.5, Motivo::valore},
                {"tirantiFase[2]", 21, Motivo::valore},
                {"vincoloPiede", 4, Motivo::valore},
                {"metodoSpinte", 2, Motivo::valore},  // no file keeps it
                {"profTirante[2]", 0.1, Motivo::ordine},
                {"profFase[1]", 9, Motivo::ordine}};
    for (const auto& [campo, valore, motivo] : casi) {
        UnaVariante variante(dati, {campo});
        const RisultatoVariante& r = variante({valore});
        EXPECT_EQ(r.causa, Causa::rifiutato) << campo;
        EXPECT_EQ(r.motivo, motivo) << campo;
        EXPECT_FALSE(variante.calcolo().seguita());
    }
    DatiProgetto senzaAttrito = dati;
    senzaAttrito.phiStrato[1] = 0;
    EXPECT_EQ(UnaVariante(senzaAttrito, {"metodoKs"})({1}).motivo, Motivo::metodoKs) << "Bowles";
    DatiProgetto senza = test::muro().dati();
    senza.rigidezzaEJ = 0;
    UnaVariante variante(senza, {"rigidezzaEJ"});
    EXPECT_EQ(variante({0}).motivo, Motivo::rigidezza);
    EXPECT_TRUE(variante({100000}).sta());
}

TEST(CalcoloVariante, HasTheRowsThatItsCountsSay) {
    const DatiProgetto dati = test::esempioStudio("diaframma_due_ordini");
    UnaVariante variante(dati, {"profFase[5]", "nFasi"});
    EXPECT_EQ(variante({dati.profFase[4], 4}).motivo, Motivo::riga);
    const double caduta = 50;  // deeper than the wall
    EXPECT_EQ(variante({caduta, 5}).faseCaduta, 5);
    EXPECT_EQ(variante.calcolo().dati().nFasi, 5);
    DatiProgetto tre = dati;
    tre.nFasi = 3;
    UnaVariante meno(dati, {"nFasi"});
    controllaConEquilibrio(tre, meno({3}));
}

TEST(CalcoloVariante, KeepsTheMethodOfThePressuresThatWasChosenForOnce) {
    DatiProgetto dati = test::muro().lungo(10).fase({.scavo = 3}).dati();
    UnaVariante coulomb(dati, {"coesione[1]"});
    dati.metodoSpinte = valore(project::MetodoSpinte::bell);
    UnaVariante bell(dati, {"coesione[1]"});
    EXPECT_NE(coulomb({5}).estremi.momento().valore, bell({5}).estremi.momento().valore);
}

TEST(CalcoloVariante, RefusesMoreSegmentsThanAFixedToeTakes) {
    UnaVariante variante(test::muro().lungo(10).fase({.scavo = 2}).dati(), {"vincoloPiede"},
                         {.nSeg = 249});
    EXPECT_TRUE(variante({1}).sta());
    EXPECT_EQ(variante({3}).motivo, Motivo::segmenti);
}

TEST(CalcoloVariante, HasTheMarginOfTheWall) {
    const DatiProgetto dati =
        test::leggiMuro(std::string(KORVEN_EXAMPLES) + "/diaframma_due_ordini.kvd");
    UnaVariante variante(dati, {"phiStrato[1]"},
                         {.nSeg = 50, .riduzione = true, .lunghezza = true});
    const RisultatoVariante& r = variante({dati.phiStrato[1]});
    analysis::OsservatoreCorsa nessuno;
    const safety::Margine margine = safety::margine(dati, 50, nessuno);
    ASSERT_TRUE(r.riduzione);
    EXPECT_EQ(r.riduzione->F, margine.decisiva()->riduzione.F);
    EXPECT_EQ(r.riduzione->fase, margine.decisiva()->fase);
    EXPECT_EQ(r.lunghezzaMinima->lunghezza, margine.lunghezza.lunghezza);
    double passiva = 0;
    for (const auto& fase : margine.fasi)
        passiva = std::max(passiva, fase.passiva.quota.value_or(0));
    EXPECT_EQ(r.passiva, passiva);
}

TEST(CalcoloVariante, TakesTheNumbersOfTheReportFromTheSpecifiedRun) {
    const DatiProgetto dati =
        test::leggiMuro(std::string(KORVEN_EXAMPLES) + "/diaframma_due_ordini.kvd");
    UnaVariante corsa(dati, {"phiStrato[1]"}, {.nSeg = 50, .soluzione = Soluzione::iterazione});
    const RisultatoVariante& r = corsa({dati.phiStrato[1]});
    analysis::OsservatoreCorsa nessuno;
    const auto relazione = safety::relazioneInMemoria(dati, 50, nessuno);
    ASSERT_TRUE(r.sta());
    EXPECT_EQ(r.estremi.momentoMassimo.valore, relazione.numeri->momentoMassimo().valore);
    EXPECT_EQ(r.estremi.taglio.valore, relazione.numeri->taglio.valore);
    EXPECT_EQ(r.tiri, relazione.numeri->tiriMassimi);
    EXPECT_FALSE(r.passiva);
    UnaVariante equilibrio(dati, {"phiStrato[1]"});
    const double suo = equilibrio({dati.phiStrato[1]}).estremi.spostamento.valore;
    EXPECT_NEAR(r.estremi.spostamento.valore, suo, 1e-7);
}

TEST(CalcoloVariante, TellsOfARunWithoutRestThatTheWallStands) {
    const DatiProgetto dati = test::leggiMuro(std::string(KORVEN_WALLS) + "/oscilla_1.kvd");
    UnaVariante corsa(dati, {"phiStrato[1]"},
                      {.nSeg = 50, .soluzione = Soluzione::iterazione, .riduzione = true});
    const RisultatoVariante& r = corsa({dati.phiStrato[1]});
    EXPECT_EQ(r.causa, Causa::oscilla);
    EXPECT_GT(r.faseCaduta, 0);
    EXPECT_TRUE(r.riduzione && (r.riduzione->F || r.riduzione->oltre));
    const DatiProgetto cade = test::leggiMuro(std::string(KORVEN_WALLS) + "/meccanismo.kvd");
    UnaVariante altra(cade, {"phiStrato[1]"}, {.nSeg = 50, .soluzione = Soluzione::iterazione});
    EXPECT_EQ(altra({cade.phiStrato[1]}).causa, Causa::meccanismo);
}

}  // namespace
}  // namespace korven::studies
