#include "masks/edited_section.hpp"

#include <gtest/gtest.h>

#include <set>

#include "project/project_data.hpp"
#include "support/wall_builder.hpp"

namespace korven::masks {
namespace {

using project::Parte;

std::string testo(const SezioneEditata& editata, double project::Sezione::*campo) {
    return editata.testo(campoSezione(campo));
}

void scrivi(SezioneEditata& editata, double project::Sezione::*campo, std::string_view testo) {
    editata.scrivi(campoSezione(campo), testo);
}

// Every field another number, all of which survive the way through their texts.
project::Sezione piena() {
    project::Sezione sezione;
    sezione.tipoPalancola = true;
    double valore = 1.25;
    for (const CampoSezione& campo : campiSezione) sezione.*campo.valore = (valore += 0.5);
    return sezione;
}

TEST(SezioneEditata, HasEachFieldOfTheSectionOnce) {
    std::set<std::size_t> posti;
    project::Sezione sezione;
    for (const CampoSezione& campo : campiSezione) {
        posti.insert(campoSezione(campo.valore));
        sezione.*campo.valore = 1;
    }
    EXPECT_EQ(posti.size(), 26U);
    const double somma =
        sezione.modEcls + sezione.modEacciaio + sezione.fck + sezione.fyk +
        sezione.copriferroMonte + sezione.copriferroValle + sezione.interasseMonte +
        sezione.interasseValle + sezione.diametroMonte + sezione.diametroValle +
        sezione.spessoreDiaframma + sezione.paliDiamEst + sezione.paliDiamInt +
        sezione.paliInterasse + sezione.palancolaBase + sezione.palancolaLargAla +
        sezione.palancolaAltAla + sezione.palancolaSpessore + sezione.palancolaSpessAla +
        sezione.armInterasse + sezione.armDiamLong + sezione.armDiamPalo + sezione.armPassoStaffe +
        sezione.armDiamStaffe + sezione.armNumLong + sezione.armCopriferro;
    EXPECT_EQ(somma, 26);
}

TEST(SezioneEditata, ShowsLengthsInMillimetresAndMaterialsAsStored) {
    project::Sezione sezione;
    bool modificato = false;
    sezione.spessoreDiaframma = 80;
    sezione.diametroMonte = 2.6;
    sezione.armPassoStaffe = 0.05;
    sezione.modEacciaio = 210000;
    sezione.fck = 28.5;
    const SezioneEditata editata(sezione, modificato);
    EXPECT_EQ(testo(editata, &project::Sezione::spessoreDiaframma), "800");
    EXPECT_EQ(testo(editata, &project::Sezione::diametroMonte), "26");
    EXPECT_EQ(testo(editata, &project::Sezione::armPassoStaffe), "0.5");
    EXPECT_EQ(testo(editata, &project::Sezione::modEacciaio), "210000");
    EXPECT_EQ(testo(editata, &project::Sezione::fck), "28.5");
    EXPECT_EQ(testo(editata, &project::Sezione::paliDiamEst), "0");
}

TEST(SezioneEditata, ShowsTheFieldsOfAllTypesAndNotOnlyOfTheChosenOne) {
    project::Sezione sezione = piena();
    bool modificato = false;
    const SezioneEditata editata(sezione, modificato);
    for (std::size_t i = 0; i < numeroCampiSezione; ++i) EXPECT_NE(editata.testo(i), "0") << i;
}

TEST(SezioneEditata, TakesTheBarCountThroughTheFactorOfTheLengths) {
    project::Sezione sezione;
    bool modificato = false;
    sezione.armNumLong = 1.2;
    SezioneEditata editata(sezione, modificato);
    EXPECT_EQ(testo(editata, &project::Sezione::armNumLong), "12");
    scrivi(editata, &project::Sezione::armNumLong, "8");
    editata.conferma();
    EXPECT_EQ(sezione.armNumLong, 0.8) << "a typed 8 calculates with 0.8";
}

TEST(SezioneEditata, IsADiaphragmFromTheStartWhenNoTypeIsSet) {
    project::Sezione sezione;
    bool modificato = false;
    SezioneEditata editata(sezione, modificato);
    EXPECT_EQ(editata.tipo(), Parte::diaframma);
    EXPECT_TRUE(sezione.tipoDiaframma) << "before anything is confirmed";
    EXPECT_FALSE(modificato);
    editata.conferma();
    EXPECT_FALSE(modificato) << "the flag no longer differs from its option";
}

TEST(SezioneEditata, ShowsTheFirstTrueFlag) {
    constexpr Parte attesi[] = {Parte::diaframma, Parte::pali, Parte::palancola, Parte::paliArmati};
    for (std::size_t i = 0; i < std::size(project::tipiSezione); ++i) {
        project::Sezione sezione;
        bool modificato = false;
        for (std::size_t j = i; j < std::size(project::tipiSezione); ++j)
            sezione.*project::tipiSezione[j] = true;
        SezioneEditata editata(sezione, modificato);
        EXPECT_EQ(editata.tipo(), attesi[i]);
        editata.conferma();
        for (std::size_t j = 0; j < std::size(project::tipiSezione); ++j)
            EXPECT_EQ(sezione.*project::tipiSezione[j], j == i);
        EXPECT_EQ(modificato, i + 1 < std::size(project::tipiSezione))
            << "flags beyond the first went";
    }
}

TEST(SezioneEditata, ChangesNoDataByTheClickOfAnOption) {
    project::Sezione sezione = piena();
    bool modificato = false;
    SezioneEditata editata(sezione, modificato);
    editata.scegli(Parte::paliArmati);
    EXPECT_EQ(editata.tipo(), Parte::paliArmati);
    EXPECT_EQ(sezione, piena());
    EXPECT_FALSE(modificato);
}

TEST(SezioneEditata, LeavesModificatoAloneWhenNothingWasEdited) {
    for (const bool prima : {false, true}) {
        project::Sezione sezione = piena();
        bool modificato = prima;
        SezioneEditata(sezione, modificato).conferma();
        EXPECT_EQ(modificato, prima);
        EXPECT_EQ(sezione, piena());
    }
}

TEST(SezioneEditata, CountsAValueThatWouldBeLostOnTheWayThroughItsTextAsAChangeAndKeepsIt) {
    // The text has 15 digits of ten times the value.
    for (const double valore : {12.34567890123456789, 1.0 / 3}) {
        project::Sezione sezione = piena();
        bool modificato = false;
        sezione.paliDiamEst = valore;
        SezioneEditata(sezione, modificato).conferma();
        EXPECT_TRUE(modificato);
        EXPECT_EQ(sezione.paliDiamEst, valore);
    }
}

TEST(SezioneEditata, LeavesModificatoAloneForEveryLengthOfTwoDecimals) {
    // For 0.21 and hundreds more, the double nearest to a tenth of ten times the length is another.
    int mancati = 0;
    for (int k = 1; k <= 999; ++k) {
        project::Sezione sezione = piena();
        bool modificato = false;
        sezione.paliDiamEst = k / 100.0;
        sezione.fck = k / 1000.0;
        SezioneEditata(sezione, modificato).conferma();
        EXPECT_FALSE(modificato) << k;
        EXPECT_EQ(sezione.paliDiamEst, k / 100.0);
        mancati += k / 100.0 * 10 / 10 != k / 100.0;
    }
    EXPECT_GT(mancati, 0);
}

TEST(SezioneEditata, ReadsATextThatWasTypedByTheRuleEvenIfItsValueIsNear) {
    project::Sezione sezione = piena();
    bool modificato = false;
    sezione.paliDiamEst = 12.34567890123456789;
    SezioneEditata editata(sezione, modificato);
    scrivi(editata, &project::Sezione::paliDiamEst, "123.456789012346 ");
    editata.conferma();
    EXPECT_EQ(sezione.paliDiamEst, 12.3456789012346);
}

TEST(SezioneEditata, SetsModificatoForAnyOneFieldEvenOfATypeNotChosen) {
    for (std::size_t i = 0; i < numeroCampiSezione; ++i) {
        project::Sezione sezione = piena();
        bool modificato = false;
        SezioneEditata editata(sezione, modificato);
        editata.scrivi(i, "777");
        EXPECT_EQ(sezione, piena()) << "typing alone stores nothing";
        editata.conferma();
        EXPECT_TRUE(modificato) << i;
        project::Sezione attesa = piena();
        attesa.*campiSezione[i].valore = 777 / campiSezione[i].campo().unita.fattore;
        EXPECT_EQ(sezione, attesa) << i;
    }
}

TEST(SezioneEditata, SetsModificatoForAnotherTypeAndStoresItsFlagAlone) {
    project::Sezione sezione = piena();
    bool modificato = false;
    SezioneEditata editata(sezione, modificato);
    editata.scegli(Parte::pali);
    editata.conferma();
    EXPECT_TRUE(modificato);
    project::Sezione attesa = piena();
    attesa.tipoPalancola = false;
    attesa.tipoPali = true;
    EXPECT_EQ(sezione, attesa) << "all numbers kept";
}

TEST(SezioneEditata, TakesTheNumberAtTheBeginningOfAnyText) {
    const std::pair<const char*, double> casi[] = {
        {"800", 80},   {"  26 mm", 2.6}, {"1 2", 0.1}, {"12.5x", 1.25}, {"4,5", 0.4},
        {"spesso", 0}, {"", 0},          {"-30", -3},  {"1e3", 100},    {"0", 0},
    };
    for (const auto& [scritto, atteso] : casi) {
        project::Sezione sezione;
        bool modificato = false;
        SezioneEditata editata(sezione, modificato);
        scrivi(editata, &project::Sezione::spessoreDiaframma, scritto);
        editata.conferma();
        EXPECT_EQ(sezione.spessoreDiaframma, atteso) << scritto;
    }
}

TEST(SezioneEditata, KeepsMaterialsUnscaled) {
    project::Sezione sezione;
    bool modificato = false;
    SezioneEditata editata(sezione, modificato);
    scrivi(editata, &project::Sezione::modEcls, "31000");
    scrivi(editata, &project::Sezione::fyk, "430.5");
    editata.conferma();
    EXPECT_EQ(sezione.modEcls, 31000);
    EXPECT_EQ(sezione.fyk, 430.5);
}

TEST(SezioneEditata, StartsFromTheDefaultsOfANewProject) {
    project::DatiProgetto dati = test::progettoVuoto();
    bool modificato = false;
    SezioneEditata editata(dati.sezione, modificato);
    EXPECT_EQ(editata.tipo(), Parte::diaframma);
    for (std::size_t i = 0; i < numeroCampiSezione; ++i) EXPECT_EQ(editata.testo(i), "0");
    editata.conferma();
    EXPECT_FALSE(modificato);
}

TEST(SezioneEditata, TakesFieldsAndTypesBackAndDoesThemAgain) {
    project::Sezione sezione = piena();
    bool modificato = false;
    SezioneEditata editata(sezione, modificato);
    const std::size_t fck = campoSezione(&project::Sezione::fck);
    const std::size_t base = campoSezione(&project::Sezione::palancolaBase);
    const std::string prima = editata.testo(base);
    editata.entra(base);
    editata.scrivi(base, "4");
    editata.scrivi(base, "45");
    editata.entra(fck);
    editata.entra(base);
    editata.scrivi(base, "456");
    editata.scegli(Parte::pali);
    editata.scegli(Parte::pali);
    EXPECT_EQ(editata.annulla(), SezioneEditata::sceltaTipo);
    EXPECT_EQ(editata.detto(), "Annullato: tipo di sezione");
    EXPECT_EQ(editata.tipo(), Parte::palancola);
    EXPECT_EQ(editata.annulla(), base);
    EXPECT_EQ(editata.testo(base), "45");
    EXPECT_EQ(editata.detto(), "Annullato: campo base della palancola");
    EXPECT_EQ(editata.annulla(), base);
    EXPECT_EQ(editata.testo(base), prima);
    EXPECT_EQ(editata.annulla(), std::nullopt);
    const project::Sezione comEra = sezione;
    editata.conferma();
    EXPECT_TRUE(sezione == comEra);
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(editata.ripeti());
    EXPECT_EQ(editata.ripeti(), std::nullopt);
    EXPECT_EQ(editata.tipo(), Parte::pali);
    EXPECT_EQ(editata.testo(base), "456");
}

TEST(SezioneEditata, TakesSeveralFieldsWrittenAtOnceBackAsOneStep) {
    project::Sezione sezione = piena();
    bool modificato = false;
    SezioneEditata editata(sezione, modificato);
    const std::size_t est = campoSezione(&project::Sezione::paliDiamEst);
    const std::size_t interno = campoSezione(&project::Sezione::paliDiamInt);
    const std::string prima = editata.testo(est) + ' ' + editata.testo(interno);
    editata.scrivi("tubo 273 x 10", {{est, "273"}, {interno, "253"}});
    EXPECT_EQ(editata.annulla(), est);
    EXPECT_EQ(editata.detto(), "Annullato: tubo 273 x 10");
    EXPECT_EQ(editata.testo(est) + ' ' + editata.testo(interno), prima);
    editata.ripeti();
    EXPECT_EQ(editata.testo(interno), "253");
}

}  // namespace
}  // namespace korven::masks
