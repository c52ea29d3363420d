#include "largest_report.hpp"

#include <cmath>

#include "base/code_page.hpp"
#include "example_run.hpp"
#include "report/calculation_report.hpp"

namespace korven::bench {

std::string relazionePiuLunga() {
    results::DatiRelazione dati;
    dati.progetto = esempio("paratia_lunga_incastro");
    dati.progetto.nFasi = fasi;
    dati.nNodi = nNodi;
    dati.passo = dati.progetto.lunghezzaParatia / (nNodi - 1);
    dati.fasi.resize(fasi);
    dati.azioni.resize(fasi);
    for (int k = 1; k <= fasi; ++k) {
        auto& fase = dati.fasi[static_cast<std::size_t>(k - 1)];
        for (int i = 1; i <= nNodi; ++i) {
            fase.yNodo[i] = 0.001 * k * std::cos(0.02 * i);
            fase.momentoNodo[i] = 5.0 * k * std::sin(0.05 * i);
        }
    }
    return base::inCp1252(report::testoRelazione(dati, "muro.kvd"));
}

}  // namespace korven::bench
