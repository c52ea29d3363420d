#include "exchange/csv_writer.hpp"

#include <gtest/gtest.h>

#include <random>

#include "exchange/csv_layers.hpp"
#include "exchange/file_text.hpp"

namespace korven::exchange {
namespace {

using Frasi = std::vector<std::string>;

const RigheStrati due{{"3.5", "18", "19.5", "30", "0", "5000", "103C3 Sabbia; \"fine\", grigia"},
                      {"12", "19", "", "24", "1e1", "", ""}};

RigheStrati rilette(const RigheStrati& righe, const FormaCsv& forma) {
    const auto letti = leggiCsv(testoDiFile(testoCsv(righe, forma)));
    EXPECT_EQ(letti.difetti, Frasi{});
    EXPECT_EQ(letti.avvertenze, Frasi{});
    EXPECT_TRUE(letti.assenti.none());
    EXPECT_TRUE(letti.descrizioniConCodice);
    return letti.righe;
}

TEST(TestoCsv, HasAMarkNamesAndOneLineALayer) {
    EXPECT_EQ(testoCsv(due, csvPuntoEVirgola),
              "\xEF\xBB\xBF"
              "Prof. [m];Gamma [kN/m³];Gamma Sat. [kN/m³];Phi [°];Coes. [kN/m²];ks [kN/m³];"
              "Descrizione\r\n"
              "3,5;18;19,5;30;0;5000;\"103C3 Sabbia; \"\"fine\"\", grigia\"\r\n"
              "12;19;;24;1e1;;\r\n");
    EXPECT_EQ(testoCsv({due[1]}, csvVirgola),
              "\xEF\xBB\xBF"
              "Prof. [m],Gamma [kN/m³],Gamma Sat. [kN/m³],Phi [°],Coes. [kN/m²],ks [kN/m³],"
              "Descrizione\r\n"
              "12,19,,24,1e1,,\r\n");
}

TEST(TestoCsv, ReadsBackAsTheSameRows) {
    for (const FormaCsv& forma : {csvPuntoEVirgola, csvVirgola})
        EXPECT_EQ(rilette(due, forma), due);
}

// Any description that a project can hold, any numbers in any form that the table takes.
TEST(TestoCsv, ReadsBackAsTheSameRowsWhateverTheyHold) {
    std::mt19937 caso(12);
    const std::vector<std::string> pezzi = {"105C3", " ", "\"",   ";",     ",",    "\t",
                                            "|",     "à", "€",    "ß",     "_",    "'",
                                            "=",     "-", "sep=", "Prof.", "12,5", "\\"};
    const std::vector<std::string> numeri = {"",    "0",   "3",    "3.5", "-0",
                                             "1e1", ".25", "+7.0", "12.", "0.000001"};
    const auto uno = [&caso](const std::vector<std::string>& lista) {
        return lista[caso() % lista.size()];
    };
    for (int prova = 0; prova < 500; ++prova) {
        RigheStrati righe(1 + caso() % 5);
        for (std::size_t i = 0; i < righe.size(); ++i) {
            righe[i][profondita] = std::to_string(i + 1) + (caso() % 2 ? ".5" : "");
            for (std::size_t c = gammaN; c <= ks; ++c) righe[i][c] = uno(numeri);
            for (auto n = caso() % 6; n > 0; --n) righe[i][descrizione] += uno(pezzi);
        }
        ASSERT_EQ(difettiRighe(righe), Frasi{});
        for (const FormaCsv& forma : {csvPuntoEVirgola, csvVirgola, FormaCsv{'\t', ','}})
            ASSERT_EQ(rilette(righe, forma), righe) << testoCsv(righe, forma);
    }
}

TEST(DifettiRighe, AreThoseThatReadingWouldFind) {
    RigheStrati righe = due;
    righe[0][phi] = "trenta";
    righe[1][profondita] = " ";
    EXPECT_EQ(difettiRighe(righe), (Frasi{"riga 1, colonna 4: «trenta» non è un numero (Phi [°])",
                                          "riga 2, colonna 1: manca la profondità dello strato"}));
}

}  // namespace
}  // namespace korven::exchange
