#include "masks/field_places.hpp"

#include <gtest/gtest.h>

#include "masks/edited_section.hpp"
#include "project/field_table.hpp"

namespace korven::masks {
namespace {

using enum NumeroMaschera;

TEST(PostoDelCampo, OfATableIsItsRowAndTheColumnOfItsForm) {
    EXPECT_EQ(postoDelCampo("profStrato[1]"), (PostoCampo{strati, {1, 1}}));
    EXPECT_EQ(postoDelCampo("phiStrato[3]"), (PostoCampo{strati, {3, 4}}));
    EXPECT_EQ(postoDelCampo("descrStrato[2]"), (PostoCampo{strati, {2, 7}}));
    EXPECT_EQ(postoDelCampo("rigTirante[12]"), (PostoCampo{tiranti, {12, 2}}));
    EXPECT_EQ(postoDelCampo("faldaFase[2]"), (PostoCampo{fasi, {2, 4}}));
}

TEST(PostoDelCampo, OfAFieldFormIsTheFieldInItsOrder) {
    EXPECT_EQ(postoDelCampo("vincoloTesta"), (PostoCampo{paratia, {1, 1}}));
    EXPECT_EQ(postoDelCampo("lunghezzaParatia"), (PostoCampo{paratia, {1, 8}}));
    EXPECT_EQ(postoDelCampo("sforzoNormale"), (PostoCampo{paratia, {1, 15}}));
    EXPECT_EQ(postoDelCampo("titoli[6]"), (PostoCampo{titoli, {1, 6}}));
}

TEST(PostoDelCampo, OfTheSectionIsItsFieldOrTheChoiceOfTypes) {
    const auto trovato = postoDelCampo("sezione.armNumLong");
    ASSERT_TRUE(trovato);
    EXPECT_EQ(trovato->maschera, senzaMaschera);
    EXPECT_EQ(campiSezione[trovato->posto.campo - 1].valore, &project::Sezione::armNumLong);
    EXPECT_EQ(postoDelCampo("sezione.tipoPalancola"), (PostoCampo{senzaMaschera, {1, 0}}));
}

TEST(PostoDelCampo, OfAValueThatATableDoesNotShowIsTheBeginningOfItsRow) {
    EXPECT_EQ(postoDelCampo("suStrato[4]"), (PostoCampo{strati, {4, 1}}));
    EXPECT_EQ(postoDelCampo("nFasi"), (PostoCampo{fasi, {1, 1}}));
}

TEST(PostoDelCampo, IsNowhereForWhatNoFormShowsAndForNoName) {
    EXPECT_FALSE(postoDelCampo("faldaValle"));
    EXPECT_FALSE(postoDelCampo("opzioneRiservata"));
    EXPECT_FALSE(postoDelCampo(""));
    EXPECT_FALSE(postoDelCampo("phi[2]"));
}

TEST(PostoDelCampo, IsKnownForEveryOtherField) {
    for (const auto& campo : project::campi()) {
        const bool nascosto = campo.nome == "faldaValle" || campo.nome == "opzioneRiservata";
        EXPECT_NE(postoDelCampo(nomeStabile(campo, 2)).has_value(), nascosto) << campo.nome;
    }
}

}  // namespace
}  // namespace korven::masks
