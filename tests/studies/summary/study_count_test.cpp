#include "studies/summary/study_count.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace korven::studies {
namespace {

using Testi = std::vector<std::string>;

// One field, then verdict, stage, moment and use.
const RigheStudio& forma() {
    static const std::vector campi{project::campoNominato("lunghezzaParatia").value()};
    static const RigheStudio sua(
        campi,
        scegliColonne({"fase_caduta", "momento_massimo_kNm", "uso_momento_positivo"}, 0, false)
            .colonne,
        Formato::csv);
    return sua;
}

std::vector<double> riga(safety::Causa causa, double momento = 100) {
    const bool sta = causa == safety::Causa::eseguito;
    return {12, static_cast<double>(causa), sta ? vuoto : 2, sta ? momento : vuoto,
            sta ? 0.5 : vuoto};
}

TEST(ContoStudio, CountsVerdictsAndValuesThatWereSetToALimit) {
    ContoStudio conto(forma(), {});
    for (std::uint64_t i = 0; i < 3; ++i) conto.riga(i, riga(safety::Causa::eseguito));
    conto.riga(3, riga(safety::Causa::meccanismo));
    EXPECT_EQ(conto.righe(),
              (Testi{"4 varianti, 3 in equilibrio in tutte le fasi.", "Falliscono 1 varianti su 4.",
                     "  meccanismo, fase 2: 1",
                     "Varianti in equilibrio, per l'uso che in ciascuna è il maggiore:",
                     "  uso_momento_positivo: 3"}));
    conto.limitati(2);
    EXPECT_EQ(conto.righe()[1],
              "2 valori erano oltre i limiti del loro campo e sono stati posti al limite.");
    EXPECT_FALSE(conto.diverse());
    EXPECT_EQ(conto.righeControllo(), Testi{});
}

TEST(ContoStudio, TellsTheProbabilityOfFailureOfIndependentSamples) {
    ContoStudio conto(forma(), {.seme = 7, .campioni = true, .indipendenti = true});
    for (std::uint64_t i = 0; i < 9; ++i)
        conto.riga(i, riga(safety::Causa::eseguito, static_cast<double>(i)));
    conto.riga(9, riga(safety::Causa::meccanismo));
    const Testi righe = conto.righe();
    // Wilson's interval of 1 in 10.
    EXPECT_EQ(righe[1],
              "Falliscono 1 campioni su 10: probabilità 0.1, con il 95 % di confidenza tra "
              "0.017876 e 0.40415.");
    // The mean of 0 to 8, of nine that have a moment.
    const auto media = std::find_if(righe.begin(), righe.end(), [](const std::string& r) {
        return r.starts_with("  momento_massimo_kNm");
    });
    ASSERT_NE(media, righe.end());
    std::istringstream cifre(*media);
    std::string nome, numero, valore;
    cifre >> nome >> numero >> valore;
    EXPECT_EQ(numero, "9");
    EXPECT_EQ(valore, "4");
    EXPECT_EQ(conto.forma().risultati, (std::vector<std::size_t>{3, 4}));
    EXPECT_EQ(conto.forma().usi, (std::vector<std::size_t>{4}));
}

TEST(ContoStudio, ListsTheFirstOfTheVariantsThatDifferBothWays) {
    ContoStudio conto(forma(), {});
    conto.controllate({{99, {Accordo::uguali, 1, 1e-9, 1e-7}}, {199, {Accordo::senzaRiposo}}});
    EXPECT_FALSE(conto.diverse());
    conto.controllate(
        {{299, {Accordo::spostamenti, 2, 0.00025, 0.0000002}}, {399, {Accordo::verdetto, 3}}});
    EXPECT_TRUE(conto.diverse());
    const Testi righe = conto.righeControllo();
    ASSERT_EQ(righe.size(), 4u);
    EXPECT_EQ(righe[0],
              "4 varianti calcolate in ambedue i modi: 2 diverse, 1 in cui il calcolo per fasi non "
              "trova riposo, 0 senza soluzione di equilibrio.");
    EXPECT_EQ(righe[1], "Il calcolo per fasi non trova riposo nelle varianti 200.");
    EXPECT_EQ(righe[2],
              "variante 300, fase 2: gli spostamenti differiscono di 0.250000 mm, ammessi 0.000200 "
              "mm");
    EXPECT_EQ(righe[3],
              "variante 400, fase 3: il calcolo per fasi trova riposo dove non c'è equilibrio");
    for (std::uint64_t i = 0; i < 30; ++i) conto.controllate({{i, {Accordo::verdetto, 1}}});
    EXPECT_EQ(conto.righeControllo().back(), "... e altre 12.");
}

}  // namespace
}  // namespace korven::studies
