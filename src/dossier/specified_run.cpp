#include "dossier/specified_run.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/anchors_in_place.hpp"
#include "analysis/stage_sequence.hpp"
#include "analysis/wall_mesh.hpp"
#include "dossier/twin_numbers.hpp"
#include "results/shear_extremes.hpp"

namespace korven::dossier {

namespace {

using analysis::VettoreNodi;
using equilibrium::FaseEquilibrio;

// The largest difference of those that are told it.
class Massimo {
 public:
    void prova(double equilibrio, double corsa, double z) {
        const double valore = std::fabs(corsa - equilibrio);
        // Both sides of an anchor are one node.
        const double altrove =
            z == massimo_.z ? massimo_.altrove : std::max(massimo_.altrove, massimo_.valore);
        if (valore > massimo_.valore)
            massimo_ = {valore, equilibrio, corsa, z, altrove, {}};
        else if (z != massimo_.z)
            massimo_.altrove = std::max(massimo_.altrove, valore);
    }
    [[nodiscard]] const Scarto& trovato() const { return massimo_; }

 private:
    Scarto massimo_;
};

// Node 1 of the run is element 0 of the equilibrium.
Scarto scarto(const VettoreNodi& corsa, const std::vector<double>& equilibrio, double h) {
    Massimo massimo;
    int nodo = 0;
    for (const double valore : equilibrio) {
        ++nodo;
        massimo.prova(valore, corsa[nodo], analysis::zNodo(nodo, h));
    }
    return massimo.trovato();
}

// @param taglio  of the run, with the value below the anchors at their nodes
Scarto scartoTaglio(const project::DatiProgetto& dati, int tiranti,
                    const base::Tabella<double, project::massimoTiranti>& yTirante, double h,
                    const VettoreNodi& y, const VettoreNodi& taglio, const FaseEquilibrio& fase) {
    Massimo massimo;
    for (std::size_t i = 0; i < fase.taglio.size(); ++i) {
        const int nodo = static_cast<int>(i) + 1;
        const double z = analysis::zNodo(nodo, h);
        massimo.prova(fase.taglioSotto[i], taglio[nodo], z);
        double tiri = 0;
        for (int j = 1; j <= tiranti; ++j)
            if (results::gradinoNelTaglio(dati, j, nodo, h))
                tiri += results::tiroNelTaglio(dati, j, y[nodo], yTirante[j]);
        if (tiri != 0) massimo.prova(fase.taglioSopra[i], taglio[nodo] - tiri, z);
    }
    return massimo.trovato();
}

}  // namespace

void CorsaAffiancata::fine(const analysis::FaseCalcolata& fase) {
    CorsaFase& f = fasi_.emplace_back();
    f.fase = fase.fase;
    f.iterazioni = fase.iterazioni;
    f.convergente = true;
    const project::DatiProgetto& dati = parete_.dati;
    const double h = parete_.h;
    const int tiranti = analysis::tirantiInOpera(dati, fase.fase), nNodi = parete_.nSeg + 1;
    for (int j = analysis::tirantiInOpera(dati, fase.fase - 1) + 1; j <= tiranti; ++j) {
        const int nodo = analysis::nodoTirante(dati.profTirante[j], h);
        yTirante_[j] = nodo >= 1 && nodo <= nNodi ? yPrima_[nodo] : 0;
    }
    yPrima_ = fase.risultati.yNodo;
    if (const auto* equilibrio = parete_.fase(fase.fase)) {
        VettoreNodi taglio = fase.risultati.taglioNodo;
        (void)results::estremiTaglio(dati, tiranti, yTirante_, nNodi, h, yPrima_, taglio);
        f.scartoSpostamento = scarto(yPrima_, equilibrio->y, h);
        f.scartoMomento = scarto(fase.risultati.momentoNodo, equilibrio->momento, h);
        f.scartoTaglio = scartoTaglio(dati, tiranti, yTirante_, h, yPrima_, taglio, *equilibrio);
    }
    altro_.fine(fase);
}

void CorsaAffiancata::caduta(const analysis::FaseCalcolata& fase) {
    CorsaFase& f = fasi_.emplace_back();
    f.fase = fase.fase;
    f.iterazioni = fase.iterazioni;
    altro_.caduta(fase);
}

void spiega(const live::PareteViva& parete, const safety::Margine& margine,
            std::vector<CorsaFase>& fasi) {
    for (CorsaFase& f : fasi) {
        // Values of one side of one node: what the largest of a side misses is no reason here,
        // and it is asked for only where the run has less.
        const auto confronto = [&](const Scarto& s) {
            const bool meno = std::fabs(s.corsa) < std::fabs(s.equilibrio);
            return safety::Confronto{{meno ? s.corsa : s.equilibrio, s.z, f.fase},
                                     {{meno ? s.equilibrio : s.corsa, s.z, f.fase}}};
        };
        if (auto& s = f.scartoMomento) s->perche = percheMomento(parete, margine, confronto(*s));
        if (auto& s = f.scartoTaglio) s->perche = percheTaglio(parete, margine, confronto(*s));
    }
}

}  // namespace korven::dossier
