#include "commands/project_review.hpp"

#include <gtest/gtest.h>

#include <functional>

#include "analysis/segment_count.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

using project::DatiProgetto;

// The lines of a review, "! " in front of what prevents a run.
std::vector<std::string> righe(const DatiProgetto& dati, const char* nSeg = "20") {
    analysis::contenutoNSeg = nSeg;
    std::vector<std::string> testo;
    for (const auto& r : esaminaProgetto(dati))
        testo.push_back((r.impedisce ? "! " : "") + r.testo);
    analysis::contenutoNSeg.reset();
    return testo;
}

using Modifica = std::function<void(DatiProgetto&)>;

DatiProgetto conModifica(const Modifica& modifica) {
    DatiProgetto d = test::progettoSemplice();
    modifica(d);
    return d;
}

struct Caso {
    Modifica modifica;
    std::vector<std::string> atteso;
};

void aspetta(const std::vector<Caso>& casi) {
    for (const auto& caso : casi) EXPECT_EQ(righe(conModifica(caso.modifica)), caso.atteso);
}

// What a review says can't be computed, a run must refuse; what it says can, must run.
bool laCorsaRiesce(const DatiProgetto& dati) {
    test::Banco banco(dati, 20);
    try {
        banco.calcola();
    } catch (const base::ErroreIndice&) {
        return false;
    }
    return !analysis::erroreCalcolo;
}

TEST(EsaminaProgetto, FindsNothingInASoundProject) {
    EXPECT_EQ(righe(test::progettoSemplice()), std::vector<std::string>{});
    EXPECT_TRUE(calcolabile({}));
}

TEST(EsaminaProgetto, TellsEveryFailedInputCheckOfARunNotTheFirstAlone) {
    DatiProgetto d;
    project::azzera(d);
    d.vincoloTesta = d.vincoloPiede = d.modoSpinte = d.modoKs = d.modoTensioni = 1;
    d.metodoSpinte = d.metodoKs = 1;
    EXPECT_EQ(
        righe(d),
        (std::vector<std::string>{
            "! Non è ancora stata definita la lunghezza della paratia, i calcoli non possono "
            "pertanto essere eseguiti.",
            "! Non è ancora stata definita la stratigrafia del terreno, i calcoli non possono "
            "pertanto essere eseguiti.",
            "! Non sono ancora state definite le fasi di scavo, i calcoli non possono "
            "pertanto essere eseguiti.",
            "! Il valore di EJ non è ancora stato definito."}));
}

TEST(EsaminaProgetto, RefusesBowlesOnALayerWithoutFriction) {
    aspetta({{[](DatiProgetto& d) {
                  d.metodoKs = 1;
                  d.phiStrato[2] = 0;
              },
              {"! Con il metodo scelto per il calcolo di Ks non sono ammessi angoli di attrito "
               "nulli."}},
             {[](DatiProgetto& d) { d.phiStrato[2] = 0; }, {}}});
}

TEST(EsaminaProgetto, RefusesAnUnusableNumberOfSegmentsInTheMannerOfTheInputChecks) {
    const std::vector<std::string> rifiuto = {
        "! Il numero di segmenti indicato in nseg.txt non è ammesso (un intero da 3 a 249, con il "
        "piede incastrato da 3 a 248), i calcoli non possono pertanto essere eseguiti."};
    for (const char* nSeg : {"2", "250", "-5", "0", "dieci", "", "20.5"})
        EXPECT_EQ(righe(test::progettoSemplice(), nSeg), rifiuto) << nSeg;
    for (const char* nSeg : {"3", "249", " 20", "20 segmenti"})
        EXPECT_TRUE(righe(test::progettoSemplice(), nSeg).empty()) << nSeg;
    const auto incastro = conModifica([](DatiProgetto& d) { d.vincoloPiede = 3; });
    EXPECT_EQ(righe(incastro, "249"), rifiuto);
    EXPECT_TRUE(righe(incastro, "248").empty());
}

