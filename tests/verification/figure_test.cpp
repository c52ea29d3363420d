#include "verification/figure.hpp"

#include <gtest/gtest.h>

#include "base/files.hpp"
#include "support/scene_parts.hpp"
#include "verification/case_reader.hpp"

namespace korven::verification {
namespace {

// A cantilever, and a sheet pile wall with a section.
Gruppo gruppo(const std::string& figura, const std::string& curva) {
    Gruppo g{.nome = "g", .figura = figura, .curva = curva};
    const std::string mensola = std::string(KORVEN_CASES_OF_TESTS) + "/deve_fallire.txt";
    g.casi.push_back(leggiCaso(mensola, base::leggiFile(mensola), KORVEN_EXAMPLES));
    g.casi.push_back(leggiCaso("palancola.txt",
                               "titolo: Sezione\nfonte: -\ntolleranza: -\n[parete]\n"
                               "base = palancola_mensola\n[attesi]\n"
                               "spostamento z 0 = 0 mm entro 1000 mm\n",
                               KORVEN_EXAMPLES));
    return g;
}

TEST(FiguraGruppo, IsOfTheCaseThatTheGroupNames) {
    EXPECT_EQ(casoInFigura(gruppo("", "momento")), nullptr);
    EXPECT_EQ(casoInFigura(gruppo("un_altro", "momento")), nullptr);
    const Gruppo g = gruppo("palancola", "momento");
    EXPECT_EQ(casoInFigura(g), &g.casi[1]);
}

TEST(FiguraGruppo, ShowsTheWallWithItsCurveOrTheDomainOfItsSection) {
    const Gruppo parete = gruppo("palancola", "momento"), sezione = gruppo("palancola", "");
    const auto conCurva = figura(parete, parete.casi[1], {510, 300});
    const auto dominio = figura(sezione, sezione.casi[1], {510, 300});
    EXPECT_EQ(conCurva.scena.larghezza, 510);
    EXPECT_FALSE(test::figure<scene::Linea>(conCurva.scena, scene::Elemento::curva).empty());
    EXPECT_FALSE(test::figure<scene::Linea>(dominio.scena, scene::Elemento::curva).empty());
    EXPECT_FALSE(test::figure<scene::Linea>(conCurva.scena, scene::Elemento::muro).empty() &&
                 test::figure<scene::Area>(conCurva.scena, scene::Elemento::muro).empty());
    EXPECT_NE(conCurva.descrizione, dominio.descrizione);
    EXPECT_EQ(dominio.descrizione, "Sezione.");
}

}  // namespace
}  // namespace korven::verification
