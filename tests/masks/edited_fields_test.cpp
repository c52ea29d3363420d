#include "masks/edited_fields.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace korven::masks {
namespace {

// Each table has the columns of its part, the titles their one; the wall has single fields.
TEST(CampiEditati, AreThoseOfTheForm) {
    const std::pair<NumeroMaschera, project::Parte> tabelle[] = {
        {NumeroMaschera::titoli, project::Parte::titoli},
        {NumeroMaschera::strati, project::Parte::strati},
        {NumeroMaschera::tiranti, project::Parte::tiranti},
        {NumeroMaschera::fasi, project::Parte::fasi}};
    for (const auto& [numero, parte] : tabelle) {
        const auto campi = campiEditati(numero);
        EXPECT_FALSE(campi.empty());
        for (const auto* campo : campi) {
            EXPECT_EQ(campo->parte, parte) << campo->nome;
            EXPECT_TRUE(project::colonna(*campo)) << campo->nome;
        }
    }
    EXPECT_EQ(campiEditati(NumeroMaschera::titoli).size(), 1U);
    for (const auto* campo : campiEditati(NumeroMaschera::paratia))
        EXPECT_FALSE(project::colonna(*campo)) << campo->nome;
}

}  // namespace
}  // namespace korven::masks
