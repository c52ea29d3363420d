#include "factors/factor_rows.hpp"

#include <gtest/gtest.h>

namespace korven::factors {
namespace {

// Every factor that has to be there, each with its number; a test replaces one row of it.
std::string righe(const std::string& da = {}, const std::string& a = {}) {
    std::string testo =
        "norma; mia; La mia norma\n"
        "combinazione; C1; una fonte\n"
        "attrito; 1.25; tab. 1\n"
        "coesione; 1.3; tab. 1\n"
        "non-drenata; 1.4; tab. 1\n"
        "peso; 1; tab. 1\n"
        "permanente; 1.1; tab. 2\n"
        "variabile; 1.2; tab. 2\n"
        "testa-permanente; 1.35; tab. 2\n"
        "testa-variabile; 1.5; tab. 2\n"
        "favorevole-permanente; 0.9; tab. 2\n"
        "favorevole-variabile; 0; tab. 2\n"
        "effetti; 1.05; tab. 2\n"
        "scavo-quota; 0.1; 9.3\n"
        "scavo-massimo; 0.5; 9.3\n";
    if (!da.empty()) testo.replace(testo.find(da), da.size(), a);
    return testo;
}

Catalogo letto(const std::string& testo) {
    Catalogo catalogo;
    leggiCombinazioni(testo, "f.txt", catalogo);
    return catalogo;
}

// The fault that is expected alone, with the number of its line.
void aspetta(const std::string& testo, long riga, const std::string& motivo) {
    const Catalogo catalogo = letto(testo);
    ASSERT_EQ(catalogo.guaste.size(), 1U) << testo;
    EXPECT_EQ(catalogo.guaste[0].riga, riga) << testo;
    EXPECT_EQ(catalogo.guaste[0].motivo, motivo) << testo;
}

TEST(RigheFattori, GiveEachFactorItsNumberAndItsSource) {
    const Catalogo catalogo = letto("# testa\n\n" + righe("effetti", "terra; 1.4; R2\neffetti"));
    EXPECT_TRUE(catalogo.guaste.empty());
    ASSERT_EQ(catalogo.norme.size(), 1U);
    const Norma& norma = catalogo.norme[0];
    EXPECT_EQ(norma.titolo, "La mia norma");
    EXPECT_EQ(norma.file, "f.txt");
    ASSERT_EQ(norma.combinazioni.size(), 1U);
    const Combinazione& c = norma.combinazioni[0];
    EXPECT_EQ(c.nome, "C1");
    EXPECT_EQ(c.fonte, "una fonte");
    const Fattori attesi{.attrito = 1.25,
                         .coesione = 1.3,
                         .nonDrenata = 1.4,
                         .peso = 1,
                         .permanente = 1.1,
                         .variabile = 1.2,
                         .testaPermanente = 1.35,
                         .testaVariabile = 1.5,
                         .favorevolePermanente = 0.9,
                         .favorevoleVariabile = 0,
                         .effetti = 1.05,
                         .terra = 1.4,
                         .scavoQuota = 0.1,
                         .scavoMassimo = 0.5};
    EXPECT_EQ(c.fattori, attesi);
    ASSERT_EQ(c.fonti.size(), vociFattori().size());
    EXPECT_EQ(c.fonti.front(), "tab. 1");
    EXPECT_EQ(c.fonti.back(), "9.3");
}

TEST(RigheFattori, MayLeaveOutTheEarthResistanceAlone) {
    EXPECT_EQ(letto(righe()).norme[0].combinazioni[0].fattori.terra, 0);
    aspetta(righe("peso; 1; tab. 1\n", ""), 2, "alla combinazione mancano coefficienti: peso");
    aspetta(
        "norma; a; A\ncombinazione; C; f\nattrito; 1; f\ncoesione; 1; f\nnon-drenata; 1; f\n"
        "peso; 1; f\npermanente; 1; f\nvariabile; 1; f\n",
        2,
        "alla combinazione mancano coefficienti: testa-permanente, testa-variabile, "
        "favorevole-permanente, favorevole-variabile, effetti, scavo-quota, scavo-massimo");
}

TEST(RigheFattori, AreReadWithTheLineEndsAndTheCodePageOfOtherSystems) {
    std::string crlf = righe("una fonte", "perch\xE9");
    for (std::size_t i = 0; (i = crlf.find('\n', i)) != std::string::npos; i += 2)
        crlf.insert(i, 1, '\r');
    const Catalogo catalogo = letto(crlf);
    EXPECT_TRUE(catalogo.guaste.empty());
    EXPECT_EQ(catalogo.norme[0].combinazioni[0].fonte, "perché");
}

TEST(RigheFattori, TellAFaultWithItsLine) {
    aspetta(righe("1.25", "1,25"), 3, "«1,25» non è un numero (il segno decimale è il punto)");
    aspetta(righe("1.25", "1.25x"), 3, "«1.25x» non è un numero (il segno decimale è il punto)");
    aspetta(righe("1.25", "0.4"), 3, "0.4 non sta fra 0.5 e 10");
    aspetta(righe("1.25", "nan"), 3, "«nan» non è un numero (il segno decimale è il punto)");
    aspetta(righe("scavo-quota; 0.1", "scavo-quota; 10"), 14, "10 non sta fra 0 e 1");
    aspetta(righe("peso", "pesi; 1; f\npeso"), 6, "«pesi» non è un coefficiente di questo file");
    aspetta(righe("peso", "peso; 1; f\npeso"), 7, "«peso» c'è già in questa combinazione");
    const std::string forma =
        "una riga ha tre parti: norma, combinazione o coefficiente; nome o numero; fonte";
    aspetta(righe("peso", "una parola\npeso"), 6, forma);
    aspetta(righe("peso", "peso; 1\npeso"), 6, forma);
    aspetta(righe("peso", "peso; 1; ; f\npeso"), 6, forma);
    aspetta(righe("peso", "peso; 1;\npeso"), 6, forma);
    aspetta(righe("peso", "peso; 1; \x01\npeso"), 6,
            "la riga ha un carattere che non si può mostrare");
}

TEST(RigheFattori, BelongToWhatStandsAboveThem) {
    aspetta("attrito; 1; f\n" + righe(), 1,
            "un coefficiente sta sotto la riga della sua combinazione");
    aspetta("combinazione; C; f\n" + righe(), 1,
            "una combinazione sta sotto la riga della sua norma");
    aspetta("norma; vuota; Vuota\n" + righe(), 1, "«vuota» non ha combinazioni");
    // a factor under a code that has just begun
    const Catalogo catalogo = letto(righe() + "norma; b; B\npeso; 1; f\n");
    ASSERT_EQ(catalogo.guaste.size(), 2U);
    EXPECT_EQ(catalogo.guaste[0].riga, 17);
    EXPECT_EQ(catalogo.guaste[1].motivo, "«b» non ha combinazioni");
}

TEST(RigheFattori, TakeANameOnce) {
    const std::string altra = righe("mia", "MIA");
    aspetta(righe() + altra, 16, "il nome «MIA» è già di un'altra norma");
    std::string seconda = righe("norma; mia; La mia norma\n", "");
    aspetta(righe() + seconda, 16, "il nome «C1» è già di un'altra combinazione");
    seconda.replace(seconda.find("C1"), 2, "C2");
    EXPECT_EQ(letto(righe() + seconda).norme[0].combinazioni.size(), 2U);
}

TEST(RigheFattori, FindACodeWhateverTheCaseOfItsName) {
    const Catalogo catalogo = letto(righe());
    ASSERT_NE(catalogo.norma("Mia"), nullptr);
    EXPECT_EQ(catalogo.norma("Mia")->nome, "mia");
    EXPECT_EQ(catalogo.norma("mi"), nullptr);
}

TEST(RigheFattori, AreTakenFromAnyBytesWithoutHarm) {
    std::string byte;
    for (int i = 0; i < 256; ++i) byte += static_cast<char>(i);
    EXPECT_FALSE(letto(byte).guaste.empty());
    EXPECT_FALSE(letto(std::string(40000, ';')).guaste.empty());
    std::string lungo;
    for (int i = 0; i < 20001; ++i) lungo += "#\n";
    aspetta(lungo + "x", 20002, "il file ha troppe righe");
}

TEST(RigheFattori, SayInWhichFileTheFaultIs) {
    EXPECT_EQ(letto("x").guaste[0].frase().substr(0, 15), "f.txt, riga 1: ");
    EXPECT_EQ((RigaGuasta{"f.txt", 0, "manca"}.frase()), "f.txt: manca");
}

}  // namespace
}  // namespace korven::factors
