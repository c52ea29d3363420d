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
    EXPECT_EQ(valoreMostrato("tiro_12_kN").testa(), "Forza del tirante o puntone 12 [kN/m]");
    EXPECT_EQ(valoreMostrato("riduzione").testa(), "Riduzione della resistenza F");
    EXPECT_EQ(valoreMostrato("altro").testa(), "altro");
}

TEST(ValoreMostrato, OfAFieldNamesItsRow) {
    const auto campo = valoreMostrato(project::campoNominato("phiStrato[2]").value());
    EXPECT_TRUE(campo.testa().ends_with(" 2 [°]")) << campo.testa();
    EXPECT_DOUBLE_EQ(campo.mostrato(31.5), 31.5) << "as typed";
    EXPECT_EQ(campo.detto(31.5), "31.5 °");
    EXPECT_FALSE(campo.intero);
}

TEST(ValoreMostrato, OfACodeHasItsWords) {
    const auto piede = valoreMostrato(project::campoNominato("vincoloPiede").value());
    EXPECT_TRUE(piede.intero);
    ASSERT_EQ(piede.codici.size(), 3U);
    EXPECT_EQ(piede.detto(piede.codici[1].valore), piede.codici[1].nome);
    EXPECT_EQ(piede.codici[1].nome.find_first_of("0123456789"), std::string::npos);
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
    EXPECT_TRUE(valori[0].testa().ends_with(" [m]"));
}

TEST(CausaMostrata, HasWordsForEveryVerdict) {
    EXPECT_EQ(causeMostrate().size(), paroleCausa().size());
    EXPECT_EQ(causaMostrata(safety::Causa::rifiutato), "dati rifiutati");
    EXPECT_EQ(causaMostrata(safety::Causa::nessunNumero), "nessun numero");
}

}  // namespace
}  // namespace korven::studies
