#include "dossier/soil_values.hpp"

#include "analysis/node_soil.hpp"
#include "analysis/node_vector.hpp"
#include "analysis/vertical_stress.hpp"
#include "project/codes.hpp"
#include "structure/offered_stiffness.hpp"
#include "structure/section_validity.hpp"

namespace korven::dossier {

using analysis::SuoloMonte;
using analysis::SuoloValle;
using project::DatiProgetto;

namespace {

void tensione(const analysis::TensioneNodo& t, LatoTerreno& lato) {
    lato.totale = t.totale;
    lato.acqua = t.totale - t.efficace;
}

LatoTerreno latoMonte(const DatiProgetto& dati, const SuoloMonte& nodo, double z) {
    LatoTerreno lato{.totale = {},
                     .acqua = {},
                     .sigma = nodo.sigmaVm,
                     .riposo = nodo.sigmaVm * nodo.k0m,
                     .attivo = nodo.limiti.attiva,
                     .passivo = nodo.limiti.passiva,
                     .ks = 0 - nodo.Ehm};
    tensione(analysis::tensioneMonte(dati, z), lato);
    return lato;
}

LatoTerreno latoValle(const DatiProgetto& dati, int fase, const SuoloValle& nodo, double z) {
    LatoTerreno lato{.totale = {},
                     .acqua = {},
                     .sigma = nodo.sigmaVv,
                     .riposo = nodo.sigmaVv * nodo.k0v,
                     .attivo = nodo.limiti.attiva,
                     .passivo = nodo.limiti.passiva,
                     .ks = 0 - nodo.Ehv};
    if (dati.modoSpinte != project::ModoSpinte::comeMonte)
        tensione(analysis::tensioneValle(dati, z, dati.profFase[fase], dati.sovraccFase[fase]),
                 lato);
    return lato;
}

// Nothing of it is refused: the wall was computed with the same values.
class Nodi {
 public:
    explicit Nodi(const live::PareteViva& parete)
        : dati_(parete.dati), strati_(analysis::suoloStrati(dati_)) {
        for (int i = 1; i <= parete.nSeg + 1; ++i) {
            z_.push_back(analysis::zNodo(i, parete.h));
            static_cast<void>(
                analysis::suoloMonte(dati_, strati_, z_.back(), monte_.emplace_back()));
        }
    }

    [[nodiscard]] std::vector<LatoTerreno> monte() const {
        std::vector<LatoTerreno> lati;
        for (std::size_t i = 0; i < z_.size(); ++i)
            lati.push_back(latoMonte(dati_, monte_[i], z_[i]));
        return lati;
    }

    [[nodiscard]] TerrenoFase fase(int k) {
        dati_.faldaValle = dati_.faldaFase[k];
        TerrenoFase terreno{.fase = k, .primo = 0, .valle = std::vector<LatoTerreno>(z_.size())};
        while (terreno.primo < z_.size() && !(z_[terreno.primo] >= dati_.profFase[k]))
            ++terreno.primo;
        for (std::size_t i = terreno.primo; i < z_.size(); ++i) {
            SuoloValle nodo;
            static_cast<void>(analysis::suoloValle(dati_, strati_, k, z_[i], monte_[i], nodo));
            terreno.valle[i] = latoValle(dati_, k, nodo, z_[i]);
        }
        return terreno;
    }

 private:
    DatiProgetto dati_;
    analysis::SuoloStrati strati_;
    std::vector<double> z_;
    std::vector<SuoloMonte> monte_;
};

}  // namespace

ValoriTerreno valoriTerreno(const live::PareteViva& parete) {
    ValoriTerreno valori;
    const analysis::SuoloStrati strati = analysis::suoloStrati(parete.dati);
    for (int j = 1; j <= parete.dati.nStrati; ++j) valori.strati.push_back(strati[j]);
    if (parete.fasi.empty() || parete.fasi.front().rifiuto) return valori;
    Nodi nodi(parete);
    valori.monte = nodi.monte();
    for (const auto& fase : parete.fasi)
        if (!fase.rifiuto) valori.fasi.push_back(nodi.fase(fase.fase));
    return valori;
}

ValoriRigidezza valoriRigidezza(const DatiProgetto& dati) {
    ValoriRigidezza valori;
    if (!structure::sezioneValida(dati.sezione)) return valori;
    valori.offerta = structure::rigidezzaOfferta(dati.sezione);
    if (valori.offerta) valori.passi = structure::passiEJ(dati.sezione);
    return valori;
}

}  // namespace korven::dossier
