#include "studies/summary/failure_rule.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

namespace korven::studies {
namespace {

using Motivo = DifettoCondizione::Motivo;

const std::array<std::string, 3> nomi = {"causa", "spostamento_massimo_m", "passiva_usata"};

bool vale(const char* testo, double x) {
    const auto letta = leggiCondizione(testo, nomi);
    EXPECT_TRUE(std::holds_alternative<Condizione>(letta)) << testo;
    return std::get<Condizione>(letta).vale(std::array{0.0, x, x});
}

TEST(Condizione, ComparesAResultWithANumber) {
    EXPECT_TRUE(vale("spostamento_massimo_m>0.03", 0.031));
    EXPECT_FALSE(vale("spostamento_massimo_m>0.03", 0.03));
    EXPECT_TRUE(vale(" passiva_usata >= 1 ", 1));
    EXPECT_TRUE(vale("passiva_usata<1", 0.5));
    EXPECT_FALSE(vale("passiva_usata<1", 1));
    EXPECT_TRUE(vale("passiva_usata<=1", 1));
    EXPECT_TRUE(vale("passiva_usata>-1.5e-1", 0));
}

TEST(Condizione, IsFalseForWhatAVariantHasNot) {
    const double nessuno = std::nan("");
    for (const char* testo : {"passiva_usata>0", "passiva_usata<0", "passiva_usata>=0"})
        EXPECT_FALSE(vale(testo, nessuno));
}

TEST(Condizione, SaysWhatIsWrongAndAtWhichCharacter) {
    struct Caso {
        const char* testo;
        Motivo motivo;
        std::size_t carattere;
    };
    for (const auto& caso : {Caso{"", Motivo::forma, 1}, Caso{"passiva_usata", Motivo::forma, 1},
                             Caso{">1", Motivo::forma, 1}, Caso{"uso>1", Motivo::sconosciuto, 1},
                             Caso{"passiva_usata>", Motivo::nonNumero, 15},
                             Caso{"passiva_usata>=uno", Motivo::nonNumero, 16},
                             Caso{"passiva_usata>0,5", Motivo::virgola, 15}}) {
        const auto letta = leggiCondizione(caso.testo, nomi);
        ASSERT_TRUE(std::holds_alternative<DifettoCondizione>(letta)) << caso.testo;
        const auto& difetto = std::get<DifettoCondizione>(letta);
        EXPECT_EQ(difetto.motivo, caso.motivo) << caso.testo;
        EXPECT_EQ(difetto.carattere, caso.carattere) << caso.testo;
    }
}

TEST(Condizione, HasTheNameOfItsResult) {
    EXPECT_EQ(risultatoDi(" passiva_usata >= 1 "), "passiva_usata");
    EXPECT_EQ(risultatoDi("passiva_usata"), "");
    EXPECT_EQ(risultatoDi(">1"), "");
}

TEST(Condizione, IsToldWrongInWords) {
    const auto letta = leggiCondizione("passiva_usata>0,5", nomi);
    EXPECT_EQ(parole(std::get<DifettoCondizione>(letta)),
              "carattere 15: 0,5: il segno decimale è il punto: 0.5");
    EXPECT_EQ(parole(std::get<DifettoCondizione>(leggiCondizione("uso>1", nomi))),
              "carattere 1: uso: nessun risultato si chiama così");
    EXPECT_EQ(parole(std::get<DifettoCondizione>(leggiCondizione("momento_kN>1", nomi))),
              "carattere 1: momento_kN: nessun risultato si chiama così");
    EXPECT_EQ(parole(std::get<DifettoCondizione>(leggiCondizione("spostamento_massimo>1", nomi))),
              "carattere 1: spostamento_massimo: nessun risultato si chiama così; forse "
              "spostamento_massimo_m?");
}

TEST(Condizione, IsToldHowToWriteOne) {
    EXPECT_EQ(parole(DifettoCondizione{Motivo::forma, "passiva_usata"}),
              "carattere 1: passiva_usata: atteso come in spostamento_massimo_m>0.03");
}

}  // namespace
}  // namespace korven::studies
