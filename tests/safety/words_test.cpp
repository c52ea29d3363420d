#include "safety/words.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace korven::safety {
namespace {

using equilibrium::DatoInstabile;
using equilibrium::EsitoNewton;
using equilibrium::Instabile;
using equilibrium::Meccanismo;
using equilibrium::PartiAlLimite;

TEST(ParoleMeccanismo, SayAboutWhichDepthTheWallTurnsAndWhichPartGoesTowardsTheExcavation) {
    EXPECT_EQ(parole(Meccanismo{false, 4.2, 1, 3.51}, 10),
              "ruota attorno alla profondità di 4.20 m, il piede verso lo scavo");
    EXPECT_EQ(parole(Meccanismo{false, 4.2, -1, 3.51}, 10),
              "ruota attorno alla profondità di 4.20 m, la testa verso lo scavo");
    EXPECT_EQ(parole(Meccanismo{false, 0, 1, 1}, 10),
              "ruota attorno alla profondità di 0.00 m, il piede verso lo scavo");
    EXPECT_EQ(parole(Meccanismo{false, 10, -1, 1}, 10),
              "ruota attorno alla profondità di 10.00 m, la testa verso lo scavo");
}

// Nothing lies above the head or below the toe that could go towards the excavation.
TEST(ParoleMeccanismo, SayOfAWallThatGoesUphillAsAWholeWhichEndDoes) {
    EXPECT_EQ(parole(Meccanismo{false, 0, -1, 1}, 10),
              "ruota attorno alla profondità di 0.00 m, il piede verso monte");
    EXPECT_EQ(parole(Meccanismo{false, 50 * 0.2, 1, 1}, 10),
              "ruota attorno alla profondità di 10.00 m, la testa verso monte");
    EXPECT_EQ(parole(Meccanismo{true, 0, 1, 1}, 10), "trasla verso lo scavo");
    EXPECT_EQ(parole(Meccanismo{true, 0, -1, 1}, 10), "trasla verso monte");
}

// Stored in t and t m: ten times as much in kN.
TEST(ParoleMeccanismo, SayWhatIsMissingInTheUnitOfTheReport) {
    EXPECT_EQ(mancante({false, 4.2, 1, 3.51}), "mancano 35.1 kN m/m");
    EXPECT_EQ(mancante({true, 0, 1, 1.2}), "mancano 12.0 kN/m");
    EXPECT_EQ(mancante({true, 0, 1, 0.0049}), "mancano meno di 0.1 kN/m");
    EXPECT_EQ(mancante({false, 1, 1, 1e12}), "mancano 1.000e+13 kN m/m");
    EXPECT_EQ(mancante({false, 1, 1, 0}), "è in equilibrio limite, senza alcuna riserva");
}

TEST(ParolePartiAlLimite, NameEachSideWithItsDepthsAndTheSlackAnchors) {
    PartiAlLimite parti;
    EXPECT_EQ(parole(parti), "");
    parti.tirantiLenti = {2};
    EXPECT_EQ(parole(parti), "tirante lento 2");
    parti.monteAttivo = {{0, 10}};
    parti.vallePassivo = {{8, 9.25}, {10, 10}};
    parti.tirantiLenti = {1, 2};
    EXPECT_EQ(parole(parti),
              "al limite: monte attivo 0.00-10.00 m, valle passivo 8.00-9.25, 10.00 m; tiranti "
              "lenti 1, 2");
    parti = {{}, {{0, 4.2}}, {{3, 4}}, {}, {}};
    EXPECT_EQ(parole(parti), "al limite: monte passivo 0.00-4.20 m, valle attivo 3.00-4.00 m");
}

TEST(ParoleDatoInstabile, NameTheValueWithItsPlace) {
    EXPECT_EQ(parole(DatoInstabile{}), "");
    EXPECT_EQ(parole(DatoInstabile{.che = Instabile::modulo,
                                   .nodo = 30,
                                   .monte = false,
                                   .valore = 123.4,
                                   .profondita = 6}),
              "modulo di reazione ks negativo (-1234.0 kN/m³), lato valle, profondità 6.00 m; "
              "controllare i valori di ks: una legge lineare può scendere sotto lo zero");
    const std::string limiti =
        "controllare angolo di attrito, coesione, inclinazione del terreno e tensioni verticali";
    EXPECT_EQ(parole(DatoInstabile{
                  .che = Instabile::limiti, .valore = 1.5, .passivo = 1.25, .profondita = 0.2}),
              "limite attivo oltre quello passivo (15.00 > 12.50 kN/m²), lato monte, profondità "
              "0.20 m; " +
                  limiti);
    EXPECT_EQ(parole(DatoInstabile{.che = Instabile::limiti,
                                   .monte = false,
                                   .valore = -1.5,
                                   .passivo = -1.25,
                                   .profondita = 8}),
              "limite attivo oltre quello passivo (15.00 > 12.50 kN/m²), lato valle, profondità "
              "8.00 m; " +
                  limiti);
    EXPECT_EQ(parole(DatoInstabile{.che = Instabile::tirante, .tirante = 2, .valore = -50}),
              "rigidezza negativa del tirante 2 (-500.0 kN/m/m)");
    EXPECT_EQ(parole(DatoInstabile{.che = Instabile::parete, .valore = -1000}),
              "rigidezza EJ della paratia non positiva (-10000.0 kN m²/m)");
}

TEST(ParoleDatoInstabile, NeverShowWhatIsNoNumber) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(parole(DatoInstabile{.che = Instabile::parete, .valore = nan}),
              "rigidezza EJ della paratia non positiva (- kN m²/m)");
}

