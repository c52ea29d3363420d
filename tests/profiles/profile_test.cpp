#include "profiles/profile.hpp"

#include <gtest/gtest.h>

#include "support/sample_sections.hpp"

namespace korven::profiles {
namespace {

using project::Parte;
using project::Sezione;

constexpr std::size_t senzaCampo = masks::numeroCampiSezione;

Profilo tubo(double diametro, double spessore) {
    Profilo p;
    p.genere = Genere::tubo;
    p.nome = "un tubo";
    p.diametro = diametro;
    p.spessore = spessore;
    p.fonte = "tavola";
    return p;
}

Profilo ferro(double diametro) {
    Profilo p;
    p.nome = "Ø";
    p.diametro = diametro;
    p.fonte = "EN 10080";
    return p;
}

TEST(ProfiloTest, OfATubeFillsBothDiameters) {
    const masks::SezioneEditata::Testi attesi{
        {masks::campoSezione(&Sezione::paliDiamEst), "273"},
        {masks::campoSezione(&Sezione::paliDiamInt), "260.4"}};
    EXPECT_EQ(testi(tubo(273, 6.3), senzaCampo), attesi);
}

TEST(ProfiloTest, OfABarFillsTheFieldThatIsNamed) {
    const auto campo = masks::campoSezione(&Sezione::armDiamStaffe);
    EXPECT_EQ(testi(ferro(12), campo), (masks::SezioneEditata::Testi{{campo, "12"}}));
}

TEST(ProfiloTest, OfABarFitsTheDiametersOfReinforcedConcrete) {
    EXPECT_EQ(campiFerro(Parte::diaframma),
              (std::vector{masks::campoSezione(&Sezione::diametroMonte),
                           masks::campoSezione(&Sezione::diametroValle)}));
    EXPECT_EQ(campiFerro(Parte::paliArmati),
              (std::vector{masks::campoSezione(&Sezione::armDiamLong),
                           masks::campoSezione(&Sezione::armDiamStaffe)}));
    EXPECT_TRUE(campiFerro(Parte::pali).empty());
    EXPECT_TRUE(campiFerro(Parte::palancola).empty());
}

TEST(ProfiloTest, FitsTheTypesThatHaveItsFields) {
    const Parte tipi[] = {Parte::diaframma, Parte::pali, Parte::palancola, Parte::paliArmati};
    const auto adatti = [&](const Profilo& p) {
        std::string quali;
        for (const Parte tipo : tipi) quali += adatto(p, tipo) ? '1' : '0';
        return quali;
    };
    EXPECT_EQ(adatti(ferro(16)), "1001");
    EXPECT_EQ(adatti(tubo(273, 6.3)), "0100");
    for (int i = 0; i < 4; ++i) {
        Profilo p;
        p.genere = genereDi(tipi[i]);
        std::string attesi = "0000";
        attesi[static_cast<std::size_t>(i)] = '1';
        EXPECT_EQ(adatti(p), attesi);
    }
}

TEST(ProfiloTest, OfWhatStandsInTheFormGivesTheSameSectionAgain) {
    for (const Sezione& s :
         {structure::diaframmaSimmetrico(), structure::diaframmaArmatoAValle(),
          structure::paliTubolari(), structure::palancola(), structure::paliArmati()}) {
        const Parte tipo = *project::parteInVigore(s);
        const Profilo p = profiloDi(tipo, s, true);
        EXPECT_TRUE(p.proprio);
        Sezione nuova;
        bool modificato = false;
        masks::SezioneEditata modello(nuova, modificato);
        modello.scegli(tipo);
        modello.scrivi("profilo", testi(p, senzaCampo));
        Sezione attesa = s;
        if (tipo == Parte::palancola) attesa.modEcls = attesa.fck = 0;  // needs nothing of concrete
        EXPECT_EQ(modello.letta(), attesa);
    }
}

TEST(ProfiloTest, OfWhatStandsInTheFormLeavesTheMaterialsOutWhereTheyAreNotWanted) {
    const Profilo p = profiloDi(Parte::palancola, structure::palancola(), false);
    EXPECT_EQ(p.misure.size(), 5U);
    EXPECT_EQ(misureMostrate(p), "b = 200, a = 100, h = 190, t = 20, s = 12");
    EXPECT_EQ(profiloDi(Parte::palancola, structure::palancola(), true).misure.size(), 7U);
}

TEST(ProfiloTest, IsFoundByEachWordOfNameNumbersAndSource) {
    const Profilo p = tubo(273, 6.3);
    for (const char* cercato : {"", "TUBO", "273 tavola", "6.3", " un  tubo "})
        EXPECT_TRUE(trovato(p, cercato)) << cercato;
    for (const char* cercato : {"274", "tubo altro"}) EXPECT_FALSE(trovato(p, cercato)) << cercato;
}

TEST(ProfiloTest, TellsItsNumbers) {
    EXPECT_EQ(misureMostrate(ferro(16)), "Ø 16 mm");
    EXPECT_EQ(misureMostrate(tubo(273, 6.3)), "Ø 273, t 6.3 mm");
}

// A measure by its letter on the sketch, a material by its own.
TEST(ProfiloTest, OfASheetPileShowsMeasuresAndMaterials) {
    Profilo p;
    p.genere = Genere::palancola;
    p.misure = {{masks::campoSezione(&Sezione::palancolaBase), 345},
                {masks::campoSezione(&Sezione::fyk), 355},
                {masks::campoSezione(&Sezione::modEacciaio), 210000}};
    const std::string detto = misureMostrate(p);
    EXPECT_NE(detto.find(" = 345, fyk = 355, Es = 210000"), std::string::npos) << detto;
    p.genere = Genere::diaframma;
    p.misure = {{masks::campoSezione(&Sezione::fck), 25},
                {masks::campoSezione(&Sezione::modEcls), 30000}};
    EXPECT_EQ(misureMostrate(p), "fck = 25, Ec = 30000");
}

}  // namespace
}  // namespace korven::profiles
