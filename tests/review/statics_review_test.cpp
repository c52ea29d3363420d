#include <gtest/gtest.h>

#include "review/margins.hpp"
#include "support/sample_sections.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;
using safety::Confronto;
using safety::Margine;

Osservazioni osservate(const DatiProgetto& dati, const Margine& margine) {
    ElencoOsservazioni elenco;
    controlloStatica(dati, margine, elenco);
    return elenco.ordinate();
}

const DatiProgetto dueFasi = paratia({{.scavo = 2}, {.scavo = 4}});

// 20 t of the statics in stage 2 at 3 m.
Confronto confronto(double relazione, double z = 3) {
    return {{20, 3, 2}, results::NumeroRelazione{relazione, z, 2}};
}

Righe conMomento(double relazione) {
    Margine m = margineSano(dueFasi);
    m.momento = confronto(relazione);
    return righe(osservate(dueFasi, m));
}

Righe conTaglio(double relazione) {
    Margine m = margineSano(dueFasi);
    m.taglio = confronto(relazione);
    return righe(osservate(dueFasi, m));
}

TEST(ControlloStatica, SaysNothingOfNumbersWithinFivePercent) {
    for (const double relazione : {19.01, 20.0, 20.99, -20.99}) {
        EXPECT_EQ(conMomento(relazione), Righe{});
        EXPECT_EQ(conTaglio(relazione), Righe{});
    }
    EXPECT_TRUE(osservate(dueFasi, margineSano(dueFasi)).empty());
}

TEST(ControlloStatica, TellsAMomentThatIsNotTheWalls) {
    EXPECT_EQ(conMomento(18.9),
              Righe{"[pericolo] momento-minore-della-statica: momento massimo della relazione "
                    "189.0 kN m/m (fase 2, a 3.00 m), dell'equilibrio 200.0 kN m/m (fase 2, a 3.00 "
                    "m): verificare la sezione con il secondo"});
    EXPECT_EQ(conMomento(-21.1),
              Righe{"[da vedere] momento-maggiore-della-statica: momento massimo della relazione "
                    "-211.0 kN m/m (fase 2, a 3.00 m), dell'equilibrio 200.0 kN m/m (fase 2, a "
                    "3.00 m): il primo non è della paratia"});
}

TEST(ControlloStatica, TellsAShearThatIsNotTheWalls) {
    EXPECT_EQ(conTaglio(18.9),
              Righe{"[pericolo] taglio-minore-della-statica: taglio massimo del diagramma 189.0 "
                    "kN/m (fase 2, a 3.00 m), dell'equilibrio 200.0 kN/m (fase 2, a 3.00 m): "
                    "verificare la sezione con il secondo"});
    EXPECT_EQ(conTaglio(21.1),
              Righe{"[da vedere] taglio-maggiore-della-statica: taglio massimo del diagramma 211.0 "
                    "kN/m (fase 2, a 3.00 m), dell'equilibrio 200.0 kN/m (fase 2, a 3.00 m): il "
                    "primo non è della paratia"});
}

TEST(ControlloStatica, LeavesOutWhatIsLessThanAKilonewton) {
    Margine m = margineSano(dueFasi);
    m.momento = {{1e-15, 3, 2}, results::NumeroRelazione{0, 0, 1}};
    m.taglio = {{1, 3, 2}, results::NumeroRelazione{1.09, 0, 1}};
    EXPECT_TRUE(osservate(dueFasi, m).empty());
    m.taglio.relazione->valore = 1.11;
    EXPECT_EQ(osservate(dueFasi, m).size(), 1u);
}

struct Caso {
    DatiProgetto dati;
    Confronto taglio;
    std::string_view motivo;
    std::vector<std::string> campi;
};

// The wall of 10 m has its nodes at 0.2 m.
TEST(ControlloStatica, SaysWhatMakesTheShearDiffer) {
    const auto muro = [] { return test::muro().fase({.scavo = 2, .tiranti = 1}); };
    const auto altro = [](double statica, double z) {
        return Confronto{{statica, z, 1}, results::NumeroRelazione{15, 5, 1}};
    };
    const Caso casi[] = {
        {muro()
             .con(&DatiProgetto::vincoloPiede, valore(project::VincoloPiede::incastro))
             .tirante(1, 500)
             .dati(),
         {{20, 3, 1}, results::NumeroRelazione{40, 10, 1}},
         "; al piede incastrato il diagramma conta le molle dell'incastro: ",
         {"vincoloPiede"}},
        {muro().con(&DatiProgetto::forzaTesta, 4).tirante(1, 500).dati(),
         {{20, 0, 1}, results::NumeroRelazione{40, 0, 1}},
         "; al primo nodo il diagramma conta due volte la forza in testa: ",
         {"forzaTesta"}},
        {muro().tirante(3.05, 500).dati(),
         altro(20, 3),
         "; il diagramma non comprende il taglio sopra un tirante o puntone che non è su un nodo: ",
         {"profTirante[1]"}},
        {muro()
             .con(&DatiProgetto::vincoloPiede, valore(project::VincoloPiede::cerniera))
             .tirante(3.05, 500)
             .dati(),
         altro(20, 10),
         "; il diagramma non comprende la reazione al piede: ",
         {"vincoloPiede"}},
        {muro()
             .con(&DatiProgetto::vincoloTesta, valore(project::VincoloTesta::cerniera))
             .tirante(3.05, 500)
             .dati(),
         altro(20, 0),
         "; il diagramma non comprende la reazione al primo nodo: ",
         {"vincoloTesta"}},
        {muro().tirante(3, 500).dati(),
         {{20, 5, 1}, results::NumeroRelazione{25, 3, 1}},
         "; al tirante o puntone il diagramma estrapola il taglio dai due nodi sotto: ",
         {"profTirante[1]"}},
        {muro().tirante(3.05, 500).dati(), altro(20, 5), "(fase 1, a 5.00 m): ", {}},
    };
    for (const Caso& caso : casi) {
        Margine m = margineSano(caso.dati);
        conTiro(m, 1, 6, 6, false);
        m.taglio = caso.taglio;
        const Osservazioni una = osservate(caso.dati, m);
        ASSERT_EQ(una.size(), 1u) << caso.motivo;
        EXPECT_NE(una[0].testo.find(caso.motivo), std::string::npos) << una[0].testo;
        EXPECT_EQ(una[0].campi, caso.campi);
    }
}