Diagnosi muroCheCade() {
    Diagnosi d{.causa = Causa::meccanismo, .fase = 3, .paratia = 10};
    d.moto = Meccanismo{false, 4.2, 1, 3.51};
    d.parti.monteAttivo = {{0, 10}};
    d.parti.vallePassivo = {{8, 10}};
    d.parti.tirantiLenti = {2};
    return d;
}

TEST(Frase, TellsOfAMechanismHowAndWhatHelps) {
    Diagnosi d = muroCheCade();
    EXPECT_EQ(
        inBreve(d),
        "la paratia è un meccanismo nella fase 3: ruota attorno alla profondità di 4.20 m, il "
        "piede verso lo scavo; mancano 35.1 kN m/m");
    const std::string fatto =
        "la paratia è un meccanismo nella fase 3: ruota attorno alla profondità di 4.20 m, il "
        "piede "
        "verso lo scavo; mancano 35.1 kN m/m; al limite: monte attivo 0.00-10.00 m, valle passivo "
        "8.00-10.00 "
        "m; tirante lento 2; ";
    EXPECT_EQ(frase(d), fatto +
                            "controllare profondità di scavo, tiranti, livelli dell'acqua e "
                            "carichi in testa");
    d.lunghezza = 11.42;
    EXPECT_EQ(frase(d), fatto + "di solito aiuta una paratia più lunga: circa 11.42 m");
}

TEST(Frase, TellsOfAWallThatStandsThatOnlyTheIterationFlips) {
    Diagnosi d{.causa = Causa::oscilla, .fase = 2, .paratia = 10, .spostamento = 0.0123};
    EXPECT_EQ(inBreve(d),
              "la paratia è in equilibrio nella fase 2, con uno spostamento massimo di 12.3 mm: "
              "oscilla soltanto l'iterazione");
    EXPECT_EQ(
        frase(d),
        "la paratia è in equilibrio nella fase 2, con uno spostamento massimo di 12.3 mm: oscilla "
        "soltanto l'iterazione; il suo equilibrio si calcola con korven32c equilibrio");
    luogoEquilibrio = LuogoEquilibrio::finestra;
    EXPECT_TRUE(
        frase(d).ends_with("l'iterazione; il suo equilibrio si vede in Strumenti > Sicurezza"));
    luogoEquilibrio = LuogoEquilibrio::comando;
    d.ostacolo = Ostacolo::singolare;
    EXPECT_TRUE(inBreve(d).ends_with(
        "12.3 mm: soltanto l'iterazione si ferma davanti a un sistema singolare"));
    d.ostacolo = Ostacolo::limite;
    EXPECT_TRUE(inBreve(d).ends_with(
        "12.3 mm: l'iterazione si è fermata al suo limite prima di arrivarvi"));
}

TEST(InPocheParole, NamesTheStageAndWhatIsWrong) {
    EXPECT_EQ(inPocheParole(muroCheCade()),
              "la paratia è un meccanismo nella fase 3: mancano 35.1 kN m/m");
    Diagnosi d{.causa = Causa::oscilla, .fase = 2, .paratia = 10, .spostamento = 0.0123};
    EXPECT_EQ(inPocheParole(d), "fase 2 in equilibrio, ma l'iterazione oscilla");
    d.ostacolo = Ostacolo::singolare;
    EXPECT_EQ(inPocheParole(d), "fase 2 in equilibrio, ma l'iterazione trova un sistema singolare");
    d.ostacolo = Ostacolo::limite;
    EXPECT_EQ(inPocheParole(d), "fase 2 in equilibrio, ma l'iterazione è al suo limite");
    d = {.causa = Causa::nonDefinito, .fase = 1, .paratia = 10};
    EXPECT_EQ(inPocheParole(d), "l'equilibrio non è definito nella fase 1");
    d.causa = Causa::nessunNumero;
    EXPECT_EQ(inPocheParole(d), "nessun numero nella fase 1");
    d.causa = Causa::eseguito;
    EXPECT_EQ(inPocheParole(d), "");
}

TEST(Frase, TellsWhyThereIsNoEquilibriumOrNoNumber) {
    Diagnosi d{.causa = Causa::nonDefinito, .fase = 1, .paratia = 10};
    d.instabile = {.che = Instabile::tirante, .tirante = 1, .valore = -1};
    EXPECT_EQ(frase(d),
              "l'equilibrio non è definito nella fase 1: rigidezza negativa del tirante 1 (-10.0 "
              "kN/m/m)");
    d.causa = Causa::nessunNumero;
    d.newton = EsitoNewton::senzaMisura;
    EXPECT_EQ(frase(d),
              "nessun numero nella fase 1: spostamenti oltre mille volte la lunghezza della "
              "paratia: nessun equilibrio utile; controllare rigidezze e carichi");
    for (const auto esito : {EsitoNewton::nessunNumero, EsitoNewton::nonRaggiunto})
        EXPECT_FALSE(parole(esito).empty());
    EXPECT_EQ(parole(EsitoNewton::trovato), "");
}

TEST(Frase, SaysNothingOfARunThatNeedsNoWords) {
    for (const auto causa : {Causa::eseguito, Causa::rifiutato, Causa::fermato}) {
        EXPECT_EQ(frase({.causa = causa}), "");
        EXPECT_EQ(inBreve({.causa = causa}), "");
    }
}

TEST(ParoleEsito, AreThoseOfAStageInTheTables) {
    EXPECT_EQ(parole(equilibrium::EsitoFase::equilibrio), "in equilibrio");
    EXPECT_EQ(parole(equilibrium::EsitoFase::meccanismo), "meccanismo");
    EXPECT_EQ(parole(equilibrium::EsitoFase::nonDefinito), "non definito");
    EXPECT_EQ(parole(equilibrium::EsitoFase::nessunNumero), "nessun numero");
}

}  // namespace
}  // namespace korven::safety
