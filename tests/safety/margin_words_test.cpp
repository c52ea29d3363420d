#include "safety/margin_words.hpp"

#include <gtest/gtest.h>

namespace korven::safety {
namespace {

using equilibrium::EsitoFase;

Margine dueFasi() {
    Margine m;
    m.nSeg = 50;
    m.paratia = 12;
    m.fasi.resize(2);
    for (int k = 1; k <= 2; ++k) {
        m.fasi[static_cast<std::size_t>(k - 1)].fase = k;
        m.fasi[static_cast<std::size_t>(k - 1)].esito = EsitoFase::equilibrio;
    }
    m.fasi[0].riduzione.F = 2.5;
    m.fasi[1].riduzione.F = 1.64;
    m.fasi[1].riduzione.moto = equilibrium::Meccanismo{false, 6.12, 1, 0};
    return m;
}

TEST(TestoRiduzione, HasTwoDecimalsAndNeverCallsAMechanismOne) {
    EXPECT_EQ(testoRiduzione({.F = 2.9803}), "2.98");
    EXPECT_EQ(testoRiduzione({.F = 1.63995}), "1.64");
    EXPECT_EQ(testoRiduzione({.F = 1.0}), "1.00");
    EXPECT_EQ(testoRiduzione({.F = 0.9991}), "0.99");
    EXPECT_EQ(testoRiduzione({.F = 0.974}), "0.97");
}

TEST(TestoRiduzione, NeverReachesALimitThatTheFactorDoesNot) {
    EXPECT_EQ(testoF(1.2499), "1.24");
    EXPECT_EQ(testoF(1.25), "1.25");
    EXPECT_EQ(testoF(1.29718), "1.30");
    EXPECT_EQ(testoF(1.29718, 1.3), "1.29") << "1.30 would be what was asked for";
    EXPECT_EQ(testoF(1.29718, 1.298), "1.29");
    EXPECT_EQ(testoF(1.3, 1.3), "1.30");
    EXPECT_EQ(testoF(1.4951), "1.49");
    EXPECT_EQ(testoF(1.5), "1.50");
    EXPECT_EQ(testoF(1.4949), "1.49");
}

TEST(TestoRiduzione, SaysWhatLiesOutsideTheRange) {
    EXPECT_EQ(testoRiduzione({.F = {}, .oltre = true}), "> 10");
    EXPECT_EQ(testoRiduzione({}), "-");
    EXPECT_EQ(testoRiduzione({.F = 2.716, .limitePendio = true}), "2.72 *");
}

TEST(TestoQuota, IsWholePerCent) {
    EXPECT_EQ(testoQuota(0.7457), "75");
    EXPECT_EQ(testoQuota(std::nullopt), "-");
}

TEST(TestoTratti, NamesDepthsWithTwoDecimals) {
    EXPECT_EQ(testoTratti({{7.6, 8.2}, {8.6, 8.6}}), "7.60-8.20, 8.60");
    EXPECT_EQ(testoTratti({{3.2399999999999998, 9}}), "3.24-9.00");
    EXPECT_EQ(testoTratti({}), "-");
}

TEST(ParoleRiduzione, TellTheMovementOrWhyThereIsNone) {
    EXPECT_EQ(parole(Riduzione{.F = 1.6, .moto = equilibrium::Meccanismo{true, 0, 1, 0}}, 12),
              "trasla verso lo scavo");
    EXPECT_EQ(parole(Riduzione{.F = 1.6, .moto = equilibrium::Meccanismo{false, 7.5, 1, 0}}, 12),
              "ruota attorno alla profondità di 7.50 m, il piede verso lo scavo");
    EXPECT_EQ(parole(Riduzione{.F = {}, .oltre = true}, 12),
              "nessun meccanismo fino a F = 10: basta un decimo della resistenza del terreno");
    EXPECT_EQ(parole(Riduzione{.F = {}, .oltre = true, .senzaTerreno = true}, 12),
              "nessun meccanismo fino a F = 10: vincoli, tiranti o puntoni tengono la paratia "
              "qualunque sia "
              "il terreno");
    EXPECT_EQ(parole(Riduzione{.F = 2.7, .limitePendio = true}, 12),
              "oltre F l'angolo di attrito ridotto è minore della pendenza del terreno");
    EXPECT_EQ(parole(Riduzione{}, 12), "-");
}

TEST(ParoleLunghezza, SayHowShortTheWallMayBeAndThatThisIsNoLengthToBuild) {
    Margine m = dueFasi();
    m.lunghezza = {EsitoLunghezza::trovata, 9.37};
    EXPECT_EQ(paroleLunghezza(m),
              "Lunghezza minima: 9.37 m; la paratia è lunga 12.00 m; non è una lunghezza da "
              "costruire: F = 1");
    m.sostegni = true;
    EXPECT_EQ(paroleLunghezza(m),
              "Lunghezza minima: 9.37 m; la paratia è lunga 12.00 m; non è una lunghezza da "
              "costruire: F = 1, tiranti, puntoni e vincoli tengono senza limite");
    m.lunghezza = {EsitoLunghezza::sempre, 6.5};
    EXPECT_EQ(paroleLunghezza(m),
              "Lunghezza minima: 6.50 m; la paratia è in equilibrio anche senza infissione sotto "
              "lo scavo più profondo; non è una lunghezza da costruire: tiranti, puntoni e vincoli "
              "tengono "
              "senza limite");
    m.sostegni = false;
    EXPECT_TRUE(paroleLunghezza(m).ends_with("; non è una lunghezza da costruire"));
}

TEST(ParoleLunghezza, SayWhyThereIsNone) {
    Margine m = dueFasi();
    m.lunghezza = {EsitoLunghezza::mai, {}};
    EXPECT_EQ(paroleLunghezza(m), "Lunghezza minima: nessuna fino a 36.00 m");
    m.fasi[1].esito = EsitoFase::nonDefinito;
    EXPECT_EQ(paroleLunghezza(m), "");
    EXPECT_FALSE(lunghezzaNota(m));
    m.lunghezza = {EsitoLunghezza::vincolata, {}};
    EXPECT_EQ(paroleLunghezza(m), "Lunghezza minima: nessuna, il piede è vincolato");
}

TEST(ParoleMaglia, TellTheSharesThatThereAre) {
    Margine m = dueFasi();
    EXPECT_EQ(paroleMaglia(m),
              "Errore di maglia (50 segmenti contro 200): con una maglia più fine una fase non è "
              "in equilibrio");
    m.maglia = ErroreMaglia{};
    m.maglia->momentoPositivo.quota = 0.0287;
    m.maglia->spostamento.quota = 0.01;
    EXPECT_EQ(
        paroleMaglia(m),
        "Errore di maglia (50 segmenti contro 200): momento positivo 2.9 %, spostamento 1.0 %");
    m.fasi[1].esito = EsitoFase::meccanismo;
    EXPECT_EQ(paroleMaglia(m), "");
}

TEST(ParoleDecisiva, NameTheSmallestFactorOrTheStageThatFalls) {
    Margine m = dueFasi();
    EXPECT_EQ(paroleDecisiva(m),
              "F più piccolo: 1.64, fase 2: ruota attorno alla profondità di 6.12 m, il piede "
              "verso lo scavo");
    m.fasi[0].riduzione = m.fasi[1].riduzione = {.F = {}, .oltre = true};
    EXPECT_EQ(paroleDecisiva(m), "F più piccolo: > 10");
    m.fasi[1].esito = EsitoFase::meccanismo;
    m.fasi[1].perche = Diagnosi{.causa = Causa::meccanismo,
                                .fase = 2,
                                .paratia = 12,
                                .moto = equilibrium::Meccanismo{true, 0, 1, 1.2}};
    EXPECT_EQ(paroleDecisiva(m),
              "la paratia è un meccanismo nella fase 2: trasla verso lo scavo; mancano 12.0 kN/m");
}

TEST(NotaPendenza, StandsWhereAFactorHasTheAsterisk) {
    Margine m = dueFasi();
    EXPECT_EQ(notaPendenza(m), "");
    m.fasi[0].riduzione.limitePendio = true;
    EXPECT_EQ(notaPendenza(m),
              "* oltre F l'angolo di attrito ridotto è minore della pendenza del terreno");
}

TEST(NotaOltre, NamesTheStagesThatAreHeldWhateverTheGround) {
    Margine m = dueFasi();
    EXPECT_EQ(notaOltre(m), "");
    m.fasi[0].riduzione = {.F = {}, .oltre = true};
    EXPECT_EQ(notaOltre(m), "");
    m.fasi[1].riduzione = {.F = {}, .oltre = true, .senzaTerreno = true};
    EXPECT_EQ(
        notaOltre(m),
        "> 10, fase 2: vincoli, tiranti o puntoni tengono la paratia qualunque sia il terreno");
    m.fasi[0].riduzione = m.fasi[1].riduzione;
    EXPECT_EQ(
        notaOltre(m),
        "> 10, fasi 1, 2: vincoli, tiranti o puntoni tengono la paratia qualunque sia il terreno");
}

TEST(ParoleRelazione, SayWhatKeepsItFromItsNumbers) {
    using analysis::ModoFine;
    Margine m = dueFasi();
    m.corsa = {ModoFine::singolare, 2, 0};
    EXPECT_EQ(paroleRelazione(m),
              "La relazione non ha numeri: il calcolo per fasi trova un sistema singolare nella "
              "fase 2");
    m.corsa = {ModoFine::oltreLimite, 1, 200};
    EXPECT_EQ(paroleRelazione(m),
              "La relazione non ha numeri: l'iterazione del calcolo per fasi non converge nella "
              "fase 1");
    m.corsa = {ModoFine::nonMostrabile, 0, 0};
    EXPECT_EQ(paroleRelazione(m), "La relazione non ha numeri: nessuna relazione può mostrarli");
    // Nothing is made up where the run has no reason of its own.
    for (const ModoFine modo : {ModoFine::compiuta, ModoFine::rifiutata, ModoFine::fermata}) {
        m.corsa = {modo, 1, 0};
        EXPECT_EQ(paroleRelazione(m), "La relazione non ha numeri");
    }
    m.fasi[1].esito = EsitoFase::meccanismo;  // told already
    EXPECT_EQ(paroleRelazione(m), "");
    m = dueFasi();
    m.relazione.emplace();
    EXPECT_EQ(paroleRelazione(m), "");
}

TEST(ParoleSenzaRelazione, SayOfAWallThatStandsWhatTheRunDoesNotFind) {
    using analysis::ModoFine;
    Margine m = dueFasi();
    m.corsa = {ModoFine::oltreLimite, 2, 200};
    EXPECT_EQ(paroleSenzaRelazione(m),
              "in equilibrio, ma il calcolo per fasi non converge nella fase 2: niente "
              "relazione");
    m.corsa = {ModoFine::singolare, 1, 0};
    EXPECT_EQ(paroleSenzaRelazione(m),
              "in equilibrio, ma il calcolo per fasi trova un sistema singolare nella fase 1: "
              "niente relazione");
    m.corsa = {ModoFine::nonMostrabile, 0, 0};
    EXPECT_EQ(paroleSenzaRelazione(m),
              "in equilibrio, ma nessuna relazione può mostrarne i numeri");
    m.corsa = {ModoFine::fermata, 2, 3};
    EXPECT_EQ(paroleSenzaRelazione(m), "");
    m.corsa = {ModoFine::oltreLimite, 2, 200};
    m.fasi[1].esito = EsitoFase::meccanismo;  // it does not stand
    EXPECT_EQ(paroleSenzaRelazione(m), "");
    m = dueFasi();
    m.relazione.emplace();
    EXPECT_EQ(paroleSenzaRelazione(m), "");
}

}  // namespace
}  // namespace korven::safety
