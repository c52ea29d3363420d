#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "analysis/result_file.hpp"
#include "project/codes.hpp"
#include "project/project_data.hpp"

// What a stage's table in the result file says about the forces on the wall, worked out anew from
// the stored columns and the project alone.
//
// How exact that can be: every stored value is rounded to seven decimals, and a node's state was
// decided from displacements that differ from the last ones by the convergence tolerance at most.
// A pressure between its limits follows a displacement error dy by |Eh| dy, and the limits keep it
// from doing more. So each force carries a bound of its error, and every balance has the sum of the
// bounds of its terms as tolerance; there is no other allowance but the rounding of the solver.

namespace korven::test {

inline constexpr double arrotondamento = 0.5e-7;  ///< of a stored value
inline constexpr double dyIterazione = 1e-8;      ///< convergence tolerance [m]

/// A value and the bound of its error.
struct Misura {
    double valore = 0, errore = 0;
    Misura& operator+=(const Misura& m) {
        valore += m.valore;
        errore += m.errore;
        return *this;
    }
};
inline Misura operator*(double fattore, const Misura& m) {
    return {fattore * m.valore, std::fabs(fattore) * m.errore};
}

/// Horizontal forces on the nodes of the wall in one stage, positive towards the excavation.
struct ForzeFase {
    std::vector<Misura> nodo;   ///< on the wall's nodes, element 0 is node 1, with H and reactions
    Misura sottoPiede;          ///< reaction of the node below a fixed toe
    std::vector<bool> vincolo;  ///< the force was not worked out from pressures but from shears
    double scala = 0;           ///< sum of the absolute forces of the two soil sides [t]
};

class EquilibrioFase {
 public:
    EquilibrioFase(const project::DatiProgetto& dati, int nSeg)
        : d_(dati), n_(nSeg + 1), h_(dati.lunghezzaParatia / nSeg) {}

    /// Stages must be given in order: anchors remember the displacements of the stage before.
    ForzeFase forze(int k, const analysis::RisultatiFase& r) {
        nuoviTiranti(k);
        ForzeFase f;
        f.vincolo.assign(static_cast<std::size_t>(n_), false);
        for (int i = 1; i <= n_; ++i) f.nodo.push_back(terreno(k, i, r, f.scala));
        for (int a = 1; a <= d_.tirantiFase[k]; ++a) tirante(a, r, f);
        f.nodo[0].valore += d_.forzaTesta;
        reazioni(r, f);
        yPrima_ = r.yNodo;
        return f;
    }
    [[nodiscard]] double passo() const { return h_; }
    [[nodiscard]] int nodi() const { return n_; }

 private:
    [[nodiscard]] double larghezza(int i) const { return i == 1 || i == n_ ? h_ / 2 : h_; }
    [[nodiscard]] int nodoDi(int a) const {
        return 1 + static_cast<int>(d_.profTirante[a] / h_ + 0.5);
    }
    [[nodiscard]] int strato(double z) const {
        int quale = 0;
        for (int j = 1; j <= d_.nStrati; ++j)
            if (z >= d_.profStrato[j - 1] && (z <= d_.profStrato[j] || j == d_.nStrati)) quale = j;
        return quale;
    }
    static double errore(double sigma, double k, double Eh, double y) {
        return std::fabs(Eh) * (arrotondamento + dyIterazione) +
               arrotondamento * (std::fabs(sigma) + std::fabs(k) + std::fabs(y) + 1e-6);
    }