TEST(EsaminaProgetto, NamesEachCodeOutOfRange) {
    aspetta({
        {[](DatiProgetto& d) { d.vincoloTesta = 3; },
         {"vincolo in testa: codice non previsto (3)"}},
        {[](DatiProgetto& d) { d.vincoloPiede = 4; },
         {"vincolo al piede: codice non previsto (4)"}},
        {[](DatiProgetto& d) { d.modoSpinte = 0; },
         {"opzione delle spinte: codice non previsto (0)"}},
        {[](DatiProgetto& d) { d.modoKs = -1; }, {"opzione di ks: codice non previsto (-1)"}},
        {[](DatiProgetto& d) { d.modoTensioni = 1.5; },
         {"opzione delle tensioni: codice non previsto (1.5)"}},
        {[](DatiProgetto& d) { d.metodoSpinte = 4; },
         {"metodo delle spinte: codice non previsto (4)"}},
        {[](DatiProgetto& d) { d.metodoKs = 5; }, {"metodo di ks: codice non previsto (5)"}},
        {[](DatiProgetto& d) { d.tipoTirante[1] = 2; },
         {"tirante 1: tipo non previsto: il calcolo lo fa agire solo a trazione, la relazione lo "
          "dice a trazione e compressione (2)"}},
        {[](DatiProgetto& d) {
             d.vincoloTesta = d.modoSpinte = d.modoKs = d.modoTensioni = 2;
             d.vincoloPiede = d.metodoSpinte = 3;
             d.metodoKs = 4;
             d.tipoTirante[1] = 1;
         },
         {}},
    });
}

TEST(EsaminaProgetto, NamesWhatIsOddAboutLayers) {
    aspetta({
        {[](DatiProgetto& d) { d.profStrato[1] = 25; },
         {"strato 2: finisce più in alto dello strato precedente"}},
        {[](DatiProgetto& d) { d.profStrato[1] = 20; }, {"strato 2: ha spessore nullo"}},
        {[](DatiProgetto& d) { d.gammaN[2] = 0; }, {"strato 2: peso di volume mancante"}},
        {[](DatiProgetto& d) { d.gammaSat[1] = 0; }, {"strato 1: peso di volume saturo mancante"}},
        {[](DatiProgetto& d) { d.ksStrato[1] = 0; }, {"strato 1: modulo ks mancante"}},
        {[](DatiProgetto& d) {
             d.metodoKs = 1;
             d.ksStrato[1] = 0;
         },
         {}},
        {[](DatiProgetto& d) { d.metodoKs = 2; },
         {"coefficiente m non positivo: il terreno non ha rigidezza"}},
        {[](DatiProgetto& d) {
             d.metodoKs = 2;
             d.coeffM = 100;
         },
         {}},
        {[](DatiProgetto& d) { d.profStrato[2] = 11.5; },
         {"gli strati finiscono sopra il piede della paratia: l'ultimo viene prolungato"}},
        {[](DatiProgetto& d) { d.profStrato[2] = 12; }, {}},
    });
}

TEST(EsaminaProgetto, TellsASlopeAboveTheFrictionAngleAndRefusesItWhereTheRunDoes) {
    const std::string avviso =
        "strato 1: l'angolo di attrito è minore dell'inclinazione del terreno";
    const std::string rifiuto =
        "! fase 1, profondità 0 m: coefficienti di spinta non definiti: l'inclinazione del terreno "
        "supera l'angolo di attrito";
    const struct {
        double metodo, phi;
        std::vector<std::string> atteso;
    } casi[] = {
        {1, 20, {rifiuto, avviso}},
        {2, 20, {rifiuto, avviso}},
        {3, 20, {avviso}},  // the slope is no part of Bell's coefficients
        {1, 0, {avviso}},   // without friction Coulomb's root is of nothing
        {2, 0, {rifiuto, avviso}},
        {1, 26, {}},
        {2, 26, {}},
    };
    for (const auto& caso : casi) {
        const auto d = conModifica([&](DatiProgetto& p) {
            p.inclinazioneMonte = 25;
            p.metodoSpinte = caso.metodo;
            p.phiStrato[1] = caso.phi;
        });
        EXPECT_EQ(righe(d), caso.atteso) << caso.metodo << ' ' << caso.phi;
        const bool impedita = !caso.atteso.empty() && caso.atteso[0] == rifiuto;
        EXPECT_EQ(laCorsaRiesce(d), !impedita) << caso.metodo << ' ' << caso.phi;
    }
}

