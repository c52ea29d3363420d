#include "factors/catalogue.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "support/user_folder.hpp"

namespace korven::factors {
namespace {

class CombinazioniTest : public ::testing::Test {
 protected:
    CombinazioniTest() { base::impostaCartellaProgramma(KORVEN_DATA_FOLDER); }
    ~CombinazioniTest() override { base::impostaCartellaProgramma({}); }

    void mie(const std::string& testo) {
        std::filesystem::create_directories(utente.percorso());
        test::metti(fileCombinazioniUtente(), testo);
    }
    // The delivered text of one code under another name.
    static std::string copia(const std::string& nome, const std::string& altro) {
        const std::string tutte = base::leggiFile(KORVEN_DATA_FOLDER "/combinazioni.txt");
        const auto da = tutte.find("norma; " + nome + ";");
        std::string una = tutte.substr(da, tutte.find("\nnorma;", da) - da);
        una.replace(7, nome.size(), altro);
        return una;
    }

    test::CartellaUtente utente;
};

// What a factor set differs in from one without factors, by hand from the tables that the rows
// name.
Fattori valori(double attrito, double nonDrenata, double permanente, double variabile,
               double testaPermanente, double testaVariabile, double effetti, double terra) {
    return {.attrito = attrito,
            .coesione = attrito,
            .nonDrenata = nonDrenata,
            .peso = 1,
            .permanente = permanente,
            .variabile = variabile,
            .testaPermanente = testaPermanente,
            .testaVariabile = testaVariabile,
            .favorevolePermanente = 1,
            .favorevoleVariabile = 0,
            .effetti = effetti,
            .terra = terra,
            .scavoQuota = 0.1,
            .scavoMassimo = 0.5};
}

TEST_F(CombinazioniTest, DeliveredAreThoseOfTheCodes) {
    const Catalogo catalogo = leggiCombinazioni();
    EXPECT_TRUE(catalogo.guaste.empty());
    ASSERT_EQ(catalogo.norme.size(), 4U);
    const auto combinazioni = [&](const char* norma) {
        return catalogo.norma(norma)->combinazioni;
    };

    // A1 1.35 1.50, M1 1, factors on effects
    const Fattori effetti = valori(1, 1, 1.35, 1.5, 1.35, 1.5, 1.35, 0);
    // A2 1.00 1.30, M2 1.25 and 1.40 on cu
    const Fattori materiali = valori(1.25, 1.4, 1, 1.3, 1, 1.3, 1, 0);
    ASSERT_EQ(combinazioni("en1997-da1").size(), 2U);
    EXPECT_EQ(combinazioni("en1997-da1")[0].nome, "DA1-1");
    EXPECT_EQ(combinazioni("en1997-da1")[0].fattori, effetti);
    EXPECT_EQ(combinazioni("en1997-da1")[1].nome, "DA1-2");
    EXPECT_EQ(combinazioni("en1997-da1")[1].fattori, materiali);
    ASSERT_EQ(combinazioni("en1997-da2").size(), 1U);
    EXPECT_EQ(combinazioni("en1997-da2")[0].fattori,
              valori(1, 1, 1.35, 1.5, 1.35, 1.5, 1.35, 1.4));  // R2 1.4
    ASSERT_EQ(combinazioni("en1997-da3").size(), 1U);
    EXPECT_EQ(combinazioni("en1997-da3")[0].fattori,
              valori(1.25, 1.4, 1, 1.3, 1.35, 1.5, 1, 0));  // A1 of the structure, A2 of the ground
    ASSERT_EQ(combinazioni("ntc2018").size(), 2U);
    EXPECT_EQ(combinazioni("ntc2018")[0].fattori, valori(1, 1, 1.3, 1.5, 1.3, 1.5, 1.3, 0));
    EXPECT_EQ(combinazioni("ntc2018")[1].fattori, materiali);
}

TEST_F(CombinazioniTest, DeliveredNameThePlaceOfEachNumber) {
    for (const Norma& norma : leggiCombinazioni().norme)
        for (const Combinazione& c : norma.combinazioni)
            for (std::size_t i = 0; i < c.fonti.size(); ++i)
                EXPECT_EQ(c.fonti[i].empty(),
                          vociFattori()[i].chiave == "terra" && c.fattori.terra == 0)
                    << norma.nome << ' ' << vociFattori()[i].chiave;
}

TEST_F(CombinazioniTest, TakeInTheUsersBehindTheDelivered) {
    mie(copia("en1997-da1", "belgio"));
    const Catalogo catalogo = leggiCombinazioni();
    EXPECT_TRUE(catalogo.guaste.empty());
    ASSERT_EQ(catalogo.norme.size(), 5U);
    EXPECT_EQ(catalogo.norme[4].nome, "belgio");
    EXPECT_EQ(catalogo.norme[4].file, "combinazioni_utente.txt");
    EXPECT_EQ(catalogo.norme[0].file, "combinazioni.txt");
}

TEST_F(CombinazioniTest, RefuseTheNameOfADeliveredCodeInTheUsersFile) {
    mie("# mie\n" + copia("ntc2018", "ntc2018"));
    const Catalogo catalogo = leggiCombinazioni();
    ASSERT_EQ(catalogo.guaste.size(), 1U);
    EXPECT_EQ(catalogo.guaste[0].file, fileCombinazioniUtente());
    EXPECT_EQ(catalogo.guaste[0].riga, 2);
}

TEST_F(CombinazioniTest, TellAFileThatIsMissingOrCantBeRead) {
    const test::CartellaProvvisoria vuota;
    base::impostaCartellaProgramma(vuota.percorso());
    Catalogo catalogo = leggiCombinazioni();
    ASSERT_EQ(catalogo.guaste.size(), 1U);
    EXPECT_TRUE(catalogo.guaste[0].file.ends_with("/combinazioni.txt"));
    EXPECT_EQ(catalogo.guaste[0].riga, 0);
    EXPECT_FALSE(catalogo.guaste[0].motivo.empty());
}

}  // namespace
}  // namespace korven::factors
