#include "masks/needed_cells.hpp"

#include <gtest/gtest.h>

#include "project/codes.hpp"

namespace korven::masks {
namespace {

std::string necessarie(NumeroMaschera numero, int colonne, const project::DatiProgetto& dati) {
    std::string quali;
    for (int c = 1; c <= colonne; ++c)
        if (cellaNecessaria(numero, c, dati)) quali += std::to_string(c);
    return quali;
}

// Depth, two weights, angle, cohesion, ks, description.
TEST(CellaNecessaria, IsEachNumberOfALayerThatACalculationReads) {
    project::DatiProgetto dati;
    const std::pair<project::MetodoKs, const char*> casi[] = {
        {project::MetodoKs::bowles, "12345"},
        {project::MetodoKs::lancellotta, "12345"},
        {project::MetodoKs::costante, "123456"},
        {project::MetodoKs::lineare, "123456"}};
    for (const auto& [metodo, quali] : casi) {
        dati.metodoKs = project::valore(metodo);
        EXPECT_EQ(necessarie(NumeroMaschera::strati, 7, dati), quali);
    }
}

TEST(CellaNecessaria, IsEveryNumberOfAnchorsAndStages) {
    EXPECT_EQ(necessarie(NumeroMaschera::tiranti, 3, {}), "123");
    EXPECT_EQ(necessarie(NumeroMaschera::fasi, 4, {}), "1234");
}

}  // namespace
}  // namespace korven::masks
