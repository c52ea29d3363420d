#include "dossier/dossier.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "base/version.hpp"
#include "support/restless_wall.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_files.hpp"

namespace korven::dossier {
namespace {

using project::DatiProgetto;

DatiProgetto muro() {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    return dati;
}

Richiesta richiesta(const DatiProgetto& dati) {
    return {.scritti = dati, .usati = dati, .nSeg = 40, .identita = {}, .sulProgetto = {}};
}

class InSilenzio : public analysis::OsservatoreCorsa {};

Fascicolo fascicoloDi(const DatiProgetto& dati) {
    InSilenzio osservatore;
    return fascicolo(richiesta(dati), osservatore);
}

TEST(FascicoloTest, HoldsAllThatIsKnownOfAWallThatStands) {
    const Fascicolo f = fascicoloDi(muro());
    EXPECT_TRUE(f.parete.sta());
    EXPECT_EQ(f.parete.nSeg, 40);
    ASSERT_TRUE(f.margine);
    EXPECT_TRUE(f.conRelazione());
    EXPECT_EQ(f.bilanci.size(), 2U);
    EXPECT_EQ(f.bilanci[1].fase, 2);
    EXPECT_EQ(f.corsa.size(), 2U);
    EXPECT_EQ(f.fine.modo, analysis::ModoFine::compiuta);
    EXPECT_EQ(f.tiranti.size(), 1U);
    EXPECT_TRUE(f.tiranti[0].relazione);
    EXPECT_EQ(f.inviluppo.y.massimo.size(), 41U);
    EXPECT_EQ(f.nelDominio.size(), 2U);
    EXPECT_GT(f.dominio.size(), 8U);
    EXPECT_TRUE(f.flessione);
    EXPECT_FALSE(f.taglio);
}

TEST(FascicoloTest, TakesTheSectionsActionsFromTheEquilibriumThoughThereIsAReport) {
    const Fascicolo f = fascicoloDi(muro());
    EXPECT_FALSE(f.controlli.dellaRelazione);
    EXPECT_EQ(f.controlli.flessione->mMin, f.parete.estremi.momentoMinimo.valore);
    EXPECT_EQ(f.nelDominio[1].momenti.mMin,
              equilibrium::estremi(*f.parete.fase(2), f.parete.h).momentoMinimo.valore);
}

TEST(FascicoloTest, TellsTheProgramAndTheImprintOfWhatIsWritten) {
    Richiesta r = richiesta(muro());
    r.usati.metodoSpinte = 2;
    r.identita.file = "muro.kvd";
    r.identita.opzioni = {"--metodo-spinte rankine"};
    InSilenzio osservatore;
    const Fascicolo f = fascicolo(r, osservatore);
    EXPECT_EQ(f.identita.programma, "KORVEN 32");
    EXPECT_EQ(f.identita.versione, base::versione);
    EXPECT_EQ(f.identita.impronta, impronta(muro()));
    EXPECT_EQ(f.identita.file, "muro.kvd");
    EXPECT_EQ(f.scritti.metodoSpinte, 1);
    EXPECT_EQ(f.parete.dati.metodoSpinte, 2);
    EXPECT_NE(f.parete.estremi.momento().valore,
              fascicoloDi(muro()).parete.estremi.momento().valore);
}

TEST(FascicoloTest, HasTheRemarksOfProjectAndResultsByWeight) {
    auto dati = muro();
    dati.gammaN[1] = 0;
    const Fascicolo f = fascicoloDi(dati);
    ASSERT_FALSE(f.osservazioni.empty());
    for (std::size_t i = 1; i < f.osservazioni.size(); ++i)
        EXPECT_LE(f.osservazioni[i - 1].peso, f.osservazioni[i].peso);
    Richiesta r = richiesta(dati);
    r.sulProgetto = review::Osservazioni{};
    InSilenzio osservatore;
    EXPECT_LT(fascicolo(r, osservatore).osservazioni.size(), f.osservazioni.size());
}

TEST(FascicoloTest, OfAWallThatFallsHoldsTheStagesThatStand) {
    auto dati = muro();
    dati.profFase[2] = 11.9;
    dati.tirantiFase[2] = 0;
    const Fascicolo f = fascicoloDi(dati);
    EXPECT_FALSE(f.parete.sta());
    ASSERT_TRUE(f.parete.perche);
    EXPECT_EQ(f.bilanci.size(), 1U);
    EXPECT_EQ(f.nelDominio.size(), 1U);
    EXPECT_TRUE(f.margine);
    EXPECT_TRUE(f.corsa.empty());
    EXPECT_FALSE(f.conRelazione());
}

TEST(FascicoloTest, OfAWallWhoseRunGoesToAndFroHasTheEquilibriumAllTheSame) {
    auto r = richiesta(test::progettoSenzaPace());
    r.nSeg = 10;
    InSilenzio osservatore;
    const Fascicolo f = fascicolo(r, osservatore);
    EXPECT_TRUE(f.parete.sta());
    EXPECT_EQ(f.bilanci.size(), 1U);
    EXPECT_EQ(f.fine.modo, analysis::ModoFine::oltreLimite);
    ASSERT_EQ(f.corsa.size(), 1U);
    EXPECT_FALSE(f.corsa[0].convergente);
    EXPECT_FALSE(f.conRelazione());
}

TEST(FascicoloTest, OfDataThatNothingCanBeComputedOfTellsWhy) {
    auto dati = muro();
    dati.nFasi = 0;
    const Fascicolo f = fascicoloDi(dati);
    EXPECT_FALSE(f.parete.rifiuto.empty());
    EXPECT_FALSE(f.margine);
    EXPECT_TRUE(f.bilanci.empty());
    EXPECT_FALSE(f.osservazioni.empty());
    EXPECT_TRUE(f.flessione);  // the section has its resistances
    EXPECT_FALSE(f.flessione->positivo.uso);
    const Fascicolo vuoto = fascicolo(DatiProgetto{});
    EXPECT_FALSE(vuoto.parete.rifiuto.empty());
    EXPECT_FALSE(vuoto.flessione);
}

TEST(FascicoloTest, OfNumbersBeyondAllUseIsMadeAllTheSame) {
    using std::numeric_limits;
    for (const double valore : {1e300, -1e300, numeric_limits<double>::infinity(),
                                numeric_limits<double>::quiet_NaN(), 0.0})
        for (double DatiProgetto::*campo :
             {&DatiProgetto::lunghezzaParatia, &DatiProgetto::rigidezzaEJ,
              &DatiProgetto::gammaAcqua, &DatiProgetto::forzaTesta, &DatiProgetto::sforzoNormale}) {
            auto dati = muro();
            dati.*campo = valore;
            const Fascicolo f = fascicoloDi(dati);
            EXPECT_EQ(f.identita.impronta.size(), std::isfinite(valore) ? 64U : 0U);
            EXPECT_EQ(f.bilanci.size(), static_cast<std::size_t>(f.parete.fasiInEquilibrio()));
        }
    auto dati = muro();
    dati.tirantiFase[2] = 30;  // more than their table holds
    EXPECT_FALSE(fascicoloDi(dati).margine);
    dati = muro();
    dati.sezione.armNumLong = 1e9;
    dati.sezione.tipoDiaframma = false;
    dati.sezione.tipoPaliArmati = true;
    EXPECT_FALSE(fascicoloDi(dati).flessione);
}

TEST(FascicoloTest, OfMoreSegmentsThanTheRunTakesHasTheEquilibriumAlone) {
    auto r = richiesta(muro());
    r.nSeg = 400;
    InSilenzio osservatore;
    const Fascicolo f = fascicolo(r, osservatore);
    EXPECT_TRUE(f.parete.sta());
    EXPECT_FALSE(f.margine);
    EXPECT_EQ(f.bilanci.size(), 2U);
}

TEST(FascicoloTest, LetsTheObserverStopTheRunAndThrow) {
    class Ferma : public analysis::OsservatoreCorsa {
     public:
        [[nodiscard]] bool fermata() override { return true; }
    } ferma;
    const Fascicolo f = fascicolo(richiesta(muro()), ferma);
    EXPECT_EQ(f.fine.modo, analysis::ModoFine::fermata);
    EXPECT_TRUE(f.parete.sta());
    EXPECT_FALSE(f.conRelazione());
    class Lancia : public analysis::OsservatoreCorsa {
     public:
        void inizio(int) override { throw std::runtime_error("via"); }
    } lancia;
    EXPECT_THROW((void)fascicolo(richiesta(muro()), lancia), std::runtime_error);
}

TEST(FascicoloTest, IsMadeOfEveryExampleAndOfEveryWallThatHasTroubles) {
    for (const char* cartella : {KORVEN_EXAMPLES, KORVEN_WALLS})
        for (const std::string& file : test::muriIn(cartella)) {
            const auto dati = test::leggiMuro(file);
            auto r = richiesta(dati);
            r.nSeg = 20;
            InSilenzio osservatore;
            const Fascicolo f = fascicolo(r, osservatore);
            EXPECT_EQ(f.bilanci.size(), static_cast<std::size_t>(f.parete.fasiInEquilibrio()));
            EXPECT_EQ(f.tiranti.size(), static_cast<std::size_t>(dati.nTiranti));
            EXPECT_TRUE(f.margine) << file;
        }
}

}  // namespace
}  // namespace korven::dossier
