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

// Dug 8 m deep.
project::DatiProgetto muro() {
    project::DatiProgetto dati;
    dati.nFasi = 1;
    dati.profFase[1] = 8;
    return dati;
}

std::vector<double> riga(safety::Causa causa, double momento = 100, double lunghezza = 12) {
    const bool sta = causa == safety::Causa::eseguito;
    return {lunghezza, static_cast<double>(causa), sta ? vuoto : 2, sta ? momento : vuoto,
            sta ? 0.5 : vuoto};
}

// The length of a wall goes up to 100 m.
TEST(ContoStudio, TellsOfEachLimitHowManyValuesWereSetToItFirstWhereTheyAreMany) {
    ContoStudio conto(muro(), forma(), {});
    for (std::uint64_t i = 0; i < 200; ++i) conto.riga(i, riga(safety::Causa::eseguito));
    conto.limitati({{{0, false}, 1}, {{0, true}, 1}});
    conto.limitati({{{0, true}, 1}});
    EXPECT_TRUE(conto.avvisi().empty());
    EXPECT_EQ(conto.fatti()[1],
              "Lunghezza della paratia: 1 valori su 200 oltre 0 m, limite del campo, e posti al "
              "limite.");
    EXPECT_EQ(conto.fatti()[2],
              "Lunghezza della paratia: 2 valori su 200 oltre 100 m, limite del campo, e posti al "
              "limite.");
    conto.limitati({{{0, true}, 1}});
    ASSERT_EQ(conto.avvisi().size(), 1U);
    EXPECT_EQ(conto.fatti()[0], conto.avvisi()[0]);
    EXPECT_EQ(conto.avvisi()[0],
              "Lunghezza della paratia: 3 valori su 200 oltre 100 m, limite del campo, e posti al "
              "limite. I risultati non sono quelli della legge scritta: controllare la legge e la "
              "sua unità.");
    EXPECT_EQ(conto.fatti()[1], "Varianti: 200; in equilibrio in tutte le fasi: 200.");
}

TEST(ContoStudio, CountsVerdicts) {
    ContoStudio conto(muro(), forma(), {});
    for (std::uint64_t i = 0; i < 3; ++i) conto.riga(i, riga(safety::Causa::eseguito));
    conto.riga(3, riga(safety::Causa::meccanismo));
    EXPECT_EQ(conto.righe(),
              (Testi{"Varianti: 4; in equilibrio in tutte le fasi: 3.",
                     "Varianti che falliscono: 1 su 4.", "  meccanismo, fase 2: 1",
                     "Varianti in equilibrio, per l'uso che in ciascuna è il maggiore:",
                     "  Uso, momento positivo: 3"}));
    EXPECT_FALSE(conto.diverse());
    EXPECT_EQ(conto.righeControllo(), Testi{});
}

TEST(ContoStudio, TellsOfWallsThatStandWithoutTheirToe) {
    ContoStudio conto(muro(), forma(), {});
    conto.riga(0, riga(safety::Causa::eseguito, 100, 7.5));
    conto.riga(1, riga(safety::Causa::eseguito, 100, 8));
    conto.riga(2, riga(safety::Causa::eseguito, 100, 8.5));
    conto.riga(3, riga(safety::Causa::meccanismo, 100, 7));
    EXPECT_EQ(conto.riassunto().stanno(), 3U);
    EXPECT_EQ(
        conto.righe().back(),
        "Varianti in equilibrio, ma con lo scavo che raggiunge o supera il piede: 2. Non sono "
        "pareti da costruire.");
}

TEST(ContoStudio, TellsWhatMakesAVariantFailInShownUnits) {
    ContoStudio conto(muro(), forma(), {.condizioni = {"uso_momento_positivo >=0.5"}});
    conto.riga(0, riga(safety::Causa::eseguito));
    EXPECT_EQ(conto.fatti()[2], "  in equilibrio con Uso, momento positivo >= 50 %: 1");
}

