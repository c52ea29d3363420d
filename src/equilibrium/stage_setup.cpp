#include "equilibrium/stage_setup.hpp"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "analysis/anchors_in_place.hpp"
#include "analysis/node_vector.hpp"
#include "analysis/run_arrays.hpp"
#include "analysis/vertical_stress.hpp"
#include "analysis/wall_mesh.hpp"
#include "project/codes.hpp"

namespace korven::equilibrium {

using analysis::Indefinito;
using analysis::RifiutoSuolo;
using project::DatiProgetto;

namespace {

// A restraint that is so much stiffer than a segment of the wall moves as little beside its
// neighbours; stiffer ones would leave fewer digits to the displacements.
constexpr double rigiditaVincolo = 1e8;

double kVincolo(RigiditaVincoli rigidita, double EJ, double h) {
    const double corsa = -analysis::kVincolo;
    if (rigidita == RigiditaVincoli::comeLaCorsa) return corsa;
    return std::max(corsa, rigiditaVincolo * EJ / (h * h * h * h));
}

}  // namespace

ImpostazioneFasi::ImpostazioneFasi(const DatiProgetto& dati, int nSeg,
                                   const analysis::SuoloStrati& strati, RigiditaVincoli rigidita)
    : dati_(dati), strati_(strati), riferimenti_(project::massimoTiranti + 1) {
    assert(nSeg >= analysis::minimoSegmenti);
    const analysis::Vincoli vincoli = analysis::vincoli(dati);
    const auto n = static_cast<std::size_t>(nSeg) + 1;
    ProblemaFase& p = problema_;
    p.h = dati.lunghezzaParatia / nSeg;
    p.EJ = dati.rigidezzaEJ;
    p.kVincolo = kVincolo(rigidita, p.EJ, p.h);
    p.costante = dati.pressioneOrizz;
    p.H = dati.forzaTesta;
    p.M = dati.momentoTesta;
    p.nParete = nSeg + 1;
    p.nodi.resize(vincoli.incastroPiede ? n + 1 : n);
    for (NodoFase& nodo : p.nodi) nodo.peso = p.h;
    p.nodi.front().peso = p.nodi.back().peso = p.h / 2;
    p.nodi.front().vincolato = vincoli.cernieraTesta;
    p.nodi[n - 1].vincolato = vincoli.bloccoPiede;
    if (vincoli.incastroPiede) p.nodi.back().vincolato = true;
    p.tiranti.reserve(project::massimoTiranti);
    monte_.reserve(n);
}

std::optional<RifiutoSuolo> ImpostazioneFasi::prepara(int k, const std::vector<double>& y) {
    dati_.faldaValle = dati_.faldaFase[k];
    tiranti(k, y);
    return suolo(k);
}

std::optional<RifiutoSuolo> ImpostazioneFasi::suolo(int k) {
    analysis::SuoloValle valle;
    for (int i = 0; i < problema_.nParete; ++i) {
        const auto j = static_cast<std::size_t>(i);
        const double z = analysis::zNodo(i + 1, problema_.h);
        NodoFase& nodo = problema_.nodi[j];
        nodo.acqua =
            analysis::pressioneAcquaNetta(z, dati_.faldaMonte, dati_.faldaValle, dati_.gammaAcqua);
        Indefinito motivo = Indefinito::no;
        if (j == monte_.size()) motivo = suoloMonte(dati_, strati_, z, monte_.emplace_back());
        const analysis::SuoloMonte& monte = monte_[j];
        if (motivo == Indefinito::no) motivo = suoloValle(dati_, strati_, k, z, monte, valle);
        if (motivo == Indefinito::no && !(tuttoFinito(monte, valle) && std::isfinite(nodo.acqua)))
            motivo = Indefinito::nonFinito;
        if (motivo != Indefinito::no) return RifiutoSuolo{z, motivo};
        nodo.monte = {monte.sigmaVm * monte.k0m, monte.Ehm, monte.limiti.attiva,
                      monte.limiti.passiva};
        nodo.valle = {valle.sigmaVv * valle.k0v, valle.Ehv, valle.limiti.passiva,
                      valle.limiti.attiva};
    }
    return std::nullopt;
}

void ImpostazioneFasi::tiranti(int k, const std::vector<double>& y) {
    const int quanti = analysis::tirantiInOpera(dati_, k);
    const int gia = analysis::tirantiInOpera(dati_, k - 1);
    const ProblemaFase& p = problema_;
    problema_.tiranti.clear();
    for (int a = 1; a <= quanti; ++a) {
        const int m = analysis::nodoTirante(dati_.profTirante[a], p.h);
        const bool sullaParete = m >= 1 && m <= p.nParete;
        double& riferimento = riferimenti_[static_cast<std::size_t>(a)];
        if (a > gia) riferimento = sullaParete ? y[static_cast<std::size_t>(m - 1)] : 0;
        // At a fixed toe the last node of the wall weighs a whole step, while the force of an
        // anchor at the end is spread over half of one.
        const bool doppio = m == p.nParete && p.n() > p.nParete;
        problema_.tiranti.push_back(
            {sullaParete ? m - 1 : -1, dati_.rigTirante[a], dati_.pretTirante[a], riferimento,
             dati_.tipoTirante[a] == project::TipoTirante::trazioneCompressione,
             doppio ? 2.0 : 1.0});
    }
}

}  // namespace korven::equilibrium