    Misura terreno(int k, int i, const analysis::RisultatiFase& r, double& scala) const {
        const double z = (i - 1) * h_, y = r.yNodo[i];
        const int j = strato(z);
        const double phi = d_.phiStrato[j] * std::numbers::pi / 180;
        const double quarto = std::numbers::pi / 4;
        const bool coesivo = d_.metodoSpinte < project::MetodoSpinte::bell;
        const double ca = coesivo ? 2 * d_.coesione[j] * std::tan(quarto - phi / 2) : 0;
        const double cp = coesivo ? 2 * d_.coesione[j] * std::tan(quarto + phi / 2) : 0;

        double attiva = r.sigmaVm[i] * r.kam[i] - ca;
        if (coesivo) attiva = std::max(attiva, 0.0);
        const double monte = std::clamp(r.sigmaVm[i] * r.k0m[i] + y * r.Ehm[i], attiva,
                                        r.sigmaVm[i] * r.kpm[i] + cp);
        double valle = 0;
        if (z >= d_.profFase[k]) {
            double alta = r.sigmaVv[i] * r.kav[i] + ca;
            if (coesivo) alta = std::min(alta, 0.0);
            valle = std::clamp(r.sigmaVv[i] * r.k0v[i] + y * r.Ehv[i], r.sigmaVv[i] * r.kpv[i] - cp,
                               alta);
        }
        double acqua = std::max(0.0, z - d_.faldaMonte) - std::max(0.0, z - d_.faldaFase[k]);
        acqua *= d_.gammaAcqua;
        scala += (std::fabs(monte) + std::fabs(valle) + std::fabs(acqua)) * larghezza(i);
        return larghezza(i) * Misura{monte + valle + acqua + d_.pressioneOrizz,
                                     errore(r.sigmaVm[i], r.kpm[i], r.Ehm[i], y) +
                                         errore(r.sigmaVv[i], r.kpv[i], r.Ehv[i], y)};
    }

    void nuoviTiranti(int k) {
        for (int a = static_cast<int>(d_.tirantiFase[k - 1]) + 1; a <= d_.tirantiFase[k]; ++a)
            yTirante_[a] = yPrima_[nodoDi(a)];
    }
    void tirante(int a, const analysis::RisultatiFase& r, ForzeFase& f) const {
        const int m = nodoDi(a);
        double F = d_.pretTirante[a] + d_.rigTirante[a] * (r.yNodo[m] - yTirante_[a]);
        if (d_.tipoTirante[a] != project::TipoTirante::trazioneCompressione) F = std::max(F, 0.0);
        f.nodo[static_cast<std::size_t>(m - 1)] +=
            {-F, d_.rigTirante[a] * (2 * arrotondamento + dyIterazione)};
        f.scala += std::fabs(F);
    }

    // The force of a node that a restraint holds: soil, anchor and reaction together, from the
    // balance of the segment beside it, T(j+1) - T(j) = -(q(j) + q(j+1)) h / 2, with H once more in
    // the first segment.
    void reazioni(const analysis::RisultatiFase& r, ForzeFase& f) const {
        const auto ultimo = static_cast<std::size_t>(n_ - 1);
        if (d_.vincoloTesta == project::VincoloTesta::cerniera) {
            const Misura vicina = 0.5 * f.nodo[1];  // q(2) h / 2
            f.nodo[0] = {2 * d_.forzaTesta + r.taglioNodo[1] - r.taglioNodo[2] - vicina.valore,
                         2 * arrotondamento + vicina.errore};
            f.vincolo[0] = true;
        }
        if (d_.vincoloPiede < project::VincoloPiede::cerniera) return;
        const Misura vicina = 0.5 * f.nodo[ultimo - 1];
        const Misura meta{r.taglioNodo[n_ - 1] - r.taglioNodo[n_] - vicina.valore,  // q(n) h / 2
                          2 * arrotondamento + vicina.errore};
        f.vincolo[ultimo] = true;
        f.nodo[ultimo] = meta;
        if (d_.vincoloPiede != project::VincoloPiede::incastro) return;
        // The fixed toe is an inner node of the solved system: its pressure counts over h.
        f.nodo[ultimo] = 2 * meta;
        f.sottoPiede = {r.taglioNodo[n_] - meta.valore, arrotondamento + meta.errore};
    }

    const project::DatiProgetto& d_;
    int n_;
    double h_;
    analysis::VettoreNodi yPrima_;
    base::Tabella<double, project::massimoTiranti> yTirante_;
};

}  // namespace korven::test
