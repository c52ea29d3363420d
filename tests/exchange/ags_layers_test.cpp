#include "exchange/ags_layers.hpp"

#include <gtest/gtest.h>

namespace korven::exchange {
namespace {

using Frasi = std::vector<std::string>;
using Modo = TestaAlForo::Modo;

struct Riga {
    std::string profonda, testo;
    bool operator==(const Riga&) const = default;
};

std::ostream& operator<<(std::ostream& os, const Riga& r) {
    return os << r.profonda << ' ' << r.testo;
}

std::vector<Riga> righe(const StratiLetti& letti) {
    std::vector<Riga> brevi;
    for (const auto& r : letti.righe) brevi.push_back({r[profondita], r[descrizione]});
    return brevi;
}

Foro foro(std::vector<TrattoForo> tratti) {
    return {"BH1", "101.35", 5, std::move(tratti), {}, {}};
}

const Foro tre = foro(
    {{11, "0.00", "1.20", "Fill"}, {12, "1.20", "3.40", "Clay"}, {13, "3.40", "10.00", "Sand"}});

std::string difetto(const Foro& f, const TestaAlForo& testa = {}) {
    const auto letti = stratiForo(f, testa);
    EXPECT_TRUE(letti.righe.empty());
    return letti.difetti.size() == 1 ? letti.difetti[0] : "not one fault";
}

TEST(StratiForo, AreTheRangesWithTheHeadAtGroundLevel) {
    const auto letti = stratiForo(tre, {});
    EXPECT_EQ(letti.difetti, Frasi{});
    EXPECT_EQ(letti.avvertenze, Frasi{});
    EXPECT_EQ(righe(letti), (std::vector<Riga>{{"1.2", "Fill"}, {"3.4", "Clay"}, {"10", "Sand"}}));
    EXPECT_EQ(letti.assenti, std::bitset<numeroColonne>("0111110"));
    EXPECT_FALSE(letti.descrizioniConCodice);
}

TEST(StratiForo, AreCutAtTheHeadAndMeasuredFromIt) {
    const auto letti = stratiForo(tre, {Modo::profondita, "1.5"});
    EXPECT_EQ(righe(letti), (std::vector<Riga>{{"1.9", "Clay"}, {"8.5", "Sand"}}));
    EXPECT_EQ(letti.avvertenze,
              Frasi{"strati tolti perché stanno sopra la testa della paratia: 1"});
    EXPECT_EQ(righe(stratiForo(tre, {Modo::profondita, "1,2"})),
              (std::vector<Riga>{{"2.2", "Clay"}, {"8.8", "Sand"}}));
}

// 101.35 - 98.2 = 3.15 m below ground.
TEST(StratiForo, AreMeasuredFromALevelOfTheHead) {
    EXPECT_EQ(righe(stratiForo(tre, {Modo::quota, "98.2"})),
              (std::vector<Riga>{{"0.25", "Clay"}, {"6.85", "Sand"}}));
    Foro senza = tre;
    senza.quota = "";
    EXPECT_EQ(difetto(senza, {Modo::quota, "98.2"}),
              "la quota del terreno al foro (LOCA_GL) manca o non è un numero: dare la profondità "
              "della testa");
    EXPECT_EQ(difetto(tre, {Modo::profondita, "98 m"}),
              "testa della paratia: «98 m» non è un numero");
    EXPECT_EQ(difetto(tre, {Modo::profondita, ""}), "testa della paratia: «» non è un numero");
}

TEST(StratiForo, BeginAtAHeadAboveTheGround) {
    const auto letti = stratiForo(tre, {Modo::profondita, "-0.5"});
    EXPECT_EQ(righe(letti),
              (std::vector<Riga>{{"1.7", "Fill"}, {"3.9", "Clay"}, {"10.5", "Sand"}}));
    EXPECT_EQ(letti.avvertenze,
              Frasi{"la testa della paratia sta 0.5 m sopra il terreno del foro: il primo strato "
                    "comincia dalla testa"});
}

TEST(StratiForo, RefuseAHeadBelowTheHole) {
    EXPECT_EQ(difetto(tre, {Modo::profondita, "10"}),
              "la testa della paratia sta sotto il fondo del foro, a 10 m");
}

TEST(StratiForo, ArePutInOrder) {
    const auto letti = stratiForo(foro({tre.tratti[2], tre.tratti[0], tre.tratti[1]}), {});
    EXPECT_EQ(righe(letti), righe(stratiForo(tre, {})));
    EXPECT_EQ(letti.avvertenze,
              Frasi{"le righe del foro non sono in ordine di profondità: sono state ordinate"});
}

TEST(StratiForo, AreTakenOnceWhereTheyStandTwice) {
    auto doppi = tre;
    doppi.tratti.push_back({14, "3.40", "10.00", "Sand"});
    const auto letti = stratiForo(doppi, {});
    EXPECT_EQ(righe(letti), righe(stratiForo(tre, {})));
    EXPECT_EQ(letti.avvertenze,
              Frasi{"riga 14: lo strato è già alla riga 13: conta una volta sola"});
}

TEST(StratiForo, KeepTheBoundariesOfAGap) {
    const auto letti = stratiForo(foro({{11, "0.5", "1", "Fill"}, {12, "2", "4", "Clay"}}), {});
    EXPECT_EQ(righe(letti), (std::vector<Riga>{{"0.5", "Senza descrizione nel foro"},
                                               {"1", "Fill"},
                                               {"2", "Senza descrizione nel foro"},
                                               {"4", "Clay"}}));
    EXPECT_EQ(letti.avvertenze,
              (Frasi{"tra 0 e 0.5 m il foro non ha descrizione: diventa uno strato a sé",
                     "tra 1 e 2 m il foro non ha descrizione: diventa uno strato a sé"}));
    EXPECT_EQ(righe(stratiForo(foro({{11, "0.5", "1", "Fill"}}), {Modo::profondita, "0.5"})),
              (std::vector<Riga>{{"0.5", "Fill"}}));
}

TEST(StratiForo, RefuseRangesThatOverlap) {
    EXPECT_EQ(difetto(foro({{11, "0", "3", "Fill"}, {12, "2.5", "4", "Clay"}})),
              "riga 12: tra 2.5 e 3 m lo strato si sovrappone a quello della riga 11");
    EXPECT_EQ(difetto(foro({{11, "0", "3", "Fill"}, {12, "1", "2", "Clay"}})),
              "riga 12: tra 1 e 2 m lo strato si sovrappone a quello della riga 11");
    EXPECT_EQ(difetto(foro({{11, "0", "3", "Fill"}, {12, "0", "3", "Clay"}})),
              "riga 12: tra 0 e 3 m lo strato si sovrappone a quello della riga 11");
}

TEST(StratiForo, TakeBoundariesThatDifferByMillimetresForOne) {
    const auto letti = stratiForo(foro({{11, "0", "3.004", "Fill"}, {12, "3", "4", "Clay"}}), {});
    EXPECT_EQ(righe(letti), (std::vector<Riga>{{"3.004", "Fill"}, {"4", "Clay"}}));
    EXPECT_EQ(letti.avvertenze, Frasi{});
}

TEST(StratiForo, TellDepthsThatAreNone) {
    EXPECT_EQ(difetto(foro({{11, "", "3", "Fill"}})), "riga 11: GEOL_TOP «» non è un numero");
    EXPECT_EQ(difetto(foro({{11, "0", "circa 3", "Fill"}})),
              "riga 11: GEOL_BASE «circa 3» non è un numero");
    EXPECT_EQ(difetto(foro({{11, "3", "3", "Fill"}})),
              "riga 11: la base 3 non sta sotto il tetto 3");
    EXPECT_EQ(difetto(foro({{11, "0", "1e4", "Rock"}})),
              "riga 11: «10000» non sta tra 0 e 1000 (Prof. [m])");
}

TEST(StratiForo, RefuseMoreThanAProjectHolds) {
    std::vector<TrattoForo> molti;
    for (int i = 0; i < 137; ++i)
        molti.push_back({i, std::to_string(i), std::to_string(i + 1), "Lamina"});
    EXPECT_EQ(difetto(foro(molti)), "gli strati sono 137: un progetto ne tiene al massimo 100");
    EXPECT_EQ(stratiForo(foro(molti), {Modo::profondita, "40"}).righe.size(), 97U);
}

TEST(StratiForo, AreDescribedInOneLine) {
    const auto letti = stratiForo(foro({{11, "0", "1", " Sand\r\nand \t gravel ≥ 20 "}}), {});
    EXPECT_EQ(letti.righe[0][descrizione], "Sand and gravel ? 20");
}

}  // namespace
}  // namespace korven::exchange
