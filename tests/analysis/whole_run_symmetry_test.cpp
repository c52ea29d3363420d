// What whole runs share with their mirror image, with themselves and with finer meshes.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "project/codes.hpp"
#include "support/random_walls.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::analysis {
namespace {

using project::MetodoKs;
using project::ModoKs;
using project::ModoSpinte;
using project::TipoTirante;
using test::fasiDi;
using test::MuriCasuali;

// A wall without excavation and without a slope is between two sides that obey the same rules,
// limits included. Anchors pull from one side only, so two-way springs without prestress are left.
project::DatiProgetto senzaScavo(MuriCasuali& caso) {
    auto d = caso.prossimo();
    d.inclinazioneMonte = 0;
    for (int k = 1; k <= d.nFasi; ++k) {
        d.profFase[k] = 0;
        d.tirantiFase[k] = d.nTiranti;
        d.sovraccFase[k] = caso.tra(0, 2);
        d.faldaFase[k] = caso.tra(-0.5, 8);
    }
    for (int a = 1; a <= d.nTiranti; ++a) {
        d.tipoTirante[a] = valore(TipoTirante::trazioneCompressione);
        d.pretTirante[a] = 0;
    }
    d.nFasi = 1;
    d.modoSpinte = valore(ModoSpinte::ricalcolate);
    // The linear method takes another bottom for the last layer on each side.
    d.modoKs = valore(d.metodoKs == MetodoKs::lineare ? ModoKs::comeMonte : ModoKs::ricalcolato);
    d.forzaTesta = caso.tra(-6, 6);
    d.momentoTesta = caso.tra(-6, 6);
    return d;
}

project::DatiProgetto specchiato(project::DatiProgetto d) {
    std::swap(d.faldaMonte, d.faldaFase[1]);
    std::swap(d.sovraccMonte, d.sovraccFase[1]);
    d.forzaTesta = -d.forzaTesta;
    d.momentoTesta = -d.momentoTesta;
    d.pressioneOrizz = -d.pressioneOrizz;
    return d;
}

// Pairs of columns that change places, with their sign.
struct Coppia {
    VettoreNodi RisultatiFase::*dritta;
    VettoreNodi RisultatiFase::*specchiata;
    double segno;
};
const Coppia coppie[] = {
    {&RisultatiFase::sigmaVv, &RisultatiFase::sigmaVm, 1},
    {&RisultatiFase::sigmaVm, &RisultatiFase::sigmaVv, 1},
    {&RisultatiFase::Ehv, &RisultatiFase::Ehm, 1},
    {&RisultatiFase::Ehm, &RisultatiFase::Ehv, 1},
    {&RisultatiFase::k0v, &RisultatiFase::k0m, -1},
    {&RisultatiFase::kav, &RisultatiFase::kam, -1},
    {&RisultatiFase::kpv, &RisultatiFase::kpm, -1},
};

TEST(MuroSpecchiato, GivesTheMirroredAnswer) {
    MuriCasuali caso(201);
    int riusciti = 0;
    for (int muro = 0; muro < 60; ++muro) {
        const auto d = senzaScavo(caso);
        const int nSeg = caso.intero(12, 50);
        SCOPED_TRACE("wall " + std::to_string(muro));
        const auto fasi = fasiDi(d, nSeg);
        const auto altre = fasiDi(specchiato(d), nSeg);
        ASSERT_EQ(fasi.size(), altre.size());
        if (fasi.empty()) continue;
        ++riusciti;
        const auto &r = fasi[0], &s = altre[0];
        for (int i = 1; i <= nSeg + 1; ++i) {
            for (const auto& [dritta, specchiata, segno] : coppie)
                EXPECT_NEAR((r.*dritta)[i], segno * (s.*specchiata)[i], 1e-7) << i;
            EXPECT_NEAR(r.yNodo[i], -s.yNodo[i], 1.5e-7) << i;
            // A displacement that differs by the convergence tolerance moves the forces a little.
            EXPECT_NEAR(r.momentoNodo[i], -s.momentoNodo[i], 1e-4) << i;
            EXPECT_NEAR(r.taglioNodo[i], -s.taglioNodo[i], 1e-4) << i;
        }
        if (HasFailure()) return;
    }
    EXPECT_GT(riusciti, 40);
}

TEST(MuroSpecchiato, MovesWithTheLoadAndLiesStillWithoutOne) {
    MuriCasuali caso(202);
    for (int muro = 0; muro < 20; ++muro) {
        auto d = senzaScavo(caso);
        d.faldaFase[1] = d.faldaMonte;
        d.sovraccFase[1] = d.sovraccMonte;
        d.pressioneOrizz = d.momentoTesta = d.forzaTesta = 0;
        const auto fasi = fasiDi(d, 20);
        ASSERT_EQ(fasi.size(), 1u) << muro;
        for (int i = 1; i <= 21; ++i) {
            EXPECT_NEAR(fasi[0].yNodo[i], 0, 1e-7) << muro;
            EXPECT_NEAR(fasi[0].momentoNodo[i], 0, 1e-4) << muro;
        }
    }
}

TEST(MuroElastico, AnswersInProportionToItsLoads) {
    auto d = test::muroElastico(1500);
    d.forzaTesta = 3;
    d.momentoTesta = -2;
    d.pressioneOrizz = 0.2;
    const auto una = fasiDi(d, 30);
    d.forzaTesta *= 7;
    d.momentoTesta *= 7;
    d.pressioneOrizz *= 7;
    const auto sette = fasiDi(d, 30);
    for (int i = 1; i <= 31; ++i) {
        EXPECT_NEAR(sette.at(0).yNodo[i], 7 * una.at(0).yNodo[i], 5e-7);
        EXPECT_NEAR(sette.at(0).momentoNodo[i], 7 * una.at(0).momentoNodo[i], 5e-7);
        EXPECT_NEAR(sette.at(0).taglioNodo[i], 7 * una.at(0).taglioNodo[i], 5e-7);
    }
}

TEST(CorsaRipetuta, WritesTheSameBytes) {
    MuriCasuali caso(203);
    for (int muro = 0; muro < 20; ++muro) {
        const auto d = caso.prossimo();
        const int nSeg = caso.intero(12, 50);
        std::string prima;
        for (int volta = 1; volta <= 2; ++volta) {
            test::Banco banco(d, nSeg);
            banco.avanzamento.adOgniIterazione = [](const StatoIterazione& stato) {
                if (stato.iterazione >= 60) stopCalcolo = true;
            };
            banco.calcola();
            const std::string scritto = test::contenuto(banco.risultati());  // none after a failure
            EXPECT_EQ(scritto.empty(), erroreCalcolo);
            if (volta == 1)
                prima = scritto;
            else
                EXPECT_EQ(scritto, prima) << muro;
        }
    }
}

// Largest displacement and moment of the last stage.
struct Estremi {
    double y = 0, M = 0;
};

Estremi estremi(const RisultatiFase& r, int nSeg) {
    Estremi e;
    for (int i = 1; i <= nSeg + 1; ++i) {
        e.y = std::max(e.y, std::fabs(r.yNodo[i]));
        e.M = std::max(e.M, std::fabs(r.momentoNodo[i]));
    }
    return e;
}

// Layers, levels and anchors act at the nodes beside them, so a mesh is right to the first order in
// its step, and each halving about halves the difference to the next one. That holds for the walls
// on the whole; a single one may lie well by chance on a coarse mesh. Levels are taken where every
// mesh has a node.
TEST(MeshPiuFitta, BringsTheAnswersTogether) {
    MuriCasuali caso(204);
    const int mesh[] = {12, 24, 48, 96};
    double dy[3] = {}, dM[3] = {};  // relative differences of neighbours, summed over the walls
    int riusciti = 0;
    for (int muro = 0; muro < 20; ++muro) {
        auto d = caso.prossimo();
        d.lunghezzaParatia = 12;
        const auto alMetro = [](double z) { return std::floor(z + 0.5); };
        for (int j = 1; j <= d.nStrati; ++j) d.profStrato[j] = alMetro(d.profStrato[j]);
        for (int a = 1; a <= d.nTiranti; ++a) d.profTirante[a] = alMetro(d.profTirante[a]);
        for (int k = 1; k <= d.nFasi; ++k) d.profFase[k] = alMetro(d.profFase[k]);
        std::vector<Estremi> e;
        for (const int nSeg : mesh) {
            const auto fasi = fasiDi(d, nSeg);
            if (fasi.empty()) break;
            e.push_back(estremi(fasi.back(), nSeg));
        }
        if (e.size() < 4) continue;
        ++riusciti;
        for (std::size_t m = 0; m < 3; ++m) {
            dy[m] += std::fabs(e[m + 1].y - e[m].y) / e[3].y;
            dM[m] += std::fabs(e[m + 1].M - e[m].M) / e[3].M;
        }
    }
    ASSERT_GE(riusciti, 16);
    EXPECT_LT(dy[1], 0.8 * dy[0]);
    EXPECT_LT(dy[2], 0.8 * dy[1]);
    EXPECT_LT(dM[1], 0.8 * dM[0]);
    EXPECT_LT(dM[2], 0.8 * dM[1]);
    EXPECT_LT(dy[2] / riusciti, 0.05);
    EXPECT_LT(dM[2] / riusciti, 0.05);
}

}  // namespace
}  // namespace korven::analysis
