#include "comparison/compared_results.hpp"

#include <gtest/gtest.h>

#include "comparison/walls.hpp"
#include "support/sample_sections.hpp"

namespace korven::comparison {
namespace {

using korven::test::progettoSemplice;

// q L^2 / 8 with 10 m: 3 t/m2 give 37.5 t m, 6 the double.
TEST(RisultatiConfrontati, HaveBothMomentsOfABeamAndTheirDifference) {
    const Confronto c = test::confronto(test::trave(3), test::trave(6));
    for (const int fase : {0, 1}) {
        const auto& M = test::risultato(c, "momento_massimo", fase);
        EXPECT_NEAR(*M.prima.numero, 375, 1e-6);
        EXPECT_NEAR(*M.dopo.numero, 750, 1e-6);
        EXPECT_EQ(M.unita.mostrata, "kN m/m");
        EXPECT_NEAR(*M.differenza(), 375, 1e-6);
        EXPECT_NEAR(*M.quota(), 1, 1e-9);
        EXPECT_TRUE(M.cambia());
        EXPECT_NEAR(*test::risultato(c, "spostamento_massimo", fase).quota(), 1, 1e-7);
    }
    // Halved again: the difference is a share of the first.
    const Confronto indietro = test::confronto(test::trave(6), test::trave(3));
    EXPECT_NEAR(*test::risultato(indietro, "momento_massimo").quota(), -0.5, 1e-9);
}

TEST(RisultatiConfrontati, NameAStrutForWhatItIsInBothWalls) {
    auto prima = progettoSemplice();
    auto dopo = prima;
    dopo.tipoTirante[1] = 1;
    const auto nome = [](const auto& a, const auto& b) {
        return test::risultato(test::confronto(a, b), "tiro", 0, 1).cosa;
    };
    EXPECT_EQ(nome(prima, prima), "Tiro del tirante 1");
    EXPECT_EQ(nome(prima, dopo), "Forza del tirante o puntone 1");
    EXPECT_EQ(nome(dopo, dopo), "Forza del puntone 1");
    prima.nTiranti = 0;
    prima.tirantiFase[2] = 0;
    EXPECT_EQ(nome(prima, dopo), "Forza del puntone 1");
}

TEST(RisultatiConfrontati, AreNoShareOfAZero) {
    const Confronto c = test::confronto(test::trave(0), test::trave(3));
    const auto& M = test::risultato(c, "momento_massimo");
    EXPECT_EQ(M.prima.testo, "0.00");
    EXPECT_NEAR(*M.differenza(), 375, 1e-6);
    EXPECT_FALSE(M.quota());
}

TEST(RisultatiConfrontati, GrowWithTheSizeOfANegativeNumber) {
    RisultatoConfrontato r;
    r.prima = tables::momento(-10);
    r.dopo = tables::momento(-12);
    EXPECT_DOUBLE_EQ(*r.differenza(), -20);
    EXPECT_DOUBLE_EQ(*r.quota(), 0.2);
    r.dopo = tables::momento(0);
    EXPECT_DOUBLE_EQ(*r.quota(), -1);
    r.dopo = tables::momento(5);
    EXPECT_DOUBLE_EQ(*r.differenza(), 150);
    EXPECT_FALSE(r.quota());
}

TEST(RisultatiConfrontati, OfAWallThatFallsOnlyAfterSayWhy) {
    const Confronto c = test::confronto(progettoSemplice(), test::cade());
    EXPECT_FALSE(c.stanno());
    const auto& fasi = test::risultato(c, "fasi_in_equilibrio");
    EXPECT_EQ(fasi.prima.testo, "2");
    EXPECT_EQ(fasi.dopo.testo, "0");
    for (const char* codice : {"momento_massimo", "spostamento_massimo", "taglio_massimo"}) {
        const auto& r = test::risultato(c, codice);
        EXPECT_TRUE(r.prima.numero) << codice;
        EXPECT_FALSE(r.dopo.numero) << codice;
        EXPECT_FALSE(r.dopo.perche.empty()) << codice;
        EXPECT_FALSE(r.differenza() || r.quota()) << codice;
    }
    const auto& F = test::risultato(c, "riduzione");
    ASSERT_TRUE(F.prima.numero);
    EXPECT_GT(*F.prima.numero, 1);
    EXPECT_FALSE(F.dopo.numero);
    EXPECT_EQ(F.dopo.testo, "-");
    // The second stage has no numbers after a first that falls.
    EXPECT_FALSE(test::risultato(c, "momento_massimo", 2).dopo.numero);
}

TEST(RisultatiConfrontati, HaveTheStagesAndAnchorsThatOnlyOneHas) {
    auto dopo = progettoSemplice();
    korven::test::aggiungiTirante(dopo, 3, 400, 2);
    korven::test::aggiungiFase(dopo, {.scavo = 5.5, .tiranti = 2, .falda = 5.5});
    const Confronto c = test::confronto(progettoSemplice(), dopo);
    ASSERT_TRUE(c.stanno());
    const auto& M = test::risultato(c, "momento_massimo", 3);
    EXPECT_EQ(M.prima.testo, "-");
    EXPECT_EQ(M.prima.perche, "Il progetto non ha questa fase.");
    EXPECT_TRUE(M.dopo.numero);
    const auto& tiro = test::risultato(c, "tiro", 0, 2);
    EXPECT_EQ(tiro.prima.perche, "Il progetto non ha questo tirante.");
    EXPECT_TRUE(tiro.dopo.numero);
    EXPECT_EQ(tiro.cosa, "Tiro del tirante 2");
    // In the first stage no anchor is in place, in neither.
    EXPECT_FALSE(test::ha(c, "tiro", 1, 1));
    EXPECT_EQ(*test::risultato(c, "tiro", 2, 1).prima.numero,
              10 * c.prima.fascicolo.parete.fase(2)->tiri[0]);
}

TEST(RisultatiConfrontati, HaveTheUseOfASectionThatOnlyOneHas) {
    auto dopo = progettoSemplice();
    dopo.sezione = structure::diaframmaSimmetrico();
    auto prima = dopo;
    prima.sezione = {};
    const Confronto c = test::confronto(prima, dopo);
    const auto& uso = test::risultato(c, "uso_flessione_positiva");
    EXPECT_EQ(uso.prima.perche, "La sezione non è definita.");
    const auto& verifica = *c.dopo.fascicolo.controlli.flessione;
    EXPECT_NEAR(*uso.dopo.numero, 100 * verifica.mdMax / verifica.mrPos, 1e-9);
    EXPECT_FALSE(test::ha(test::confronto(prima, prima), "uso_flessione_positiva"));
}

}  // namespace
}  // namespace korven::comparison