TEST(ContoStudio, TellsTheProbabilityOfFailureOfIndependentSamples) {
    ContoStudio conto(muro(), forma(), {.seme = 7, .campioni = true, .indipendenti = true});
    for (std::uint64_t i = 0; i < 9; ++i)
        conto.riga(i, riga(safety::Causa::eseguito, static_cast<double>(i)));
    conto.riga(9, riga(safety::Causa::meccanismo));
    const Testi righe = conto.righe();
    // Wilson's interval of 1 in 10.
    EXPECT_EQ(righe[1],
              "Campioni che falliscono: 1 su 10, probabilità 0.1, con il 95 % di confidenza tra "
              "0.017876 e 0.40415.");
    // The mean of 0 to 8, of nine that have a moment.
    const auto media = std::find_if(righe.begin(), righe.end(), [](const std::string& r) {
        return r.starts_with("  Momento massimo [kN m/m]");
    });
    ASSERT_NE(media, righe.end());
    std::istringstream cifre(media->substr(media->find(']') + 1));
    std::string numero, valore;
    cifre >> numero >> valore;
    EXPECT_EQ(numero, "9");
    EXPECT_EQ(valore, "4");
    EXPECT_EQ(conto.forma().risultati, (std::vector<std::size_t>{3, 4}));
    EXPECT_EQ(conto.forma().usi, (std::vector<std::size_t>{4}));
}

TEST(ContoStudio, CountsByColumnsThatAreNotWrittenAndSaysWhatAFileHasNotOfThem) {
    auto colonne = forma().colonne();
    colonne.back().scritta = false;
    const RigheStudio sue(forma().nominati(), colonne, Formato::csv);
    ContoStudio conto(muro(), sue, {});
    EXPECT_EQ(conto.forma().risultati, (std::vector<std::size_t>{3}));  // described: the written
    auto riletta = riga(safety::Causa::eseguito);
    riletta.back() = vuoto;
    conto.riletta(0, riletta);
    conto.riga(1, riga(safety::Causa::eseguito));
    const Testi righe = conto.fatti();
    ASSERT_GE(righe.size(), 3U);
    EXPECT_EQ(righe[righe.size() - 2], "  Uso, momento positivo: 1");
    EXPECT_EQ(righe.back(),
              "Varianti riprese dal file: 1. Del file non si conoscono che le colonne scritte: usi "
              "e fasi qui sopra, se non scritti, sono delle altre 1 varianti.");
    ContoStudio intero(muro(), forma(), {});
    intero.riletta(0, riga(safety::Causa::eseguito));
    EXPECT_EQ(intero.fatti().back(), "  Uso, momento positivo: 1");
}

TEST(ContoStudio, ListsTheFirstOfTheVariantsThatDifferBothWays) {
    ContoStudio conto(muro(), forma(), {});
    conto.controllate({{99, {Accordo::uguali, 1, 1e-9, 1e-7}}, {199, {Accordo::senzaRiposo}}});
    EXPECT_FALSE(conto.diverse());
    conto.controllate(
        {{299, {Accordo::spostamenti, 2, 0.00025, 0.0000002}}, {399, {Accordo::verdetto, 3}}});
    EXPECT_TRUE(conto.diverse());
    const Testi righe = conto.righeControllo();
    ASSERT_EQ(righe.size(), 4u);
    EXPECT_EQ(righe[0],
              "4 varianti calcolate in ambedue i modi: 2 diverse, 1 in cui il calcolo per fasi non "
              "converge, 0 senza soluzione di equilibrio.");
    EXPECT_EQ(righe[1], "Il calcolo per fasi non converge nelle varianti 200.");
    EXPECT_EQ(righe[2],
              "variante 300, fase 2: gli spostamenti differiscono di 0.250000 mm, ammessi 0.000200 "
              "mm");
    EXPECT_EQ(righe[3],
              "variante 400, fase 3: il calcolo per fasi converge dove non c'è equilibrio");
    for (std::uint64_t i = 0; i < 30; ++i) conto.controllate({{i, {Accordo::verdetto, 1}}});
    EXPECT_EQ(conto.righeControllo().back(), "... e altre 12.");
}

}  // namespace
}  // namespace korven::studies
