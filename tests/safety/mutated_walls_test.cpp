// Walls with values that nobody means: no crash, no endless search, no number that is none.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "analysis/input_checks.hpp"
#include "project/field_table.hpp"
#include "safety/margin.hpp"
#include "safety/told_stages.hpp"
#include "support/random_walls.hpp"

namespace korven::safety {
namespace {

using equilibrium::EsitoFase;
using project::DatiProgetto;

// What a slip of the hand or a broken file may put into a field.
double valoreStrano(test::MuriCasuali& caso, double ora) {
    switch (caso.intero(0, 9)) {
        case 0:
            return 0;
        case 1:
            return -ora;
        case 2:
            return ora * 1000;
        case 3:
            return ora / 1000;
        case 4:
            return caso.tra(-100, 100);
        case 5:
            return std::pow(10, caso.intero(-12, 12));
        case 6:
            return caso.intero(-3, 25);
        case 7:
            return 1e308;
        case 8:
            return -std::numeric_limits<double>::min();
        default:
            return caso.tra(0, 2) * ora;
    }
}

// One to three numbers of the project changed, in a row that is in use.
void muta(DatiProgetto& dati, test::MuriCasuali& caso) {
    const auto campi = project::campi();
    for (int quante = caso.intero(1, 3); quante > 0; --quante) {
        const auto& campo =
            campi[static_cast<std::size_t>(caso.intero(0, static_cast<int>(campi.size()) - 1))];
        const int righe = std::max(1, project::righe(dati, campo.parte));
        const int riga = caso.intero(1, righe);
        project::conValore(dati, campo, riga, [&](auto& valore) {
            if constexpr (std::is_same_v<decltype(valore), double&>)
                valore = valoreStrano(caso, valore);
        });
    }
}

void controllaNumeri(const equilibrium::FaseEquilibrio& fase) {
    for (const auto* v : {&fase.y, &fase.momento, &fase.taglio, &fase.monte, &fase.valle})
        for (const double x : *v) ASSERT_TRUE(std::isfinite(x));
    for (const double tiro : fase.tiri) ASSERT_TRUE(std::isfinite(tiro));
}

void controlla(const std::optional<double>& valore, double minimo, double massimo) {
    const double x = valore.value_or(minimo);
    ASSERT_TRUE(x >= minimo && x <= massimo) << x;
}

void controlla(const Confronto& confronto) {
    ASSERT_TRUE(std::isfinite(confronto.statica.valore));
    ASSERT_TRUE(std::isfinite(confronto.relazione.value_or(results::NumeroRelazione{}).valore));
}

void percorri(const DatiProgetto& dati, int nSeg) {
    for (const FaseRaccontata& r : raccontaFasi(dati, nSeg).fasi) {
        if (r.sta()) controllaNumeri(r.fase);
        const std::string frase = r.frase();
        ASSERT_EQ(frase.empty(), r.sta() || r.fase.rifiuto.has_value());
        for (const char* nessuno : {"nan", " inf", "-inf"})
            ASSERT_EQ(frase.find(nessuno), std::string::npos) << frase;
    }
    analysis::OsservatoreCorsa nessuno;
    const Margine m = margine(dati, nSeg, nessuno);
    for (const MargineFase& fase : m.fasi) {
        controlla(fase.passiva.quota, 0, 1);
        controlla(fase.riduzione.F, minimaRiduzione, massimaRiduzione);
        controlla(fase.confronto.momento);
        controlla(fase.confronto.taglio);
    }
    ASSERT_TRUE(std::isfinite(m.lunghezza.lunghezza.value_or(0)));
}

// Another 400 with each seed: --gtest_shuffle --gtest_repeat=50 goes through 20,000.
TEST(MuriMutati, AreFollowedToAnEndWithNumbersOrAVerdict) {
    const auto seme = static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed());
    test::MuriCasuali caso(1000 + seme);
    int percorsi = 0;
    for (int m = 0; m < 400; ++m) {
        DatiProgetto dati = caso.prossimo();
        muta(dati, caso);
        if (!analysis::motivoRifiuto(dati).empty() || dati.rigidezzaEJ == 0) continue;
        SCOPED_TRACE(m);
        try {
            percorri(dati, 50);
            ++percorsi;
        } catch (const base::ErroreIndice&) {
            // more anchors asked for than their table holds: a run refuses that beforehand
        }
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(percorsi, 300);
}

}  // namespace
}  // namespace korven::safety
