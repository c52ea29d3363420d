#include "structure/section_validity.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "project/project_data.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_builder.hpp"

namespace korven::structure {
namespace {

using project::Sezione;

struct Caso {
    const char* nome;
    Sezione sezione;
    std::vector<double Sezione::*> richiesti;
};

const std::vector<Caso> casi = {
    {"diaframma",
     diaframmaArmatoAValle(),
     {&Sezione::spessoreDiaframma, &Sezione::modEacciaio, &Sezione::modEcls, &Sezione::fyk,
      &Sezione::fck, &Sezione::copriferroValle, &Sezione::interasseValle, &Sezione::diametroValle}},
    {"pali",
     paliTubolari(),
     {&Sezione::paliDiamEst, &Sezione::paliDiamInt, &Sezione::paliInterasse, &Sezione::modEacciaio,
      &Sezione::modEcls, &Sezione::fyk, &Sezione::fck}},
    {"palancola",
     palancola(),
     {&Sezione::palancolaBase, &Sezione::palancolaLargAla, &Sezione::palancolaAltAla,
      &Sezione::palancolaSpessore, &Sezione::palancolaSpessAla, &Sezione::modEacciaio,
      &Sezione::fyk}},
    {"pali armati",
     paliArmati(),
     {&Sezione::armInterasse, &Sezione::armDiamLong, &Sezione::armDiamPalo, &Sezione::armNumLong,
      &Sezione::armCopriferro, &Sezione::modEacciaio, &Sezione::modEcls, &Sezione::fyk,
      &Sezione::fck}},
};

TEST(SezioneValida, NewProjectHasNoValidSection) {
    project::DatiProgetto dati = test::progettoVuoto();
    EXPECT_FALSE(sezioneValida(dati.sezione));
    EXPECT_FALSE(sezioneDefinita(dati.sezione));
}

TEST(SezioneValida, HoldsWhenEveryFieldOfTheKindIsAboveZero) {
    for (const Caso& caso : casi) {
        EXPECT_TRUE(sezioneValida(caso.sezione)) << caso.nome;
        EXPECT_TRUE(sezioneDefinita(caso.sezione)) << caso.nome;
    }
}

TEST(SezioneValida, FailsWhenAnyFieldOfTheKindIsNotAboveZero) {
    for (const Caso& caso : casi)
        for (std::size_t i = 0; i < caso.richiesti.size(); ++i)
            for (double valore : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
                Sezione s = caso.sezione;
                s.*caso.richiesti[i] = valore;
                EXPECT_FALSE(sezioneValida(s)) << caso.nome << ' ' << i << ' ' << valore;
            }
}

TEST(SezioneValida, NeedsNoFlagOtherThanItsOwnButNeedsThatOne) {
    Sezione s = diaframmaSimmetrico();
    s.tipoDiaframma = false;
    EXPECT_FALSE(sezioneValida(s));
    EXPECT_FALSE(sezioneDefinita(s));
}

TEST(SezioneValida, TakesBarsOnOneFaceOnly) {
    Sezione valle = diaframmaArmatoAValle();
    EXPECT_TRUE(sezioneValida(valle));
    Sezione monte = diaframmaSimmetrico();
    monte.copriferroValle = monte.interasseValle = monte.diametroValle = 0;
    EXPECT_TRUE(sezioneValida(monte));
    monte.diametroMonte = 0;
    EXPECT_FALSE(sezioneValida(monte));
}

TEST(SezioneValida, DoesNotPutOneFaceTogetherFromTwoHalves) {
    Sezione s = diaframmaSimmetrico();
    s.copriferroMonte = 0;
    s.diametroValle = 0;
    EXPECT_FALSE(sezioneValida(s));
}

TEST(SezioneValida, IgnoresStirrups) {
    Sezione s = paliArmati();
    s.armDiamStaffe = s.armPassoStaffe = -1;
    EXPECT_TRUE(sezioneValida(s));
}

TEST(SezioneValida, SheetPileNeedsNothingOfConcrete) {
    Sezione s = palancola();
    EXPECT_EQ(s.modEcls, 0);
    EXPECT_EQ(s.fck, 0);
    EXPECT_TRUE(sezioneValida(s));
}

TEST(SezioneValida, FirstTrueFlagDecidesWhichFieldsAreAsked) {
    Sezione s = palancola();
    s.tipoPaliArmati = true;
    EXPECT_TRUE(sezioneValida(s));
    s.tipoDiaframma = true;
    EXPECT_FALSE(sezioneValida(s));
}

TEST(CampiMancanti, AreThoseAskedForThatAreNotAboveZero) {
    for (const Caso& caso : casi) {
        EXPECT_TRUE(campiMancanti(caso.sezione).empty()) << caso.nome;
        Sezione s = caso.sezione;
        s.*caso.richiesti[1] = 0;
        s.*caso.richiesti[3] = -1;
        EXPECT_EQ(campiMancanti(s),
                  (std::vector<double Sezione::*>{caso.richiesti[1], caso.richiesti[3]}))
            << caso.nome;
    }
    EXPECT_TRUE(campiMancanti(Sezione{}).empty());
}

TEST(CampiMancanti, OfADiaphragmAreThoseOfTheFaceThatLacksFewest) {
    using Campi = std::vector<double Sezione::*>;
    auto s = diaframmaSimmetrico();
    s.diametroMonte = 0;
    EXPECT_TRUE(campiMancanti(s).empty());
    s.copriferroValle = 0;
    EXPECT_EQ(campiMancanti(s), (Campi{&Sezione::diametroMonte}));
    s.interasseMonte = 0;
    EXPECT_EQ(campiMancanti(s), (Campi{&Sezione::copriferroValle}));
    s.copriferroMonte = s.interasseValle = s.diametroValle = 0;
    EXPECT_EQ(campiMancanti(s), (Campi{&Sezione::copriferroMonte, &Sezione::interasseMonte,
                                       &Sezione::diametroMonte}));
}

TEST(SezioneDefinita, DiffersInTheInnerDiameterOfPilesAlone) {
    for (const Caso& caso : casi)
        for (std::size_t i = 0; i < caso.richiesti.size(); ++i) {
            Sezione s = caso.sezione;
            s.*caso.richiesti[i] = 0;
            EXPECT_EQ(sezioneDefinita(s), caso.richiesti[i] == &Sezione::paliDiamInt)
                << caso.nome << ' ' << i;
        }
}

TEST(FacciaCompleta, NeedsCoverSpacingAndDiameter) {
    const Sezione intera = diaframmaSimmetrico();
    EXPECT_TRUE(facciaCompleta(intera, project::Lato::monte));
    EXPECT_TRUE(facciaCompleta(intera, project::Lato::valle));
    for (double Sezione::*campo :
         {&Sezione::copriferroMonte, &Sezione::interasseMonte, &Sezione::diametroMonte}) {
        Sezione s = intera;
        s.*campo = 0;
        EXPECT_FALSE(facciaCompleta(s, project::Lato::monte));
        EXPECT_TRUE(facciaCompleta(s, project::Lato::valle));
    }
    for (double Sezione::*campo :
         {&Sezione::copriferroValle, &Sezione::interasseValle, &Sezione::diametroValle}) {
        Sezione s = intera;
        s.*campo = 0;
        EXPECT_TRUE(facciaCompleta(s, project::Lato::monte));
        EXPECT_FALSE(facciaCompleta(s, project::Lato::valle));
    }
}

TEST(StaffePresenti, NeedPitchAndDiameterOfAReinforcedPile) {
    Sezione s = paliArmati();
    EXPECT_FALSE(staffePresenti(s));
    s.armPassoStaffe = 20;
    EXPECT_FALSE(staffePresenti(s));
    s.armDiamStaffe = 1;
    EXPECT_TRUE(staffePresenti(s));
    s.armPassoStaffe = 0;
    EXPECT_FALSE(staffePresenti(s));
    s.armPassoStaffe = 20;
    s.tipoPalancola = true;  // comes before the reinforced piles
    EXPECT_FALSE(staffePresenti(s));
}

}  // namespace
}  // namespace korven::structure
