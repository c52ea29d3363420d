#include "equilibrium/verdict.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "equilibrium/stage_setup.hpp"
#include "support/random_walls.hpp"
#include "support/stage_problems.hpp"

namespace korven::equilibrium {
namespace {

// Eleven nodes along 10 m; the trapezoid rule is exact for what is linear.
ProblemaFase nuda() { return test::pareteNuda(11, 1); }

// The same soil at all nodes: limits of the retained side, and of the excavated one in size.
void terreno(ProblemaFase& p, double attivaM, double passivaM, double attivaV, double passivaV) {
    for (auto& nodo : p.nodi) {
        nodo.monte = {(attivaM + passivaM) / 2, -100, attivaM, passivaM};
        nodo.valle = {-(attivaV + passivaV) / 2, -100, -passivaV, -attivaV};
    }
}

TEST(Meccanismo, IsEveryMovementOfAWallInTheAir) {
    const auto moto = meccanismo(nuda());
    ASSERT_TRUE(moto);
    EXPECT_EQ(moto->mancante, 0);
}

TEST(Meccanismo, IsATranslationUnderAForceInTheMiddle) {
    auto p = nuda();
    p.costante = 0.3;
    const auto moto = meccanismo(p);
    ASSERT_TRUE(moto);
    EXPECT_TRUE(moto->traslazione);
    EXPECT_EQ(moto->verso, 1);
    EXPECT_NEAR(moto->mancante, 3, 1e-12);
}

// The toe goes out about the hinge: 2 t/m2 more than the soil in front can give, by 10^2 / 2.
TEST(Meccanismo, TurnsAboutAHingeWithTheMomentThatIsMissing) {
    auto p = nuda();
    p.nodi.front().vincolato = true;
    terreno(p, 4, 9, 0.5, 2);
    const auto moto = meccanismo(p);
    ASSERT_TRUE(moto);
    EXPECT_FALSE(moto->traslazione);
    EXPECT_EQ(moto->profondita, 0);
    EXPECT_EQ(moto->verso, 1);
    EXPECT_NEAR(moto->mancante, 100, 1e-10);
    EXPECT_EQ(moto->spostamento(4), 4);

    terreno(p, 4, 9, 0.5, 4.01);
    EXPECT_FALSE(meccanismo(p));
}

// A moment at the top turns a hinged wall without soil; positive, it pushes the toe uphill, since
// the first node goes towards the excavation and the second away from it.
TEST(Meccanismo, FollowsTheSignOfTheMomentAtTheTop) {
    auto p = nuda();
    p.nodi.front().vincolato = true;
    p.M = 5;
    const auto moto = meccanismo(p);
    ASSERT_TRUE(moto);
    EXPECT_EQ(moto->verso, -1);
    EXPECT_NEAR(moto->mancante, 5, 1e-12);
}

TEST(Meccanismo, HoldsATensionAnchorOneWayAndAPropBothWays) {
    auto p = nuda();
    p.nodi.back().vincolato = true;
    p.tiranti = {{0, 500, 0, 0, false, 1}};
    p.H = 2;
    EXPECT_FALSE(meccanismo(p));
    p.H = -2;  // uphill: the anchor goes slack, and the wall turns about the toe
    const auto moto = meccanismo(p);
    ASSERT_TRUE(moto);
    EXPECT_EQ(moto->profondita, 10);
    EXPECT_EQ(moto->verso, 1);  // below the toe: so the top goes uphill
    EXPECT_NEAR(moto->mancante, 20, 1e-12);
    p.tiranti[0].compressione = true;
    EXPECT_FALSE(meccanismo(p));
}

// A prop at 3 m: the force at the top turns the wall about it, 1 t by 3 m. A second point that is
// held both ways, wherever it is, leaves no movement.
TEST(Meccanismo, TurnsAboutTheOnlyPointThatIsHeldBothWays) {
    auto p = nuda();
    p.tiranti = {{3, 500, 0, 0, true, 1}};
    p.H = 1;
    const auto moto = meccanismo(p);
    ASSERT_TRUE(moto);
    EXPECT_EQ(moto->profondita, 3);
    EXPECT_EQ(moto->verso, -1);  // above the prop towards the excavation
    EXPECT_NEAR(moto->mancante, 3, 1e-12);
    for (const int altro : {0, 2, 4, 10}) {
        p.tiranti.resize(1);
        p.tiranti.push_back({altro, 1, 0, 0, true, 1});
        EXPECT_FALSE(meccanismo(p)) << altro;
    }
}

// Two anchors that pull one way hold what turns about a point between them only one way.
TEST(Meccanismo, HoldsNoMovementThatLetsAllTensionAnchorsGoSlack) {
    auto p = nuda();
    p.tiranti = {{2, 500, 0, 0, false, 1}, {7, 500, 0, 0, false, 1}};
    p.H = 1;
    p.M = -4;  // the resultant is at 4 m, between the anchors
    EXPECT_FALSE(meccanismo(p));
    p.M = -8;  // at 8 m: the wall turns about the lower anchor, and the upper one goes slack
    const auto moto = meccanismo(p);
    ASSERT_TRUE(moto);
    EXPECT_EQ(moto->profondita, 7);
    EXPECT_EQ(moto->verso, 1);
    EXPECT_NEAR(moto->mancante, 1, 1e-12);
}

// An anchor without stiffness is a force: 2 t at 3 m against 10 m of 0.12 t/m2 about the hinge.
TEST(Meccanismo, TakesAnAnchorWithoutStiffnessAsAForce) {
    auto p = nuda();
    p.nodi.front().vincolato = true;
    p.costante = 0.12;
    p.tiranti = {{3, 0, 2, 0, false, 1}};
    const auto moto = meccanismo(p);
    ASSERT_TRUE(moto);
    EXPECT_EQ(moto->verso, 1);
    EXPECT_NEAR(moto->mancante, 0, 1e-12);  // 0.12 x 50 - 2 x 3: just not held
    p.costante = 0.11;
    EXPECT_EQ(meccanismo(p)->verso, -1);  // now the anchor pulls the toe uphill
}

TEST(Meccanismo, IsNoneOfAFixedToe) {
    auto p = test::pareteNuda(12, 1);
    p.nParete = 11;
    p.nodi[10].vincolato = p.nodi[11].vincolato = true;
    p.H = 1000;
    EXPECT_FALSE(meccanismo(p));
}

// What all limit forces do along y = a + b z, node by node from the definition; a hold without
// bound makes it minus infinity.
double lavoro(const ProblemaFase& p, double a, double b) {
    double somma = p.H * a - p.M * b;
    const auto y = [&](int i) { return a + b * p.profondita(i); };
    for (int i = 0; i < p.n(); ++i) {
        const NodoFase& nodo = p.nodi[static_cast<std::size_t>(i)];
        if (y(i) == 0) continue;
        if (nodo.vincolato) return -INFINITY;
        const int verso = y(i) > 0 ? 1 : -1;
        somma += nodo.peso * y(i) *
                 (nodo.acqua + p.costante + nodo.monte.limite(verso) + nodo.valle.limite(verso));
    }
    for (const TiranteFase& t : p.tiranti) {
        if (t.nodo < 0 || y(t.nodo) == 0) continue;
        if (t.rigidezza == 0)
            somma -= t.tiro(0) * y(t.nodo);
        else if (y(t.nodo) > 0 || t.compressione)
            return -INFINITY;
    }
    return somma;
}

// Ten thousand directions in the plane of the rigid movements against the n pivots.
TEST(Meccanismo, AgreesWithATrialOfAllRigidMovements) {
    test::MuriCasuali muri(11);
    int cadono = 0, stanno = 0;
    for (int m = 0; m < 60; ++m) {
        auto dati = muri.prossimo();
        dati.lunghezzaParatia *= m % 2 == 0 ? 1 : 0.5;  // too short for many
        dati.vincoloTesta = dati.vincoloPiede = 1;
        ImpostazioneFasi fasi(dati, 20, analysis::suoloStrati(dati));
        const std::vector<double> fermi(fasi.problema().nodi.size());
        for (int k = 1; k <= dati.nFasi; ++k) {
            if (fasi.prepara(k, fermi)) break;
            const ProblemaFase& p = fasi.problema();
            if (datoInstabile(p).che != Instabile::no) continue;
            double peggiore = -INFINITY;
            for (int i = 0; i < 10000; ++i) {
                const double angolo = i * 2 * M_PI / 10000;
                peggiore = std::max(peggiore, lavoro(p, 10 * std::cos(angolo), std::sin(angolo)));
            }
            const auto moto = meccanismo(p);
            if (moto) {
                ++cadono;
                // The movement told is one of those that are not held.
                const double a = moto->traslazione ? moto->verso : -moto->verso * moto->profondita;
                const double b = moto->traslazione ? 0 : moto->verso;
                EXPECT_NEAR(lavoro(p, a, b), moto->mancante, 1e-9 * (1 + moto->mancante)) << m;
                EXPECT_GE(moto->mancante, 0);
            } else {
                ++stanno;
                EXPECT_LT(peggiore, 0) << m;
            }
        }
    }
    EXPECT_GT(cadono, 20);
    EXPECT_GT(stanno, 20);
}

}  // namespace
}  // namespace korven::equilibrium
