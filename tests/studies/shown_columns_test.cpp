#include "studies/shown_columns.hpp"

#include <gtest/gtest.h>

namespace korven::studies {
namespace {

TEST(ValoreMostrato, HasTheUnitsOfWindows) {
    const auto spostamento = valoreMostrato("spostamento_massimo_m");
    EXPECT_EQ(spostamento.testa(), "Spostamento massimo [mm]");
    EXPECT_DOUBLE_EQ(spostamento.mostrato(0.0125), 12.5);
    EXPECT_DOUBLE_EQ(valoreMostrato("uso_momento_positivo").mostrato(0.5), 50);
    EXPECT_EQ(valoreMostrato("passiva_usata").testa(), "Passiva usata [%]");
    EXPECT_DOUBLE_EQ(valoreMostrato("tiro_12_kN").mostrato(80), 80) << "kN already";
    EXPECT_EQ(valoreMostrato("tiro_12_kN").testa(), "Tiro del tirante 12 [kN/m]");
    EXPECT_EQ(valoreMostrato("riduzione").testa(), "Riduzione della resistenza F");
    EXPECT_EQ(valoreMostrato("altro").testa(), "altro");
}

TEST(ValoreMostrato, OfAFieldNamesItsRow) {
    const auto campo = valoreMostrato(project::campoNominato("phiStrato[2]").value());
    EXPECT_TRUE(campo.testa().ends_with(" (phiStrato[2]) [°]")) << campo.testa();
    EXPECT_DOUBLE_EQ(campo.mostrato(31.5), 31.5) << "as typed";
}

// A result that tells something by itself has words of its own.
TEST(ValoreMostrato, HasWordsForEveryResultThatIsANumber) {
    for (const Colonna& colonna : colonne(3, true)) {
        if (colonna.specie != Specie::numero && colonna.specie != Specie::uso) continue;
        EXPECT_NE(valoreMostrato(colonna.nome).titolo, colonna.nome);
    }
}

TEST(ValoreMostrato, OfARowHasFieldsAndColumns) {
    const std::vector campi{project::campoNominato("lunghezzaParatia").value()};
    const RigheStudio righe(campi, colonne(0, false), Formato::csv);
    const auto valori = valoriMostrati(righe);
    ASSERT_EQ(valori.size(), righe.quanti());
    EXPECT_TRUE(valori[0].testa().ends_with("(lunghezzaParatia) [m]"));
}

TEST(CausaMostrata, HasWordsForEveryVerdict) {
    EXPECT_EQ(causeMostrate().size(), paroleCausa().size());
    EXPECT_EQ(causaMostrata(safety::Causa::rifiutato), "dati rifiutati");
    EXPECT_EQ(causaMostrata(safety::Causa::nessunNumero), "nessun numero");
}

}  // namespace
}  // namespace korven::studies
