#include <gtest/gtest.h>

#include "review/margins.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;
using safety::Margine;

DatiProgetto conPiede(project::VincoloPiede vincolo) {
    DatiProgetto dati = paratia({{.scavo = 2}, {.scavo = 4}});
    dati.vincoloPiede = valore(vincolo);
    return dati;
}

const DatiProgetto incastrata = conPiede(project::VincoloPiede::incastro);

Osservazioni osservate(const DatiProgetto& dati, const Margine& margine) {
    ElencoOsservazioni elenco;
    controlloIncastro(dati, margine, elenco);
    return elenco.ordinate();
}

// Largest moment and shear 20 t m and 10 t; at the toe -12 t m and -4 t in truth.
Margine conValori(double momento, double taglio) {
    Margine m = margineSano(incastrata);
    auto& c = m.fasi[1].confronto;
    m.momento.statica = {20, 5, 2};
    m.taglio.statica = {10, 5, 2};
    c.momentoPiede = {{-12, 10, 2}, results::NumeroRelazione{momento, 10, 2}};
    c.taglioPiede = {{-4, 10, 2}, results::NumeroRelazione{taglio, 10, 2}};
    return m;
}

// Five percent of the largest are 1 t m and 0.5 t.
TEST(ControlloIncastro, TellsWhatTheReportShowsAtAFixedToe) {
    EXPECT_TRUE(osservate(incastrata, conValori(-11.1, -3.6)).empty());
    EXPECT_EQ(
        righe(osservate(incastrata, conValori(-11.1, 30))),
        Righe{
            "[da vedere] valori-al-piede-incastrato: vincolo al piede = incastro: nella fase 2 la "
            "relazione dà al piede momento -111.0 kN m/m e taglio 300.0 kN/m, l'equilibrio "
            "-120.0 kN m/m e -40.0 kN/m: usare questi"});
    EXPECT_EQ(osservate(incastrata, conValori(-10.9, -3.6)).size(), 1u);
    EXPECT_EQ(osservate(incastrata, conValori(-10.9, -3.6))[0].campi,
              std::vector<std::string>{"vincoloPiede"});
}

TEST(ControlloIncastro, LeavesOutAShearThatIsToldAsTheLargestOfTheReport) {
    Margine m = conValori(-11.1, 30);
    m.taglio = {{10, 5, 2}, results::NumeroRelazione{30, 10, 2}};
    EXPECT_TRUE(osservate(incastrata, m).empty());
    m.taglio.relazione = results::NumeroRelazione{30, 5, 2};
    EXPECT_EQ(osservate(incastrata, m).size(), 1u);
    m = conValori(-10.9, 30);
    m.taglio = {{10, 5, 2}, results::NumeroRelazione{30, 10, 2}};
    EXPECT_EQ(osservate(incastrata, m).size(), 1u);
}

TEST(ControlloIncastro, SaysNothingOfAnotherToeOrWithoutAReport) {
    EXPECT_TRUE(osservate(conPiede(project::VincoloPiede::cerniera), conValori(0, 30)).empty());
    Margine m = conValori(0, 30);
    m.fasi[1].confronto.momentoPiede.relazione.reset();
    m.fasi[1].confronto.taglioPiede.relazione.reset();
    EXPECT_TRUE(osservate(incastrata, m).empty());
}

TEST(ControlloIncastro, TellsAClampThatGives) {
    Margine m = margineSano(incastrata);
    m.fasi[0].piede.cedimento = 0.004;
    m.fasi[1].piede.cedimento = 0.01;
    EXPECT_TRUE(osservate(incastrata, m).empty());
    m.fasi[1].piede.cedimento = 0.0125;
    EXPECT_EQ(
        righe(osservate(incastrata, m)),
        Righe{
            "[da vedere] incastro-cedevole: vincolo al piede = incastro: l'incastro ruota del 1.3 "
            "% della rotazione massima (fase 2): con nodi così vicini le sue molle cedono, "
            "ridurre i segmenti"});
}

}  // namespace
}  // namespace korven::review
