#include "results/shear_extremes.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/wall_mesh.hpp"

namespace korven::results {

namespace {

double valore(const analysis::VettoreNodi& taglioNodo, int i, int nNodi) {
    return i <= nNodi ? taglioNodo[i] : 0;
}

void estrapolaAlTirante(double prof, double passo, int nNodi, analysis::VettoreNodi& taglioNodo) {
    const int a = analysis::nodoTirante(prof, passo);
    if (a < 1 || a > nNodi) return;
    taglioNodo[a] = 2 * valore(taglioNodo, a + 1, nNodi) - valore(taglioNodo, a + 2, nNodi);
}

void includi(EstremiTaglio& estremi, double taglio, double z) {
    if (taglio < estremi.vMin) {
        estremi.vMin = taglio;
        estremi.zMin = z;
    }
    if (taglio > estremi.vMax) {
        estremi.vMax = taglio;
        estremi.zMax = z;
    }
}

}  // namespace

double tiroNelTaglio(const project::DatiProgetto& dati, int j, double y, double yTirante) {
    return dati.pretTirante[j] + dati.rigTirante[j] * (y - yTirante);
}

bool gradinoNelTaglio(const project::DatiProgetto& dati, int j, int i, double passo) {
    return dati.profTirante[j] == analysis::zNodo(i, passo);
}

double massimoAssoluto(const EstremiTaglio& estremi) {
    return std::max(std::abs(estremi.vMin), std::abs(estremi.vMax));
}

EstremiTaglio estremiTaglio(const project::DatiProgetto& dati, int nTirantiFase,
                            const base::Tabella<double, project::massimoTiranti>& yTirante,
                            int nNodi, double passo, const analysis::VettoreNodi& yNodo,
                            analysis::VettoreNodi& taglioNodo) {
    for (int j = 1; j <= nTirantiFase; ++j)
        if (dati.profTirante[j] != 0)
            estrapolaAlTirante(dati.profTirante[j], passo, nNodi, taglioNodo);
    EstremiTaglio estremi{.vMin = analysis::oltreOgniValore, .vMax = -analysis::oltreOgniValore};
    for (int i = 1; i <= nNodi; ++i) {
        const double z = analysis::zNodo(i, passo);
        includi(estremi, taglioNodo[i], z);
        for (int j = 1; j <= nTirantiFase; ++j)
            if (gradinoNelTaglio(dati, j, i, passo))
                includi(estremi, taglioNodo[i] - tiroNelTaglio(dati, j, yNodo[i], yTirante[j]), z);
    }
    return estremi;
}

}  // namespace korven::results
