#include "equilibrium/nodal_forces.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/wall_mesh.hpp"
#include "equilibrium/stage_setup.hpp"
#include "support/random_walls.hpp"
#include "support/stage_problems.hpp"

namespace korven::equilibrium {
namespace {

using Vettore = std::vector<double>;

struct Risposta {
    Vettore r, k;
};

Risposta valuta(const ProblemaFase& p, const Vettore& y) {
    ForzeNodi forze(p.n());
    forze.imposta(p);
    Risposta risposta{Vettore(y.size()), Vettore(y.size())};
    forze.valuta(y, risposta.r, risposta.k);
    return risposta;
}

// Bending as forces of each second difference on its three nodes.
void flessione(const ProblemaFase& p, const Vettore& y, Vettore& r) {
    for (std::size_t i = 1; i + 1 < y.size(); ++i) {
        const double S = p.EJ / std::pow(p.h, 3) * (y[i - 1] - 2 * y[i] + y[i + 1]);
        r[i - 1] -= S;
        r[i] += 2 * S;
        r[i + 1] -= S;
    }
}

// Node by node from the functions of its sides and anchors.
Risposta perDefinizione(const ProblemaFase& p, const Vettore& y) {
    Risposta a{Vettore(y.size()), Vettore(y.size())};
    for (std::size_t i = 0; i < y.size(); ++i) {
        const NodoFase& nodo = p.nodi[i];
        const double dove = nodo.vincolato ? 0 : y[i];
        if (i < static_cast<std::size_t>(p.nParete))
            a.r[i] = nodo.peso * (nodo.acqua + p.costante + nodo.monte.pressione(dove) +
                                  nodo.valle.pressione(dove));
        a.k[i] = nodo.peso * (nodo.monte.rigidezza(dove) + nodo.valle.rigidezza(dove));
        for (const TiranteFase& t : p.tiranti) {
            if (t.nodo != static_cast<int>(i)) continue;
            a.r[i] -= t.volte * t.tiro(dove);
            a.k[i] += t.volte * t.rigidezzaIn(dove);
        }
        if (!nodo.vincolato) continue;
        a.k[i] = 1e11 * nodo.peso;
        a.r[i] -= a.k[i] * y[i];
    }
    a.r[0] += p.H + p.M / p.h;
    a.r[1] -= p.M / p.h;
    flessione(p, y, a.r);
    return a;
}

void confronta(const ProblemaFase& p, const Vettore& y, const std::string& quale) {
    const Risposta avuta = valuta(p, y), attesa = perDefinizione(p, y);
    double grande = 1;  // of the numbers that cancel
    for (const double spostamento : y)
        grande = std::max(grande, 16 * p.EJ / std::pow(p.h, 3) * std::fabs(spostamento));
    for (std::size_t i = 0; i < y.size(); ++i) {
        const double ammesso = p.nodi[i].vincolato ? 1e-14 * 1e11 : 1e-14 * grande;
        EXPECT_NEAR(avuta.r[i], attesa.r[i], ammesso) << quale << " nodo " << i;
        EXPECT_NEAR(avuta.k[i], attesa.k[i], 1e-12 * attesa.k[i]) << quale << " nodo " << i;
    }
}

// Displacements that bring sides to all their states, anchors to both of theirs; every kind of
// restraint; even and odd numbers of nodes.
TEST(ForzeNodi, AreThoseOfTheSidesAnchorsAndRestraintsOfEachNode) {
    test::MuriCasuali muri(31);
    int stati[3] = {};
    for (int m = 0; m < 60; ++m) {
        const auto dati = muri.prossimo();
        ImpostazioneFasi fasi(dati, 12 + m % 2, analysis::suoloStrati(dati));
        const ProblemaFase& p = fasi.problema();
        Vettore y(p.nodi.size());
        if (fasi.prepara(dati.nFasi, y) || datoInstabile(p).che != Instabile::no) continue;
        for (double& spostamento : y) spostamento = muri.tra(-4, 6) / 100;
        confronta(p, y, std::to_string(m));
        for (std::size_t i = 0; i < y.size(); ++i) {
            const LatoNodo& lato = p.nodi[i].valle;
            const double dove = lato.pressione(y[i]);
            ++stati[dove == lato.minimo ? 0 : dove == lato.massimo ? 2 : 1];
        }
    }
    for (const int quanti : stati) EXPECT_GT(quanti, 40);
}

// A wall of four nodes, the smallest there is: the pressure at y is 2 - 100 y between 1 and 5.
TEST(ForzeNodi, FollowAPressureToItsLimits) {
    auto p = test::pareteNuda(4, 1);
    for (auto& nodo : p.nodi) nodo.monte = {2, -100, 1, 5};
    const auto elastica = valuta(p, Vettore(4, 0.004));
    EXPECT_DOUBLE_EQ(elastica.r[1], 1.6);
    EXPECT_DOUBLE_EQ(elastica.r[3], 0.8);
    EXPECT_DOUBLE_EQ(elastica.k[1], 100);
    EXPECT_EQ(valuta(p, Vettore(4, 0.02)).r[1], 1);
    EXPECT_EQ(valuta(p, Vettore(4, 0.02)).k[1], 0);
    EXPECT_EQ(valuta(p, Vettore(4, -0.04)).r[1], 5);
}

// Where the modulus is 0 a pressure stays what it is, even if its limits are out of order.
TEST(ForzeNodi, TakeASideWithoutAModulusAsALoad) {
    auto p = test::pareteNuda(5, 1);
    p.nodi[1].valle = {-7, 0, -3, 0};
    p.nodi[2].valle = {-2, 0, -1, -3};
    const auto avuta = valuta(p, Vettore(5, 0.5));
    EXPECT_EQ(avuta.r[1], -3);
    EXPECT_EQ(avuta.r[2], p.nodi[2].valle.pressione(0.5));
    EXPECT_EQ(avuta.k[1], 0);
}

// The node below a fixed toe has its spring alone, neither soil nor loads.
TEST(ForzeNodi, LoadNotTheNodeThatAFixedToeAdds) {
    auto p = test::pareteNuda(5, 1);
    p.nParete = 4;
    p.nodi[3].vincolato = p.nodi[4].vincolato = true;
    p.costante = 3;
    const auto avuta = valuta(p, Vettore(5, 0.0));
    EXPECT_EQ(avuta.r[4], 0);
    EXPECT_EQ(avuta.r[3], 3);  // the constant part of a restrained node stays
    EXPECT_EQ(avuta.k[4], -analysis::kVincolo * p.nodi[4].peso);
}

}  // namespace
}  // namespace korven::equilibrium