TEST(EsaminaProgetto, DoesNotRefuseASlopeAboveTheFrictionOfALayerThatNoNodeLiesIn) {
    const auto d = conModifica([](DatiProgetto& p) {
        p.inclinazioneMonte = 25;
        p.phiStrato[1] = 30;
        p.phiStrato[2] = 34;
        p.nStrati = 3;
        p.profStrato[3] = 30;
        p.gammaN[3] = p.gammaSat[3] = 2;
        p.ksStrato[3] = 100;
        p.phiStrato[3] = 10;
    });
    EXPECT_EQ(righe(d), std::vector<std::string>{
                            "strato 3: l'angolo di attrito è minore dell'inclinazione del "
                            "terreno"});
    EXPECT_TRUE(laCorsaRiesce(d));
}

TEST(EsaminaProgetto, NamesWhatIsOddAboutAnchors) {
    aspetta({
        {[](DatiProgetto& d) { d.profTirante[1] = 12.5; },
         {"tirante 1: è più profondo della paratia (12.5)"}},
        {[](DatiProgetto& d) { d.profTirante[1] = -1; },
         {"tirante 1: è sopra la testa della paratia (-1)"}},
        {[](DatiProgetto& d) {
             d.nTiranti = 2;
             d.profTirante[2] = 1;
         },
         {"tirante 2: è più in alto del precedente"}},
        {[](DatiProgetto& d) { d.profTirante[1] = 12; }, {}},
    });
}

TEST(EsaminaProgetto, NamesWhatIsOddAboutTheAnchorsOfAStage) {
    aspetta({
        {[](DatiProgetto& d) { d.tirantiFase[2] = 2; },
         {"fase 2: più tiranti di quelli definiti: gli altri non hanno effetto (2)"}},
        {[](DatiProgetto& d) { d.tirantiFase[1] = -1; },
         {"fase 1: il numero di tiranti è negativo (-1)"}},
        {[](DatiProgetto& d) { d.tirantiFase[2] = 0.5; },
         {"fase 2: il numero di tiranti non è intero (0.5)"}},
        {[](DatiProgetto& d) {
             d.tirantiFase[1] = 1;
             d.tirantiFase[2] = 0;
         },
         {"fase 2: i tiranti sono meno che nella fase precedente"}},
    });
}

TEST(EsaminaProgetto, RefusesMoreAnchorsThanTheTableHoldsAsTheRunDoes) {
    for (const double troppi : {21.0, 25.0, 1e15}) {
        const auto d = conModifica([&](DatiProgetto& p) { p.tirantiFase[2] = troppi; });
        EXPECT_EQ(righe(d).size(), 1u);
        EXPECT_TRUE(
            righe(d)[0].starts_with("! fase 2: più tiranti di quanti ne tiene la tabella (20) ("));
        EXPECT_FALSE(laCorsaRiesce(d)) << troppi;
    }
    EXPECT_TRUE(laCorsaRiesce(conModifica([](DatiProgetto& p) { p.tirantiFase[2] = 20; })));
    EXPECT_TRUE(laCorsaRiesce(conModifica([](DatiProgetto& p) { p.tirantiFase[1] = -1e15; })));
}

TEST(EsaminaProgetto, NamesStagesOutOfOrderAndExcavationsBelowTheWall) {
    aspetta({
        {[](DatiProgetto& d) { d.profFase[1] = 6; },
         {"fase 2: lo scavo è meno profondo che nella fase precedente"}},
        {[](DatiProgetto& d) { d.profFase[2] = 12; },
         {"fase 2: lo scavo raggiunge o supera il piede della paratia"}},
        {[](DatiProgetto& d) { d.profFase[1] = 5; }, {}},
    });
}

TEST(EsaminaProgetto, PutsWhatPreventsARunInFrontOfTheRest) {
    const auto d = conModifica([](DatiProgetto& p) {
        p.vincoloTesta = 9;
        p.rigidezzaEJ = 0;
    });
    const auto rilievi = esaminaProgetto(d);
    ASSERT_EQ(rilievi.size(), 2u);
    EXPECT_TRUE(rilievi[0].impedisce);
    EXPECT_FALSE(rilievi[1].impedisce);
    EXPECT_FALSE(calcolabile(rilievi));
    EXPECT_TRUE(calcolabile({{false, "x"}}));
}

}  // namespace
}  // namespace korven::commands
