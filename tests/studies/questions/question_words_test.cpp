#include "studies/questions/question_words.hpp"

#include <gtest/gtest.h>

namespace korven::studies {
namespace {

LunghezzaProvata senza(Criterio mancato) {
    LunghezzaProvata p;
    p.lunghezza = 12;
    p.mancati = {mancato};
    return p;
}

// 0.035 m are 35 mm, a share of 1.1234 is 112.3 %; F is shown with the decimals that tell it from
// what is asked.
TEST(ParoleLunghezza, TellWhatACriterionLacksWithItsNumbersAndWhatIsAsked) {
    LunghezzaProvata p = senza(Criterio::spostamento);
    p.spostamento = DiFase{0.035, 3};
    EXPECT_EQ(parole(p, {.spostamento = 0.03}),
              "spostamento 35.0 mm nella fase 3, ammessi 30.0 mm");
    p = senza(Criterio::riduzione);
    p.riduzione = DiFase{1.25, 2};
    EXPECT_EQ(parole(p, {.riduzione = 1.3}), "riduzione F 1.25 nella fase 2, chiesta 1.3");
    p = senza(Criterio::flessione);
    p.flessione = DiFase{1.1234, 4};
    EXPECT_EQ(parole(p, {.resistenza = true}), "flessione: sfruttamento 112.3 % nella fase 4");
    p = senza(Criterio::taglio);
    p.taglio = DiFase{1.01, 1};
    EXPECT_EQ(parole(p, {.resistenza = true}), "taglio: sfruttamento 101.0 % nella fase 1");
    p = senza(Criterio::equilibrio);
    p.perche = "fase 2: nessun equilibrio";
    EXPECT_EQ(parole(p, {}), "fase 2: nessun equilibrio");
}

TEST(ParoleLunghezza, SaySoWhereThereIsNoNumberOfACriterion) {
    EXPECT_EQ(parole(senza(Criterio::riduzione), {.riduzione = 1.3}),
              "riduzione F sotto 0.1, chiesta 1.3");
    EXPECT_EQ(parole(senza(Criterio::flessione), {.resistenza = true}),
              "flessione: la sezione non ha resistenza");
}

TEST(ParoleLunghezza, JoinWhatIsLacking) {
    LunghezzaProvata p = senza(Criterio::flessione);
    p.flessione = DiFase{1.2, 1};
    p.taglio = DiFase{1.3, 2};
    p.mancati.push_back(Criterio::taglio);
    EXPECT_EQ(inBreve(p), "flessione, taglio");
    EXPECT_EQ(parole(p, {.resistenza = true}),
              "flessione: sfruttamento 120.0 % nella fase 1; taglio: sfruttamento 130.0 % nella "
              "fase 2");
}

TEST(RispostaBloccaggio, TellsWhyThereIsNone) {
    EXPECT_EQ(risposta(Bloccaggio{.esito = EsitoBloccaggio::maiInPiedi, .fase = 2}, 1, 8),
              "La fase 2 non è in equilibrio con nessuna pretensione del tirante 1.");
    EXPECT_EQ(risposta(Bloccaggio{.esito = EsitoBloccaggio::primaCade, .fase = 1}, 2, 8),
              "La fase 1, prima del tirante 2, non è in equilibrio.");
    EXPECT_EQ(
        risposta(
            Bloccaggio{
                .esito = EsitoBloccaggio::sopra, .fase = 3, .pretMassima = 9, .forzaMassima = 9.5},
            1, 10),
        "100.00 kN/m sono troppi: alla fine della fase 3 il tirante arriva a 95.00 kN/m con "
        "la pretensione di 90.00 kN/m, la più grande possibile.");
}

TEST(RispostaBloccaggio, TellsThePrestressOrWhatCanBeReached) {
    EXPECT_EQ(
        risposta(Bloccaggio{.fase = 2, .pretensione = 8.5, .forza = 8}, 1, 8),
        "Con pretTirante[1] = 85.000 kN/m il tirante ha 80.00 kN/m alla fine della fase 2, la "
        "prima in cui è in opera.");
    EXPECT_EQ(risposta(Bloccaggio{.esito = EsitoBloccaggio::maiInOpera}, 3, 8),
              "Il tirante 3 non è in opera in nessuna fase: aumentare tirantiFase della fase in "
              "cui viene teso.");
    EXPECT_EQ(
        risposta(
            Bloccaggio{
                .esito = EsitoBloccaggio::sotto, .fase = 2, .pretMinima = 1, .forzaMinima = 2.5},
            1, 2),
        "20.00 kN/m sono troppo pochi: alla fine della fase 2 il tirante ha già 25.00 kN/m con la "
        "pretensione di 10.00 kN/m, la più piccola possibile.");
}

TEST(EsitoBloccaggio, HasAWordForPrograms) {
    const std::pair<EsitoBloccaggio, const char*> parole[] = {
        {EsitoBloccaggio::trovato, "trovato"},      {EsitoBloccaggio::maiInOpera, "mai_in_opera"},
        {EsitoBloccaggio::primaCade, "prima_cade"}, {EsitoBloccaggio::maiInPiedi, "mai_in_piedi"},
        {EsitoBloccaggio::sotto, "sotto"},          {EsitoBloccaggio::sopra, "sopra"}};
    for (const auto& [esito, detto] : parole) EXPECT_EQ(parola(esito), detto);
}

TEST(Criteri, AreToldWithWhatIsAskedOfEach) {
    EXPECT_EQ(parole(Criteri{}), "equilibrio in ogni fase");
    EXPECT_EQ(parole(Criteri{.riduzione = 1.3, .spostamento = 0.03, .resistenza = true}),
              "equilibrio in ogni fase, riduzione F almeno 1.3, spostamento al più 30 mm, "
              "flessione e taglio della sezione verificati");
    EXPECT_EQ(inBreve(LunghezzaProvata{.lunghezza = 12}), "soddisfa i criteri");
    for (const auto& [criterio, detto] :
         {std::pair(Criterio::equilibrio, "equilibrio"),
          std::pair(Criterio::riduzione, "riduzione"),
          std::pair(Criterio::spostamento, "spostamento"),
          std::pair(Criterio::flessione, "flessione"), std::pair(Criterio::taglio, "taglio")})
        EXPECT_EQ(parola(criterio), detto);
}

// Whoever types millimetres gets told, as no wall may move by metres.
TEST(SpostamentoSbagliato, TakesWhatIsMetresForMillimetres) {
    EXPECT_EQ(spostamentoSbagliato(0.03), "");
    EXPECT_EQ(spostamentoSbagliato(30), "il limite è in metri, e minore di 1: 0.03 per 30 mm");
}

TEST(RispostaLunghezza, TellsTheShortestOrWhatTheLongestLacks) {
    RicercaLunghezza ricerca;
    const Criteri chiesti{.riduzione = 1.3};
    EXPECT_EQ(risposta(ricerca, chiesti, {.passo = 0.1, .finoA = 5}),
              "Nessuna lunghezza da provare: lo scavo più profondo va oltre l'ultima. Criteri: "
              "equilibrio in ogni fase, riduzione F almeno 1.3.");
    LunghezzaProvata lunga = senza(Criterio::riduzione);
    lunga.riduzione = DiFase{1.25, 2};
    ricerca.provate = {lunga};
    EXPECT_EQ(risposta(ricerca, chiesti, {.passo = 0.1, .finoA = 12}),
              "Nessuna lunghezza fino a 12 m soddisfa i criteri. Con 12 m: riduzione F 1.25 "
              "nella fase 2, chiesta 1.3. Criteri: equilibrio in ogni fase, riduzione F almeno "
              "1.3.");
    ricerca.provate = {LunghezzaProvata{.lunghezza = 11.5}, LunghezzaProvata{.lunghezza = 12.5}};
    ricerca.risposta = 0;
    EXPECT_EQ(risposta(ricerca, {}, {.passo = 0.5, .finoA = 12.5}),
              "La paratia più corta che soddisfa i criteri è lunga 11.5 m (passo 0.5 m); li "
              "soddisfano tutte le lunghezze provate da questa fino a 12.5 m. Criteri: "
              "equilibrio in ogni fase.");
}

}  // namespace
}  // namespace korven::studies
