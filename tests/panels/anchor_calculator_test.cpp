#include "panels/anchor_calculator.hpp"

#include <gtest/gtest.h>

#include <set>

namespace korven::panels {
namespace {

using enum VoceCalcolo;

// Four strands of 140 mm², 12 m free, every 2.4 m at 30°, stressed to 480 kN.
IngressiCalcolo quattroTrefoli() {
    return {.testi = {"195000", "4", "140", "12", "2.4", "30", "480"}};
}

IngressiCalcolo con(VoceCalcolo voce, const char* testo) {
    auto ingressi = quattroTrefoli();
    ingressi.testo(voce) = testo;
    return ingressi;
}

// What is told of an input, without a value.
void aspettaVizio(const EsitoCalcolo& esito, VoceCalcolo voce, const std::string& parole) {
    EXPECT_FALSE(esito.valore);
    EXPECT_EQ(esito.testo(), "");
    EXPECT_EQ(esito.voce, voce);
    EXPECT_EQ(esito.conto, parole);
}

TEST(CalcoloTirante, GivesTheStiffnessWithItsFormulaAndTheValuesPutIn) {
    const auto esito = rigidezza(quattroTrefoli());
    EXPECT_EQ(esito.testo(), "2843.8");  // 195 * 560 * 3/4 / 28.8 = 2843.75
    EXPECT_EQ(esito.conto,
              "k = E A cos²α / (L s) = 195000 × 560 × 0.7500 / (12 × 2.4 × 1000) = 2843.8 kN/m/m");
    EXPECT_FALSE(esito.voce);
}

TEST(CalcoloTirante, GivesTheHorizontalPrestressPerMetre) {
    const auto esito = pretensione(quattroTrefoli());
    EXPECT_EQ(esito.testo(), "173.21");  // 480 * 0.866025 / 2.4 = 173.205
    EXPECT_EQ(esito.conto, "F cos α / s = 480 × 0.8660 / 2.4 = 173.21 kN/m");
}

TEST(CalcoloTirante, TakesTheAreaFromDiametersToo) {
    auto ingressi = quattroTrefoli();
    EXPECT_EQ(area(ingressi).conto, "A = 4 × 140 = 560 mm²");
    ingressi.misuraArea = MisuraArea::diametro;
    ingressi.testo(numero) = "1";
    ingressi.testo(misura) = "32";
    EXPECT_EQ(area(ingressi).conto, "A = n π d² / 4 = 1 π × 32² / 4 = 804.25 mm²");
    EXPECT_EQ(rigidezza(ingressi).testo(), "4084.1");  // 195 * 804.248 * 0.75 / 28.8 = 4084.07
}

TEST(CalcoloTirante, CountsHalfTheLengthOfAStrutBetweenTwoWalls) {
    // 9100 mm² of 210 kN/mm², 10 m between the walls, every 4 m.
    IngressiCalcolo ingressi{.genere = GenereAncoraggio::puntone,
                             .testi = {"210000", "1", "9100", "10", "4", "0", ""}};
    EXPECT_EQ(rigidezza(ingressi).testo(), "47775");  // 1911000 / 40
    ingressi.genere = GenereAncoraggio::puntoneTraPareti;
    const auto esito = rigidezza(ingressi);
    EXPECT_EQ(esito.testo(), "95550");
    EXPECT_EQ(esito.conto,
              "k = E A cos²α / (L/2 s) = 210000 × 9100 × 1.0000 / (5 × 4 × 1000) = 95550 kN/m/m");
}

TEST(CalcoloTirante, WritesFiveDigitsAndNoMore) {
    EXPECT_EQ(rigidezza(con(lunghezza, "7")).testo(), "4875");       // exactly
    EXPECT_EQ(rigidezza(con(lunghezza, "11.7")).testo(), "2916.7");  // 2916.667
    EXPECT_EQ(rigidezza(con(misura, "0.001")).testo(), "0.020313");  // 0.0203125
    EXPECT_EQ(rigidezza(con(misura, "140000000")).testo(), "2843800000");
}

TEST(CalcoloTirante, TellsTheFirstInputThatIsMissing) {
    aspettaVizio(rigidezza({}), numero, "Numero di trefoli, barre o profili n: da scrivere");
    aspettaVizio(rigidezza(con(lunghezza, "  ")), lunghezza, "Lunghezza libera L [m]: da scrivere");
    aspettaVizio(pretensione({}), forza, "Tesatura di un tirante F [kN]: da scrivere");
}

TEST(CalcoloTirante, TellsWhatIsNoNumber) {
    aspettaVizio(rigidezza(con(interasse, "2,4")), interasse,
                 "Interasse s [m]: «2,4» non è un numero; il segno decimale è il punto");
    aspettaVizio(area(con(misura, "1e999")), misura,
                 "Area di ciascuno [mm²]: «1e999» non è un numero; il segno decimale è il punto");
}

TEST(CalcoloTirante, TellsWhatIsOutOfRangeAndWhatToDo) {
    for (const auto voce : {modulo, misura, lunghezza, interasse})
        for (const char* testo : {"0", "-1"}) {
            const auto ingressi = con(voce, testo);
            aspettaVizio(rigidezza(ingressi), voce,
                         etichetta(voce, ingressi) + ": deve essere maggiore di 0");
        }
    for (const char* testo : {"0", "2.5"})
        aspettaVizio(
            rigidezza(con(numero, testo)), numero,
            "Numero di trefoli, barre o profili n: deve essere un numero intero, da 1 in su");
    for (const char* testo : {"90", "-1", "120"})
        for (const auto& esito :
             {rigidezza(con(inclinazione, testo)), pretensione(con(inclinazione, testo))})
            aspettaVizio(esito, inclinazione,
                         "Inclinazione sull'orizzontale α [°]: deve essere da 0 a meno di 90: in "
                         "verticale non tiene la paratia");
    aspettaVizio(pretensione(con(forza, "-5")), forza,
                 "Tesatura di un tirante F [kN]: deve essere 0 o maggiore");
}

TEST(CalcoloTirante, TellsSizesBeyondAllUse) {
    auto ingressi = con(modulo, "1e300");
    ingressi.testo(misura) = "1e300";
    const auto esito = rigidezza(ingressi);
    EXPECT_FALSE(esito.valore);
    EXPECT_EQ(esito.conto, "valori fuori scala: controllare le unità");
    EXPECT_TRUE(area(con(misura, "1e-315")).valore) << "too small to be rounded";
}

TEST(CalcoloTirante, ExplainsEachInputAsTheChoicesHaveIt) {
    std::set<std::string> testi;
    for (const auto genere :
         {GenereAncoraggio::tirante, GenereAncoraggio::puntone, GenereAncoraggio::puntoneTraPareti})
        for (const auto misuraArea : {MisuraArea::area, MisuraArea::diametro})
            for (std::size_t i = 0; i < numeroVoci; ++i)
                testi.insert(spiegazione(static_cast<VoceCalcolo>(i),
                                         {.genere = genere, .misuraArea = misuraArea}));
    EXPECT_FALSE(testi.contains(""));
    EXPECT_EQ(testi.size(), 4U + 2 + 3 + 2) << "area or diameter, three lengths, two forces";
}

TEST(CalcoloTirante, GivesTheForceOfOneAnchorWhereSpacingAndAngleAreKnown) {
    // 173.205 kN/m * 2.4 m / cos 30° = 480 kN; nothing else has to be typed.
    IngressiCalcolo ingressi;
    EXPECT_FALSE(forzaDiUno(ingressi, 173.205));
    ingressi.testo(interasse) = "2.4";
    ingressi.testo(inclinazione) = "30";
    EXPECT_NEAR(forzaDiUno(ingressi, 173.205).value(), 480, 0.001);
    ingressi.testo(inclinazione) = "90";
    EXPECT_FALSE(forzaDiUno(ingressi, 173.205));
}

TEST(Etichetta, SaysWhichLengthAndWhichMeasureAreMeant) {
    IngressiCalcolo in = quattroTrefoli();
    EXPECT_EQ(etichetta(lunghezza, in), "Lunghezza libera L [m]");
    in.genere = GenereAncoraggio::puntone;
    EXPECT_EQ(etichetta(lunghezza, in), "Lunghezza del puntone L [m]");
    in.genere = GenereAncoraggio::puntoneTraPareti;
    EXPECT_EQ(etichetta(lunghezza, in), "Distanza tra le paratie L [m]");
    in.misuraArea = MisuraArea::area;
    EXPECT_EQ(etichetta(misura, in), "Area di ciascuno [mm²]");
    in.misuraArea = MisuraArea::diametro;
    EXPECT_EQ(etichetta(misura, in), "Diametro di ciascuno d [mm]");
    EXPECT_EQ(etichetta(modulo, in), "Modulo elastico E [N/mm²]");
    EXPECT_EQ(etichetta(numero, in), "Numero di trefoli, barre o profili n");
    EXPECT_EQ(etichetta(interasse, in), "Interasse s [m]");
    EXPECT_EQ(etichetta(inclinazione, in), "Inclinazione sull'orizzontale α [°]");
}

}  // namespace
}  // namespace korven::panels
