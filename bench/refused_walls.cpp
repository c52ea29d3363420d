// Counts how many of the walls that the specified run refuses as singular, or does not bring to
// rest, stand by the equilibrium solution. Always the same walls.
//
//     refused_walls [walls, 1500]

#include "support/refused_walls.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "equilibrium/extremes.hpp"

namespace {

using namespace korven;
using equilibrium::EsitoFase;

constexpr int nSeg = 50;
constexpr int maxIterazioni = 200;

// What the equilibrium solution says of the stage that ended a run.
struct Conto {
    const char* come;
    int muri = 0, meccanismi = 0, nonDefiniti = 0, senzaNumero = 0;
    std::vector<double> spostamenti = {};  // largest ones of the stages that stand [m]

    void aggiungi(const test::MuriRifiutati::Muro& muro) {
        equilibrium::EquilibrioParete parete(muro.dati, nSeg);
        const equilibrium::FaseEquilibrio* fase = nullptr;
        for (int k = 1; k <= muro.fase; ++k)
            if ((fase = &parete.calcola(k))->esito != EsitoFase::equilibrio) break;
        ++muri;
        meccanismi += fase->esito == EsitoFase::meccanismo ? 1 : 0;
        nonDefiniti += fase->esito == EsitoFase::nonDefinito ? 1 : 0;
        senzaNumero += fase->esito == EsitoFase::nessunNumero ? 1 : 0;
        if (fase->esito != EsitoFase::equilibrio) return;
        const auto massimo = equilibrium::estremi(*fase, parete.problema().h).spostamento;
        spostamenti.push_back(std::abs(massimo.valore));
    }

    void stampa() {
        std::printf(
            "%-26s %5d walls: %4d mechanisms, %d not defined, %d without a number, %d stand", come,
            muri, meccanismi, nonDefiniti, senzaNumero, static_cast<int>(spostamenti.size()));
        if (!spostamenti.empty()) {
            std::sort(spostamenti.begin(), spostamenti.end());
            const auto fino = [&](double y) {
                return std::upper_bound(spostamenti.begin(), spostamenti.end(), y) -
                       spostamenti.begin();
            };
            std::printf(" at %.2g to %.3g mm, median %.2g; %d of them up to 30 mm",
                        spostamenti.front() * 1e3, spostamenti.back() * 1e3,
                        spostamenti[spostamenti.size() / 2] * 1e3, static_cast<int>(fino(0.03)));
        }
        std::printf("\n");
    }
};

}  // namespace

int main(int quanti, char** parole) {
    const int cercati = quanti > 1 ? std::atoi(parole[1]) : 1500;
    test::MuriRifiutati rifiutati(7, nSeg, maxIterazioni);
    Conto singolari{"refused as singular:"}, lunghi{"not at rest after 200:"};
    for (int m = 0; m < cercati; ++m) {
        const auto muro = rifiutati.prossimo();
        (muro.singolare ? singolari : lunghi).aggiungi(muro);
    }
    std::printf("%d random walls drawn, %d segments\n", rifiutati.provati(), nSeg);
    singolari.stampa();
    lunghi.stampa();
}
