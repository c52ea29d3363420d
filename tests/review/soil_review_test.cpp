#include <gtest/gtest.h>

#include "base/number_text.hpp"
#include "project/codes.hpp"
#include "review/bench.hpp"
#include "support/wall_builder.hpp"

namespace korven::review {
namespace {

using project::MetodoKs;

TEST(ControlloTerreno, NamesWhatIsOddAboutLayers) {
    aspetta({
        {[](DatiProgetto& d) { d.profStrato[1] = 25; },
         {"strato 2: Prof. [m] = 20: finisce più in alto dello strato precedente"}},
        {[](DatiProgetto& d) { d.profStrato[1] = 20; },
         {"strato 2: Prof. [m] = 20: ha spessore nullo"}},
        {[](DatiProgetto& d) { d.profStrato[1] = -3; },
         {"strato 1: Prof. [m] = -3: finisce più in alto dello strato precedente"}},
        {[](DatiProgetto& d) { d.profStrato[2] = 200; }, {}},
        {[](DatiProgetto& d) { d.profStrato[2] = 200.5; },
         {"strato 2: Prof. [m] = 200.5: supera i 200 m: controllare la profondità"}},
        {[](DatiProgetto& d) { d.profStrato[1] = 45000; },
         {"strato 2: Prof. [m] = 20: finisce più in alto dello strato precedente",
          "strato 1: Prof. [m] = 45000: supera i 200 m: controllare la profondità"}},
        {[](DatiProgetto& d) { d.gammaN[2] = 0; },
         {"strato 2: Gamma [kN/m³] = 0: peso di volume mancante"}},
        {[](DatiProgetto& d) { d.gammaSat[1] = 0; },
         {"strato 1: Gamma Sat. [kN/m³] = 0: peso di volume mancante"}},
        {[](DatiProgetto& d) { d.phiStrato[1] = 0; },
         {"strato 1: Phi [°] = 0: né attrito né coesione: il terreno spinge come un liquido e non "
          "resiste"}},
        {[](DatiProgetto& d) {
             d.phiStrato[1] = 0;
             d.coesione[1] = 1;
         },
         {}},
        {[](DatiProgetto& d) {  // below the toe
             test::aggiungiStrato(d, {.fondo = 30, .phi = 0});
             d.profStrato[2] = 12;
         },
         {}},
        {[](DatiProgetto& d) { d.ksStrato[1] = 0; },
         {"strato 1: ks [kN/m³] = 0: modulo ks mancante"}},
        {[](DatiProgetto& d) {
             d.metodoKs = valore(MetodoKs::bowles);
             d.ksStrato[1] = d.ksStrato[2] = 0;
         },
         {}},
        {[](DatiProgetto& d) {
             d.metodoKs = valore(MetodoKs::lancellotta);
             d.ksStrato[1] = d.ksStrato[2] = 0;
         },
         {"coefficiente m = 0: il terreno non ha rigidezza"}},
        {[](DatiProgetto& d) {
             d.metodoKs = valore(MetodoKs::lancellotta);
             d.ksStrato[1] = d.ksStrato[2] = 0;
             d.coeffM = 100;
         },
         {}},
        {[](DatiProgetto& d) { d.profStrato[2] = 11.5; },
         {"strato 2: Prof. [m] = 11.5: gli strati finiscono sopra il piede della paratia: l'ultimo "
          "viene prolungato"}},
        {[](DatiProgetto& d) { d.profStrato[2] = 12; }, {}},
    });
}

const std::set<std::string_view> pendio = {"suolo-non-calcolabile", "angolo-minore-del-pendio"};

TEST(ControlloTerreno, TellsASlopeAboveTheFrictionAngleAndRefusesItWhereTheRunDoes) {
    const auto avviso = [](double phi) {
        return "strato 1: Phi [°] = " + base::testoNumero(phi) +
               ": l'angolo di attrito è minore dell'inclinazione del terreno";
    };
    const std::string rifiuto =
        "! fase 1, profondità 0 m: coefficienti di spinta non definiti: l'inclinazione del terreno "
        "supera l'angolo di attrito";
    const struct {
        double metodo, phi;
        std::vector<std::string> atteso;
    } casi[] = {
        {1, 20, {rifiuto, avviso(20)}},
        {2, 20, {rifiuto, avviso(20)}},
        {3, 20, {avviso(20)}},  // the slope is no part of Bell's coefficients
        {1, 0, {avviso(0)}},    // without friction Coulomb's root is of nothing
        {2, 0, {rifiuto, avviso(0)}},
        {1, 26, {}},
        {2, 26, {}},
    };
    for (const auto& caso : casi) {
        const auto d = conModifica([&](DatiProgetto& p) {
            p.inclinazioneMonte = 25;
            p.metodoSpinte = caso.metodo;
            p.phiStrato[1] = caso.phi;
        });
        EXPECT_EQ(righeDi(d, pendio), caso.atteso) << caso.metodo << ' ' << caso.phi;
        const bool impedita = !caso.atteso.empty() && caso.atteso[0] == rifiuto;
        EXPECT_EQ(laCorsaRiesce(d), !impedita) << caso.metodo << ' ' << caso.phi;
    }
}

TEST(ControlloTerreno, DoesNotRefuseASlopeAboveTheFrictionOfALayerThatNoNodeLiesIn) {
    const auto d = conModifica([](DatiProgetto& p) {
        p.inclinazioneMonte = 25;
        p.phiStrato[1] = 30;
        p.phiStrato[2] = 34;
        test::aggiungiStrato(p, {.fondo = 30, .gammaN = 2, .phi = 10, .ks = 100});
    });
    EXPECT_EQ(righeDi(d, pendio),
              std::vector<std::string>{
                  "strato 3: Phi [°] = 10: l'angolo di attrito è minore dell'inclinazione del "
                  "terreno"});
    EXPECT_TRUE(laCorsaRiesce(d));
}

TEST(ControlloTerreno, RefusesAFallingSlopeSteeperThanTheFrictionAngleInWordsOfItsOwn) {
    const auto d = conModifica([](DatiProgetto& p) { p.inclinazioneMonte = -32; });
    EXPECT_EQ(righeDi(d, pendio),
              (std::vector<std::string>{
                  "! fase 1, profondità 0 m: coefficienti di spinta non definiti: la pendenza in "
                  "discesa del terreno supera l'angolo di attrito",
                  "strato 1: Phi [°] = 30: l'angolo di attrito è minore dell'inclinazione del "
                  "terreno"}));
    EXPECT_FALSE(laCorsaRiesce(d));
}

TEST(ControlloTerreno, NamesValuesThatNoSoilHas) {
    const std::string kN =
        ": sembra un peso di volume in kN/m³: il file lo tiene in t/m³, dieci volte più piccolo";
    aspetta({
        {[](DatiProgetto& d) { d.gammaN[1] = d.gammaSat[1] = 18; },
         {"strato 1: Gamma [kN/m³] = 180" + kN, "strato 1: Gamma Sat. [kN/m³] = 180" + kN}},
        {[](DatiProgetto& d) { d.gammaSat[2] = 1.5; },
         {"strato 2: Gamma Sat. [kN/m³] = 15: il peso di volume saturo è minore di quello "
          "naturale"}},
        {[](DatiProgetto& d) { d.gammaSat[2] = 1.9; }, {}},
        {[](DatiProgetto& d) { d.coesione[2] = -0.5; },
         {"strato 2: Coes. [kN/m²] = -5: valore negativo"}},
        {[](DatiProgetto& d) { d.ksStrato[2] = -10; },
         {"strato 2: ks [kN/m³] = -100: valore negativo"}},
        {[](DatiProgetto& d) { d.sovraccMonte = -1; },
         {"Sovraccarico verticale lato monte [kN/m²] = -10: valore negativo"}},
        {[](DatiProgetto& d) { d.gammaAcqua = 9.81; }, {"peso dell'acqua = 9.81" + kN}},
        {[](DatiProgetto& d) { d.gammaAcqua = 0; },
         {"peso dell'acqua = 0: peso di volume mancante"}},
        {[](DatiProgetto& d) { d.phiStrato[1] = 95; },
         {"strato 1: Phi [°] = 95: l'angolo non è ammissibile"}},
        {[](DatiProgetto& d) { d.phiStrato[1] = -1; },
         {"strato 1: Phi [°] = -1: l'angolo non è ammissibile",
          "strato 1: Phi [°] = -1: l'angolo di attrito è minore dell'inclinazione del terreno"}},
    });
}

TEST(ControlloTerreno, RefusesAFrictionAngleAtThePoleOnly) {
    const auto polo = conModifica([](DatiProgetto& p) { p.phiStrato[1] = 90; });
    EXPECT_EQ(righe(polo)[0],
              "! fase 1, profondità 0 m: coefficienti di spinta non definiti: divisione per zero");
    EXPECT_FALSE(laCorsaRiesce(polo));
    const auto oltre = conModifica([](DatiProgetto& p) {
        p.phiStrato[1] = p.phiStrato[2] = 60;
        p.inclinazioneMonte = 45;
    });
    const std::string avviso =
        ": Phi [°] = 60: con l'inclinazione del terreno arriva a 90°: il coefficiente passivo di "
        "Coulomb non ha significato";
    const auto trovate = righe(oltre);
    ASSERT_EQ(trovate.size(), 6u);  // two on the angles, the last two on the coefficient at rest
    EXPECT_EQ(trovate[0], "strato 1" + avviso);
    EXPECT_EQ(trovate[1], "strato 2" + avviso);
    EXPECT_TRUE(laCorsaRiesce(oltre));
}

// Rankine's and Bell's coefficients have their pole at 90 degrees, whatever the slope.
TEST(ControlloTerreno, TellsThePolesOfRankineAndBellAsAnglesThatNoSoilHas) {
    for (const double metodo : {2.0, 3.0}) {
        const auto con = [&](double phi, double pendenza) {
            return righeDi(conModifica([&](DatiProgetto& d) {
                               d.metodoSpinte = metodo;
                               d.phiStrato[2] = phi;
                               d.inclinazioneMonte = pendenza;
                           }),
                           {"polo-passivo", "angolo-non-ammissibile"});
        };
        EXPECT_EQ(con(90, 0),
                  std::vector<std::string>{"strato 2: Phi [°] = 90: l'angolo non è ammissibile"});
        EXPECT_TRUE(con(60, 30).empty());
    }
}

TEST(ControlloTerreno, TellsAWallThatReachesBelowTheDeepenedLastLayer) {
    const auto d = [](double fondo) {
        return conModifica([&](DatiProgetto& p) {
            p.lunghezzaParatia = 120;
            p.profTirante[1] = 2.4;  // on a node
            p.profStrato[2] = fondo;
        });
    };
    EXPECT_EQ(righe(d(19)),
              std::vector<std::string>{"strato 2: Prof. [m] = 19: la paratia scende più di 100 m "
                                       "sotto l'ultimo strato: là sotto non ha terreno"});
    EXPECT_EQ(righe(d(20)), std::vector<std::string>{
                                "strato 2: Prof. [m] = 20: gli strati finiscono sopra il piede "
                                "della paratia: l'ultimo viene prolungato"});
}

// Water 2 m above the ground on light soil: at depth 0.6 its effective stress is -0.06 + 0.02.
TEST(ControlloSuolo, TellsASpringThatPushesOnOnceAndLetsTheRunGoOn) {
    const auto d = conModifica([](DatiProgetto& p) {
        p.metodoKs = valore(MetodoKs::bowles);
        p.sovraccMonte = 0;
        p.faldaMonte = -2;
        p.gammaN[1] = 0.5;
        p.gammaSat[1] = 0.9;
    });
    const auto trovate = righeDi(d, {"modulo-negativo"});
    ASSERT_EQ(trovate.size(), 1u);
    EXPECT_TRUE(
        trovate[0].starts_with("fase 1, profondità 0 m, strato 1, lato monte: ks [kN/m³] = -"))
        << trovate[0];
    EXPECT_TRUE(
        trovate[0].ends_with("il terreno spinge invece di reagire, come accade con una "
                             "tensione efficace negativa"));
    EXPECT_TRUE(calcolabile(esaminaProgetto(d)));
}

// From 15000 kN/m3 at 4 m to 3000 at 8 m the line falls by 3000 a metre: 0 at 9 m, and at 9.12 m,
// the next of the nodes 0.24 m apart, -360. On the retained side the layer counts 100 m deeper.
TEST(ControlloSuolo, TellsALinearLawThatFallsBelowZeroUnderTheLastLayer) {
    const auto d = [](double fondo) {
        return conModifica([&](DatiProgetto& p) {
            p.metodoKs = valore(MetodoKs::lineare);
            p.profStrato[2] = fondo;
            p.ksStrato[1] = 1500;
            p.ksStrato[2] = 300;
        });
    };
    EXPECT_EQ(righeDi(d(8), {"modulo-negativo", "modulo-lineare-negativo"}),
              std::vector<std::string>{
                  "fase 1, profondità 9.12 m, strato 2, lato valle: ks [kN/m³] = -360.0: oltre "
                  "l'ultimo strato la legge lineare di ks prosegue e scende sotto zero: da qui in "
                  "giù il terreno spinge invece di reagire; portare l'ultimo strato fino al piede "
                  "della paratia"});
    EXPECT_EQ(osservazioni(d(8))[0].campi, std::vector<std::string>{"profStrato[2]"});
    EXPECT_TRUE(righeDi(d(12), {"modulo-negativo", "modulo-lineare-negativo"}).empty());
}

TEST(ControlloTerreno, TellsAnglesAndCohesionsThatFewSoilsHave) {
    const std::set<std::string_view> insoliti = {"angolo-insolito", "coesione-insolita"};
    const auto dette = [&](double phi, double coesione) {
        return righeDi(conModifica([=](DatiProgetto& d) {
                           d.phiStrato[1] = phi;
                           d.coesione[1] = coesione;
                       }),
                       insoliti);
    };
    using Righe = std::vector<std::string>;
    EXPECT_EQ(dette(45, 10), Righe{});
    EXPECT_EQ(dette(90, 0), Righe{});  // no angle at all, told as such
    EXPECT_EQ(dette(46, 20),
              (Righe{"strato 1: Phi [°] = 46: supera 45°: pochi terreni ci arrivano, e un angolo "
                     "troppo grande toglie spinta attiva e aggiunge resistenza davanti; "
                     "controllare le prove",
                     "strato 1: Coes. [kN/m²] = 200: supera 100 kN/m², troppo per quasi ogni "
                     "terreno: se nel file è scritta in kPa, il file la tiene in t/m², dieci volte "
                     "più piccola; giusta solo per roccia o argilla molto consistente"}));
}

}  // namespace
}  // namespace korven::review
