#include <algorithm>
#include <cmath>

#include "analysis/node_vector.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/wall_mesh.hpp"
#include "project/shown_number.hpp"
#include "review/limits.hpp"
#include "review/remark_list.hpp"

// The anchors together with the stages and the nodes that they get.

namespace korven::review {

namespace {

using project::DatiProgetto;

// The first stage in which an anchor is in place; 0 if there is none.
int faseDiPosa(const DatiProgetto& d, int tirante) {
    for (int k = 1; k <= d.nFasi; ++k)
        if (d.tirantiFase[k] >= tirante) return k;
    return 0;
}

constexpr double arrotondamento = 1e-9;  // of the depth of a node [m]

bool accantoAllaParatia(const DatiProgetto& d, int a) {
    return d.profTirante[a] >= 0 && d.profTirante[a] <= d.lunghezzaParatia;
}

}  // namespace

void controlloPosa(const DatiProgetto& dati, ElencoOsservazioni& elenco) {
    std::vector<int> maiInOpera;
    for (int a = 1; a <= dati.nTiranti; ++a) {
        const int k = faseDiPosa(dati, a);
        if (k == 0)
            maiInOpera.push_back(a);
        else if (dati.profTirante[a] > dati.profFase[k] && accantoAllaParatia(dati, a))
            elenco.aggiungi("tirante-sotto-lo-scavo",
                            insieme(rigaConValore(dati, &DatiProgetto::profTirante, a),
                                    rigaConValore(dati, &DatiProgetto::profFase, k)));
    }
    if (dati.nFasi > 0 && !maiInOpera.empty())
        elenco.aggiungi("tirante-mai-in-opera",
                        righeConValori(dati, &DatiProgetto::profTirante, maiInOpera));
}

void controlloNodiTiranti(const DatiProgetto& dati, int nSeg, ElencoOsservazioni& elenco) {
    const double passoNodi = dati.lunghezzaParatia / nSeg;
    const auto vincoli = analysis::vincoli(dati);
    std::vector<int> spostati;
    std::vector<std::string> dove;
    for (int a = 1; a <= dati.nTiranti; ++a) {
        if (!accantoAllaParatia(dati, a) || faseDiPosa(dati, a) == 0) continue;
        const int nodo = analysis::nodoTirante(dati.profTirante[a], passoNodi);
        const double z = analysis::zNodo(nodo, passoNodi);
        if (std::abs(z - dati.profTirante[a]) > spostatoDaiNodi + arrotondamento) {
            spostati.push_back(a);
            dove.push_back(project::numeroMostrato(z, 2));
        }
        if ((nodo == 1 && vincoli.cernieraTesta) || (nodo == nSeg + 1 && vincoli.bloccoPiede))
            elenco.aggiungi("tirante-sul-vincolo",
                            rigaConValore(dati, &DatiProgetto::profTirante, a));
    }
    if (!spostati.empty())
        elenco.aggiungi("tirante-spostato",
                        righeConValori(dati, &DatiProgetto::profTirante, spostati), {inFila(dove)});
}

}  // namespace korven::review
