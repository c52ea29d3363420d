#include "masks/values.hpp"

#include <gtest/gtest.h>

#include "base/file_error.hpp"
#include "base/folders/program_folder.hpp"
#include "base/table.hpp"
#include "support/temporary_folder.hpp"

namespace korven::masks {
namespace {

std::string campo(const std::string& tipo = "0") { return "x\n" + tipo + "\n0\n10\nh\n"; }

std::string mascheraCon(const std::string& testa, int campi) {
    std::string testo = testa + std::to_string(campi) + "\n";
    for (int i = 0; i < campi; ++i) testo += campo();
    return testo + "\n2\na\nb\n";
}

const std::string dueScelte =
    "1\nT\n2\nuno|due\na|b|c\n1\n" + campo() + campo() + campo() + "\n2\na\nb\n";

class ValoriMaschera : public ::testing::Test {
 protected:
    void SetUp() override {
        test::metti(cartella / "a", dueScelte);
        test::metti(cartella / "b", mascheraCon("4\nG\n", 3));
        maschere.leggiMaschere({cartella / "a", cartella / "b"});
    }
    test::CartellaProvvisoria cartella;
    Maschere maschere;
};

TEST_F(ValoriMaschera, NumberTheMasksInTheOrderOfTheirFiles) {
    maschere.selezionaMaschera(2);
    EXPECT_EQ(maschere.corrente().titolo, "G");
    maschere.selezionaMaschera(1);
    EXPECT_EQ(maschere.corrente().titolo, "T");
    EXPECT_THROW(maschere.selezionaMaschera(0), base::ErroreIndice);
    EXPECT_THROW(maschere.selezionaMaschera(3), base::ErroreIndice);
}

TEST_F(ValoriMaschera, KeepACodeLessOneAndGiveItBackPlusOne) {
    maschere.selezionaMaschera(1);
    maschere.impostaCampo(1, "2");
    maschere.impostaCampo(2, " 3x");
    maschere.impostaCampo(3, "12.5 m");
    EXPECT_EQ(maschere.valoriCombo(), (std::vector<double>{1, 2}));
    EXPECT_EQ(maschere.leggiCampo(1), "2");
    EXPECT_EQ(maschere.leggiCampo(2), "3");
    EXPECT_EQ(maschere.leggiCampo(3), "12.5 m");
    EXPECT_EQ(maschere.leggiCampo(4), "");
}

TEST_F(ValoriMaschera, TakeAnUnsetOrNegativeCodeForTheFirstItem) {
    maschere.selezionaMaschera(1);
    for (const auto* codice : {"0", "-2", "", "abc"}) {
        maschere.impostaCampo(1, codice);
        EXPECT_EQ(maschere.valoriCombo()[0], 0) << codice;
        EXPECT_EQ(maschere.leggiCampo(1), "1");
    }
}

TEST_F(ValoriMaschera, GiveBackACodeThatHasNoItem) {
    maschere.selezionaMaschera(1);
    maschere.impostaCampo(1, "9");
    maschere.impostaCampo(2, "2.5");
    EXPECT_EQ(maschere.leggiCampo(1), "9");
    EXPECT_EQ(maschere.leggiCampo(2), "2.5");
}

TEST_F(ValoriMaschera, AreEmptyAndCancelledUntilAFormIsConfirmed) {
    maschere.selezionaMaschera(2);
    EXPECT_TRUE(maschere.annullato());
    maschere.impostaCampo(1, "1");
    maschere.impostaCampo(2, "3");
    EXPECT_EQ(maschere.valoriTesto(), (std::vector<std::string>{"1", "3"}));
    maschere.conferma({}, {"0"});
    EXPECT_FALSE(maschere.annullato());
    EXPECT_EQ(maschere.valoriTesto(), std::vector<std::string>{"0"});
    maschere.rilasciaForm();
    EXPECT_TRUE(maschere.valoriTesto().empty());
    maschere.selezionaMaschera(1);
    EXPECT_TRUE(maschere.annullato());
    EXPECT_EQ(maschere.valoriCombo(), (std::vector<double>{0, 0}));
}

TEST_F(ValoriMaschera, HoldAThousandTextsUntilTheFirstReleaseAnd75000FromThenOn) {
    maschere.selezionaMaschera(2);
    EXPECT_EQ(maschere.capacita(), 1000u);
    EXPECT_NO_THROW(maschere.impostaCampo(1000, "x"));
    EXPECT_THROW(maschere.impostaCampo(1001, "x"), base::ErroreIndice);
    EXPECT_THROW(maschere.conferma({}, std::vector<std::string>(1001)), base::ErroreIndice);
    maschere.rilasciaForm();
    EXPECT_EQ(maschere.capacita(), 75000u);
    maschere.selezionaMaschera(2);
    EXPECT_NO_THROW(maschere.conferma({}, std::vector<std::string>(3501)));
}

TEST_F(ValoriMaschera, RefuseMoreThanTwentyMasks) {
    EXPECT_NO_THROW(maschere.leggiMaschere(std::vector<std::string>(20, cartella / "a")));
    EXPECT_THROW(maschere.leggiMaschere(std::vector<std::string>(21, cartella / "a")),
                 base::ErroreIndice);
}

class MaschereProgramma : public ::testing::Test {
 protected:
    void SetUp() override {
        base::impostaCartellaProgramma(cartella.percorso());
        test::metti(cartella / "EDITT.MAV", mascheraCon("1\nT\n0\n", 7));
        std::string scelte = "1\nD\n7\n1|2\n1|2|3\n1|2\n1|2\n1|2\n1|2|3\n1|2|3|4\n11\n";
        for (int i = 0; i < 18; ++i) scelte += campo();
        test::metti(cartella / "EDITDIA.MAV", scelte + "\n2\na\nb\n");
        test::metti(cartella / "editstra.mav", mascheraCon("4\nS\n", 8));
        test::metti(cartella / "EDITTIR.MAV", mascheraCon("2\nA\n", 5));
        test::metti(cartella / "EDITFASI.MAV", mascheraCon("3\nF\n", 5));
    }
    void TearDown() override { base::impostaCartellaProgramma(""); }
    [[nodiscard]] std::string fileGuasto() const {
        Maschere maschere;
        try {
            maschere.leggiMaschereProgramma();
        } catch (const base::ErroreFile& errore) {
            return errore.percorso();
        }
        return "";
    }
    test::CartellaProvvisoria cartella;
};

TEST_F(MaschereProgramma, AreTheFiveFilesOfTheProgramFolder) {
    Maschere maschere;
    maschere.leggiMaschereProgramma();
    maschere.selezionaMaschera(static_cast<int>(NumeroMaschera::strati));
    EXPECT_EQ(maschere.corrente().titolo, "S");
    maschere.selezionaMaschera(static_cast<int>(NumeroMaschera::fasi));
    EXPECT_EQ(maschere.corrente().titolo, "F");
}

TEST_F(MaschereProgramma, AreRefusedWithTheNameOfAMissingFile) {
    std::filesystem::remove(cartella / "EDITTIR.MAV");
    EXPECT_EQ(fileGuasto(), cartella / "EDITTIR.MAV");
}

TEST_F(MaschereProgramma, AreRefusedWithoutTheFieldsOfTheirEditor) {
    test::metti(cartella / "EDITT.MAV", mascheraCon("1\nT\n0\n", 6));
    EXPECT_EQ(fileGuasto(), cartella / "EDITT.MAV");
    test::metti(cartella / "EDITT.MAV", mascheraCon("2\nT\n", 7));
    EXPECT_EQ(fileGuasto(), cartella / "EDITT.MAV");
    SetUp();
    EXPECT_EQ(fileGuasto(), "");
    test::metti(cartella / "EDITDIA.MAV", dueScelte);
    EXPECT_EQ(fileGuasto(), cartella / "EDITDIA.MAV");
}

}  // namespace
}  // namespace korven::masks
