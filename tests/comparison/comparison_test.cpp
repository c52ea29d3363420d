#include "comparison/comparison.hpp"

#include <gtest/gtest.h>

#include "comparison/walls.hpp"

namespace korven::comparison {
namespace {

using korven::test::progettoSemplice;

TEST(Confronto, OfEqualProjectsHasNoDifference) {
    const Confronto c = test::confronto(progettoSemplice(), progettoSemplice());
    EXPECT_TRUE(c.uguali());
    EXPECT_TRUE(c.campi.empty());
    EXPECT_FALSE(c.cambiaQualcosa());
    EXPECT_FALSE(c.risultati.empty());
    for (const auto& r : c.risultati)
        if (r.differenza()) {
            EXPECT_EQ(*r.differenza(), 0) << r.codice;
        }
}

TEST(Confronto, OfTwoMeshesOfOneProjectIsNone) {
    const auto dati = progettoSemplice();
    const Confronto c = confronta(test::muro(dati, 20), test::muro(dati, 40));
    EXPECT_TRUE(c.campi.empty());
    EXPECT_FALSE(c.uguali());
    EXPECT_TRUE(c.cambiaQualcosa());
}

TEST(Confronto, TellsAHeadingThatChangesNoResult) {
    auto dopo = progettoSemplice();
    dopo.titoli[2] = "Lotto 2";
    const Confronto c = test::confronto(progettoSemplice(), dopo);
    ASSERT_EQ(c.campi.size(), 1U);
    EXPECT_EQ(project::nomeStabile(*c.campi[0].campo, c.campi[0].riga), "titoli[2]");
    EXPECT_FALSE(c.uguali());
    EXPECT_FALSE(c.cambiaQualcosa());
}

TEST(Confronto, HasTheRowsThatOnlyOneOfThemHas) {
    auto dopo = progettoSemplice();
    korven::test::aggiungiTirante(dopo, 3, 400, 2);
    const Confronto c = test::confronto(progettoSemplice(), dopo);
    ASSERT_EQ(c.campi.size(), 5U);  // the count and the four columns
    EXPECT_TRUE(c.campi[0].prima && c.campi[0].dopo);
    for (std::size_t i = 1; i < 5; ++i) {
        EXPECT_EQ(c.campi[i].riga, 2);
        EXPECT_FALSE(c.campi[i].prima);
        EXPECT_TRUE(c.campi[i].dopo);
    }
}

TEST(Confronto, TellsTheRemarksThatOnlyOneOfThemHas) {
    const Confronto c = test::confronto(progettoSemplice(), test::cade());
    const auto pericoli = review::quante(c.nuove, review::Peso::pericolo) +
                          review::quante(c.nuove, review::Peso::impedisce);
    EXPECT_GT(pericoli, 0);
    for (const auto& nuova : c.nuove)
        for (const auto& o : c.prima.fascicolo.osservazioni)
            EXPECT_FALSE(o.codice == nuova.codice && o.peso == nuova.peso && o.campi == nuova.campi)
                << nuova.testo;
    const Confronto indietro = test::confronto(test::cade(), progettoSemplice());
    EXPECT_EQ(indietro.sparite.size(), c.nuove.size());
    EXPECT_EQ(indietro.nuove.size(), c.sparite.size());
}

TEST(Confronto, OfAProjectThatIsRefusedHasItsFieldsAllTheSame) {
    auto dopo = progettoSemplice();
    dopo.nStrati = 0;
    const Confronto c = test::confronto(progettoSemplice(), dopo);
    EXPECT_FALSE(c.stanno());
    EXPECT_FALSE(c.campi.empty());
    EXPECT_TRUE(verdetto(c.dopo).starts_with("non calcolata: ")) << verdetto(c.dopo);
    EXPECT_TRUE(test::risultato(c, "momento_massimo").prima.numero);
}

}  // namespace
}  // namespace korven::comparison
