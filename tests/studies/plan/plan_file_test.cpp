#include "studies/plan/plan_file.hpp"

#include <gtest/gtest.h>

#include <string>

namespace korven::studies {
namespace {

using enum MotivoPiano;

project::DatiProgetto dueStrati() {
    project::DatiProgetto dati;
    dati.nStrati = 2;
    return dati;
}

PianoLetto leggi(std::string_view testo) { return leggiPiano(dueStrati(), testo); }

std::vector<std::vector<double>> righe(const Piano& piano) {
    std::vector<std::vector<double>> tutte;
    for (std::uint64_t i = 0; i < piano.numero(); ++i) {
        std::vector<double> v(piano.campi().size());
        EXPECT_TRUE(piano.valori(i, v).empty());
        tutte.push_back(v);
    }
    return tutte;
}

using Righe = std::vector<std::vector<double>>;

TEST(Piano, HasAColumnForEachFieldAndARowForEachVariant) {
    const auto letto = leggi("lunghezzaParatia;phiStrato[2]\n8;31.5\n12.5;28\n");
    ASSERT_TRUE(letto.piano);
    EXPECT_TRUE(letto.difetti.empty());
    EXPECT_EQ(letto.piano->campi()[1].riga, 2);
    EXPECT_EQ(righe(*letto.piano), (Righe{{8, 31.5}, {12.5, 28}}));
}

TEST(Piano, MayHaveCommasQuotesAMarkAndUnitsInItsHead) {
    const auto letto = leggi(
        "\xEF\xBB\xBF\r\n\"lunghezzaParatia [m]\", \"phiStrato[2] [°]\"\r\n\r\n"
        "\"8\" , 31.5\r\n 9,\"32\"");
    ASSERT_TRUE(letto.piano);
    EXPECT_EQ(righe(*letto.piano), (Righe{{8, 31.5}, {9, 32}}));
}

// Numbers that a division by ten would round stay as typed.
TEST(Piano, KeepsNumbersAsTyped) {
    const auto letto = leggi("coesione[1]\n0.3\n2.9\n");
    ASSERT_TRUE(letto.piano);
    EXPECT_EQ(righe(*letto.piano), (Righe{{0.3}, {2.9}}));
}

TEST(Piano, TakesCodesByNumberAndByName) {
    const auto letto = leggi("vincoloPiede,metodoSpinte\n3,coulomb\ncerniera,1\n");
    ASSERT_TRUE(letto.piano);
    EXPECT_EQ(righe(*letto.piano), (Righe{{3, 1}, {2, 1}}));
}

struct Luogo {
    MotivoPiano motivo;
    long riga;
    std::size_t colonna;
};

void haDifetti(std::string_view testo, const std::vector<Luogo>& attesi) {
    const auto letto = leggi(testo);
    EXPECT_FALSE(letto.piano) << testo;
    ASSERT_EQ(letto.difetti.size(), attesi.size()) << testo;
    for (std::size_t i = 0; i < attesi.size(); ++i) {
        EXPECT_EQ(letto.difetti[i].motivo, attesi[i].motivo) << testo << i;
        EXPECT_EQ(letto.difetti[i].riga, attesi[i].riga) << testo << i;
        EXPECT_EQ(letto.difetti[i].colonna, attesi[i].colonna) << testo << i;
    }
}

TEST(Piano, TellsEachFaultWithLineAndColumn) {
    haDifetti("lunghezza;phiStrato[3];descrStrato[1]\n8;30;x\n",
              {{campo, 1, 1}, {campo, 1, 2}, {testo, 1, 3}});
    haDifetti("phiStrato[1];phiStrato[2];phiStrato[1]\n1;2;3\n", {{campoRipetuto, 1, 3}});
    haDifetti("\nlunghezzaParatia;phiStrato[2]\n8;trenta\n\n101;28\n;30\n",
              {{campo, 3, 2}, {campo, 5, 1}, {campo, 6, 1}});
    haDifetti("lunghezzaParatia;phiStrato[2]\n8\n9;30;1\n10;30\n", {{celle, 2, 0}, {celle, 3, 0}});
    haDifetti("", {{senzaRighe, 0, 0}});
    haDifetti("lunghezzaParatia\n", {{senzaRighe, 0, 0}});
    haDifetti("lunghezzaParatia\n\"8\n", {{csv, 0, 0}});
    haDifetti("metodoSpinte\n2\n", {{campo, 2, 1}});
}

TEST(Piano, PointsAtDecimalCommas) {
    const auto letto = leggi("lunghezzaParatia;phiStrato[2]\n8,5;30\n");
    ASSERT_EQ(letto.difetti.size(), 1U);
    ASSERT_TRUE(letto.difetti[0].rifiuto);
    EXPECT_EQ(letto.difetti[0].rifiuto->motivo, project::MotivoRifiuto::virgola);
}

TEST(Piano, TellsTheFirstTwentyFaultsOfManyRows) {
    std::string testo = "lunghezzaParatia\n";
    for (int i = 0; i < 1000; ++i) testo += "no\n";
    EXPECT_EQ(leggi(testo).difetti.size(), 20U);
}

TEST(Piano, TellsTheFirstTwentyFaultsOfManyColumns) {
    std::string ignoti = "no";
    for (int i = 0; i < 1000; ++i) ignoti += ",no";
    EXPECT_EQ(leggi(ignoti + "\n1\n").difetti.size(), 20U);
    EXPECT_EQ(leggi(ignoti + "\n\"never ended").difetti.size(), 20U);
}

TEST(Piano, TellsTheFirstTwentyFaultsOfOneRow) {
    std::string campi = "lunghezzaParatia", valori = "no";
    for (const std::string colonna :
         {"profStrato", "gammaN", "gammaSat", "phiStrato", "coesione", "suStrato", "ksStrato"})
        campi += "," + colonna + "[1]," + colonna + "[2]";
    campi += ",rigidezzaEJ,sovraccMonte,momentoTesta,forzaTesta,faldaMonte,faldaValle,gammaAcqua";
    for (int i = 0; i < 21; ++i) valori += ",no";
    EXPECT_EQ(leggi(campi + "\n" + valori + "\n").difetti.size(), 20U);
}

}  // namespace
}  // namespace korven::studies
