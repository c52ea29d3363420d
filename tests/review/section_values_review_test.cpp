#include <gtest/gtest.h>

#include "review/remark_list.hpp"
#include "support/sample_sections.hpp"

namespace korven::review {
namespace {

using project::Sezione;
using Righe = std::vector<std::string>;
using structure::diaframmaSimmetrico;
using structure::palancola;
using structure::paliArmati;
using structure::paliTubolari;

const Righe niente;

Righe righe(const Sezione& sezione) {
    ElencoOsservazioni elenco;
    controlloValoriSezione(sezione, elenco);
    Righe testo;
    for (const auto& r : elenco.ordinate()) testo.push_back(r.testo);
    return testo;
}

Righe con(Sezione sezione, double Sezione::*campo, double valore) {
    sezione.*campo = valore;
    return righe(sezione);
}

TEST(ControlloValoriSezione, FindsNothingInSoundSectionsOrWithoutOne) {
    for (const auto& s : {diaframmaSimmetrico(), structure::diaframmaArmatoAValle(), paliTubolari(),
                          palancola(), paliArmati(), Sezione{}, structure::sezioneConMateriali()})
        EXPECT_EQ(righe(s), niente);
}

TEST(ControlloValoriSezione, TellsStrengthsOutsideThoseOfTheCodes) {
    const std::string unita = ": controllare l'unità di misura";
    auto s = diaframmaSimmetrico();
    s.modEcls = 0;
    EXPECT_EQ(con(s, &Sezione::fck, 250),
              Righe{"Resistenza limite CLS Fck [N/mm²] = 250: di solito da 12 a 90" + unita});
    EXPECT_EQ(con(s, &Sezione::fck, 11).size(), 1u);
    for (const double sana : {12.0, 90.0}) EXPECT_EQ(con(s, &Sezione::fck, sana), niente);
    EXPECT_EQ(
        con(s, &Sezione::fyk, 4300),
        Righe{"Resistenza limite acciaio Fyk [N/mm²] = 4300: di solito da 220 a 700" + unita});
    EXPECT_EQ(con(s, &Sezione::fyk, 219).size(), 1u);
    for (const double sana : {220.0, 700.0}) EXPECT_EQ(con(s, &Sezione::fyk, sana), niente);
    EXPECT_EQ(con(palancola(), &Sezione::fyk, 220),
              Righe{"Resistenza limite acciaio Fyk [N/mm²] = 220: di solito da 235 a 500" + unita});
    EXPECT_EQ(con(palancola(), &Sezione::fyk, 501).size(), 1u);
    for (const double sana : {235.0, 500.0})
        EXPECT_EQ(con(palancola(), &Sezione::fyk, sana), niente);
    EXPECT_EQ(con(palancola(), &Sezione::fck, 250), niente);  // no part of a sheet pile
}

TEST(ControlloValoriSezione, TellsAModulusOfSteelHalfAsLargeAgain) {
    EXPECT_EQ(con(palancola(), &Sezione::modEacciaio, 21000),
              Righe{"Modulo elastico acciaio [N/mm²] = 21000: di solito da 140000 a 315000: "
                    "controllare l'unità di misura"});
    EXPECT_EQ(con(palancola(), &Sezione::modEacciaio, 316000).size(), 1u);
    for (const double sano : {140000.0, 315000.0})
        EXPECT_EQ(con(palancola(), &Sezione::modEacciaio, sano), niente);
}

// 9500 times the cube root of 33 is 30472 N/mm2; two thirds of it 20315, half as much again 45708.
TEST(ControlloValoriSezione, TellsAModulusOfConcreteFarFromThatOfItsStrength) {
    EXPECT_EQ(con(paliArmati(), &Sezione::modEcls, 300000),
              Righe{"Modulo elastico CLS [N/mm²] = 300000: è lontano da quello del calcestruzzo "
                    "(circa 30472): controllare, se non è ridotto apposta"});
    EXPECT_EQ(con(paliArmati(), &Sezione::modEcls, 20300).size(), 1u);
    for (const double sano : {20330.0, 45700.0, 0.0})
        EXPECT_EQ(con(paliArmati(), &Sezione::modEcls, sano), niente);
    auto strana = paliArmati();  // of which the strength is told
    strana.modEcls = 300000;
    EXPECT_EQ(con(strana, &Sezione::fck, 250).size(), 1u);
}

TEST(ControlloValoriSezione, TellsLengthsThatCannotBeBuilt) {
    const auto costruibile = [](const char* estremi) {
        return std::string(": non si costruisce (") + estremi +
               " mm): la scheda è in mm, il file in cm";
    };
    const std::string copriferro = costruibile("da 10 a 200");
    EXPECT_EQ(con(diaframmaSimmetrico(), &Sezione::copriferroMonte, 0.5),
              Righe{"lato monte: Copriferro [mm] = 5" + copriferro});
    EXPECT_EQ(con(diaframmaSimmetrico(), &Sezione::copriferroValle, 21),
              Righe{"lato valle: Copriferro [mm] = 210" + copriferro});
    for (const double sano : {1.0, 20.0, 0.0})
        EXPECT_EQ(con(diaframmaSimmetrico(), &Sezione::copriferroMonte, sano), niente);
    EXPECT_EQ(con(diaframmaSimmetrico(), &Sezione::spessoreDiaframma, 8),
              Righe{"spessore del diaframma = 80" + costruibile("da 200 a 3000")});
    EXPECT_EQ(con(diaframmaSimmetrico(), &Sezione::spessoreDiaframma, 20), niente);
    EXPECT_EQ(con(diaframmaSimmetrico(), &Sezione::diametroValle, 0.24),
              Righe{"lato valle: Diametro armature [mm] = 2.4" + costruibile("da 5 a 60")});
    EXPECT_EQ(con(diaframmaSimmetrico(), &Sezione::interasseValle, 200),
              Righe{"lato valle: Interasse armature [mm] = 2000" + costruibile("da 30 a 1000")});
    EXPECT_EQ(con(paliArmati(), &Sezione::armDiamStaffe, 10),
              Righe{"Diametro staffe [mm] = 100" + costruibile("da 4 a 30")});
    EXPECT_EQ(con(palancola(), &Sezione::palancolaSpessAla, 12),
              Righe{"Spessore ala [mm] = 120" + costruibile("da 3 a 50")});
    EXPECT_EQ(con(palancola(), &Sezione::palancolaSpessAla, 5), niente);
}

TEST(ControlloValoriSezione, TellsBarsWithoutRoomBetweenThem) {
    const std::string pochi = " mm, meno di 20: non si possono posare";
    EXPECT_EQ(con(diaframmaSimmetrico(), &Sezione::interasseMonte, 4.3),
              Righe{"lato monte: Interasse armature [mm] = 43, Diametro armature [mm] = 24: tra un "
                    "ferro e l'altro restano 19.0" +
                    pochi});
    EXPECT_EQ(con(diaframmaSimmetrico(), &Sezione::interasseMonte, 4.4), niente);
    // The axes lie on a ring of 32.8 cm: 46 bars are 4.476 cm apart, 47 bars 4.381.
    EXPECT_EQ(con(paliArmati(), &Sezione::armNumLong, 46), niente);
    EXPECT_EQ(con(paliArmati(), &Sezione::armNumLong, 47),
              Righe{"Diametro armature longitudinali [mm] = 24: tra un ferro e l'altro restano "
                    "19.8" +
                    pochi});
}

TEST(ControlloValoriSezione, TellsPilesThatOverlap) {
    const std::string due = " mm): i pali si sovrappongono e le loro aree contano due volte";
    EXPECT_EQ(con(paliTubolari(), &Sezione::paliInterasse, 59),
              Righe{"interasse dei pali = 590: è minore del diametro (600" + due});
    EXPECT_EQ(con(paliTubolari(), &Sezione::paliInterasse, 60), niente);
    EXPECT_EQ(con(paliArmati(), &Sezione::armInterasse, 79),
              Righe{"interasse dei pali armati = 790: è minore del diametro (800" + due});
    EXPECT_EQ(con(paliArmati(), &Sezione::armInterasse, 80), niente);
}

}  // namespace
}  // namespace korven::review
