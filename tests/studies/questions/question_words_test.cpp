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

}  // namespace
}  // namespace korven::studies
