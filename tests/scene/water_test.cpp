#include <gtest/gtest.h>

#include <algorithm>

#include "scene/polygon.hpp"
#include "scene/scene.hpp"
#include "support/sample_projects.hpp"
#include "support/scene_parts.hpp"

namespace korven::scene {
namespace {

using test::figure;
using test::scenaDi;

// Left and right end of the triangle on the level behind the wall.
Riquadro triangolo(const Scena& s, double falda) {
    for (const Area& a : figure<Area>(s, Elemento::acqua))
        if (a.punti.size() == 3 && a.punti[2].y == s.y(falda)) return intorno(a.punti);
    return {};
}

TEST(Acque, PutTheSignOfALevelBesideAnAnchor) {
    auto dati = test::progettoSemplice();
    const Scena libera = scenaDi(dati, {2});
    const Riquadro usuale = triangolo(libera, dati.faldaMonte);
    ASSERT_GT(usuale.larghezza(), 0);
    // The axis of the anchor falls by 15 degrees: through the middle of the usual sign.
    const double x = (usuale.sinistra + usuale.destra) / 2;
    const double muro = test::pianta(libera).sinistra;
    dati.profTirante[1] = dati.faldaMonte - (muro - x) / libera.scala * 0.26795;
    const Scena coperta = scenaDi(dati, {2});
    const Riquadro spostata = triangolo(coperta, dati.faldaMonte);
    ASSERT_GT(spostata.larghezza(), 0);
    EXPECT_TRUE(spostata.destra < usuale.sinistra || spostata.sinistra > usuale.destra);
}

}  // namespace
}  // namespace korven::scene
