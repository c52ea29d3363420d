#include "scene/domain.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "support/scene_parts.hpp"

namespace korven::scene {
namespace {

struct Prova {
    std::vector<structure::PuntoDominio> dominio;
    std::vector<live::FaseNelDominio> fasi;
};

Prova prova(double fyk) {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::palancola();
    dati.sezione.fyk = fyk;
    return {structure::dominioNM(dati.sezione), live::fasiNelDominio(live::calcola(dati), nullptr)};
}

TEST(ScenaDominio, KeepsAllTextsApartAndInsideAtAnySize) {
    const Prova p = prova(430);
    for (const Misura& misura : {Misura{120, 120}, Misura{340, 230}, Misura{900, 600}}) {
        const Scena s = scenaDominio(p.dominio, p.fasi, misura, MisuraStimata(), "");
        const auto testi = test::figure<Testo>(s);
        for (std::size_t i = 0; i < testi.size(); ++i) {
            const Riquadro r = testi[i].riquadro();
            EXPECT_TRUE(r.sinistra >= 0 && r.alto >= 0 && r.destra <= s.larghezza &&
                        r.basso <= s.altezza)
                << testi[i].testo;
            for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(r.tocca(testi[j].riquadro()));
        }
    }
}

// The border goes through the points of the domain: at no force the two resistances of a symmetric
// section are at the same distance from the axis of forces.
TEST(ScenaDominio, DrawsTheDomainWithTheMomentUpward) {
    const Prova p = prova(430);
    const Scena s = scenaDominio(p.dominio, p.fasi, {340, 230}, MisuraStimata(), "");
    const auto aree = test::figure<Area>(s);
    const auto campo = std::find_if(
        aree.begin(), aree.end(), [](const Area& a) { return a.tinta.ruolo == Ruolo::fondoCurva; });
    ASSERT_NE(campo, aree.end());
    ASSERT_EQ(campo->punti.size(), 2 * p.dominio.size());
    for (const Punto& q : campo->punti) ASSERT_TRUE(std::isfinite(q.x) && std::isfinite(q.y));
    for (std::size_t i = 1; i < p.dominio.size(); ++i)
        EXPECT_GT(campo->punti[i].x, campo->punti[i - 1].x);  // compression to the right
    const auto dove = std::find_if(p.dominio.begin(), p.dominio.end(),
                                   [](const auto& uno) { return uno.Nd == 0; });
    const auto i = static_cast<std::size_t>(dove - p.dominio.begin());
    EXPECT_LT(campo->punti[i].y, campo->punti[2 * p.dominio.size() - 1 - i].y);
}

TEST(ScenaDominio, PaintsTheStagesOutsideAsDangers) {
    for (const double fyk : {430.0, 1.0}) {
        const Prova p = prova(fyk);
        ASSERT_EQ(p.fasi.size(), 2U);
        const Scena s = scenaDominio(p.dominio, p.fasi, {340, 230}, MisuraStimata(), "");
        for (const Primitiva& una : s.primitive) {
            if (una.elemento != Elemento::fase) continue;
            const bool dentro = p.fasi[static_cast<std::size_t>(una.numero) - 1].dentro();
            if (const auto* linea = std::get_if<Linea>(&una.figura)) {
                EXPECT_EQ(linea->tinta.ruolo == Ruolo::testo, dentro);
            }
        }
    }
    EXPECT_TRUE(prova(430).fasi.back().dentro());
    EXPECT_FALSE(prova(1).fasi.back().dentro());
}

TEST(ScenaDominio, SaysWhyThereIsNone) {
    const Scena s = scenaDominio({}, {}, {340, 230}, MisuraStimata(), "perché");
    const auto testi = test::figure<Testo>(s);
    ASSERT_EQ(testi.size(), 1U);
    EXPECT_EQ(testi[0].testo, "perché");
    EXPECT_EQ(descrizioneDominio({}, {}), "");
}

TEST(DescrizioneDominio, TellsTheEndsAndTheStagesOutside) {
    const Prova dentro = prova(430), fuori = prova(1);
    EXPECT_TRUE(descrizioneDominio(dentro.dominio, dentro.fasi)
                    .ends_with("Tutte le fasi note sono interne al dominio."));
    EXPECT_NE(descrizioneDominio(fuori.dominio, fuori.fasi).find("Fuori del dominio: fase "),
              std::string::npos);
}

}  // namespace
}  // namespace korven::scene