// The diagram has a value below each anchor, also below one between the nodes, and makes it itself.
TEST(ControlloStatica, GivesALesserShearTheReasonOfItsSideOfTheAnchor) {
    using equilibrium::Lato;
    const DatiProgetto traNodi =
        test::muro().fase({.scavo = 2, .tiranti = 1}).tirante(3.05, 500).dati();
    const DatiProgetto suUnNodo =
        test::muro().fase({.scavo = 2, .tiranti = 1}).tirante(3, 500).dati();
    const auto detto = [](const DatiProgetto& dati, bool nelTaglio, Lato lato) {
        Margine m = margineSano(dati);
        conTiro(m, 1, 6, 6, nelTaglio);
        m.taglio = {{20, 3, 1, lato}, results::NumeroRelazione{15, 5, 1}};
        return osservate(dati, m).at(0).testo;
    };
    const auto contiene = [](const std::string& testo, const char* motivo) {
        return testo.find(motivo) != std::string::npos;
    };
    EXPECT_TRUE(
        contiene(detto(traNodi, false, Lato::sopra), "; il diagramma non comprende il taglio"));
    EXPECT_TRUE(
        contiene(detto(traNodi, false, Lato::sotto), "; al tirante o puntone il diagramma"));
    EXPECT_TRUE(
        contiene(detto(suUnNodo, true, Lato::sopra), "; al tirante o puntone il diagramma"));
    EXPECT_TRUE(
        contiene(detto(suUnNodo, true, Lato::sotto), "; al tirante o puntone il diagramma"));
}

TEST(ControlloStatica, NamesSlackAnchors) {
    const DatiProgetto dati = test::muro().fase({.scavo = 2, .tiranti = 1}).tirante(3, 500).dati();
    Margine m = margineSano(dati);
    conTiro(m, 1, 0, -5);
    m.taglio = {{20, 5, 1}, results::NumeroRelazione{25, 3, 1}};
    const Osservazioni una = osservate(dati, m);
    ASSERT_EQ(una.size(), 1u);
    EXPECT_NE(una[0].testo.find("; il diagramma conta tiranti lenti: "), std::string::npos);
    EXPECT_EQ(una[0].campi, std::vector<std::string>{"tipoTirante[1]"});
}

TEST(ControlloStatica, SaysThatAMomentAtAFixedToeIsExtrapolated) {
    DatiProgetto dati = dueFasi;
    Margine m = margineSano(dati);
    m.momento = {{-20, 10, 2}, results::NumeroRelazione{-15, 10, 2}};
    EXPECT_EQ(osservate(dati, m)[0].testo.find("estrapola"), std::string::npos);
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    EXPECT_NE(osservate(dati, m)[0].testo.find(
                  "; al piede incastrato la relazione estrapola il momento dai due nodi sopra: "),
              std::string::npos);
}

// Reinforced piles with stirrups, whose shear the report checks: 10 t in the last stage.
Righe conUltimo(const project::Sezione& sezione, double statica, int fase) {
    DatiProgetto dati = dueFasi;
    dati.sezione = sezione;
    Margine m = margineSano(dati);
    m.taglio = {{statica, 3, fase}, results::NumeroRelazione{statica, 3, fase}};
    m.fasi[1].confronto.taglio = {{10, 5, 2}, results::NumeroRelazione{10, 5, 2}};
    return righe(osservate(dati, m));
}

TEST(ControlloStatica, TellsAShearOfAnEarlierStageThatTheCheckLeavesOut) {
    project::Sezione staffe = structure::paliArmati();
    staffe.armDiamStaffe = 1;
    staffe.armPassoStaffe = 20;
    EXPECT_EQ(conUltimo(staffe, -20, 1),
              Righe{"[pericolo] taglio-di-altra-fase: fase 1: Prof. [m] = 2: la verifica a taglio "
                    "conta soltanto l'ultima fase, 100.0 kN/m, ma qui il taglio arriva a -200.0 "
                    "kN/m, a 3.00 m: verificare anche questo"});
    EXPECT_EQ(conUltimo(staffe, 10.5, 1), Righe{});
    EXPECT_EQ(conUltimo(staffe, 10, 2), Righe{});
    EXPECT_EQ(conUltimo(structure::diaframmaSimmetrico(), -20, 1), Righe{});
    project::Sezione senza = staffe;
    senza.armPassoStaffe = 0;
    EXPECT_EQ(conUltimo(senza, -20, 1), Righe{});
}

}  // namespace
}  // namespace korven::review
