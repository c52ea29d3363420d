#include "desk/live_codes.hpp"

#include <algorithm>
#include <cassert>
#include <utility>

#include "base/translated_texts.hpp"

namespace korven::desk {

namespace {

std::string frasi(const std::vector<factors::RigaGuasta>& guaste) {
    std::string testo;
    for (const factors::RigaGuasta& guasta : guaste)
        testo += (testo.empty() ? "" : "\n") + guasta.frase();
    return testo;
}

}  // namespace

void NormeVive::norme(factors::Catalogo catalogo) {
    const std::string nome =
        scelta_ < 0 ? std::string() : catalogo_.norme[static_cast<std::size_t>(scelta_)].nome;
    catalogo_ = std::move(catalogo);
    const auto& tutte = catalogo_.norme;
    const auto stessa = std::ranges::find(tutte, nome, &factors::Norma::nome);
    scelta_ = tutte.empty()           ? -1
              : stessa != tutte.end() ? static_cast<int>(stessa - tutte.begin())
                                      : 0;
    altra_ = true;
}

void NormeVive::scegli(int quale) {
    assert(quale >= 0 && static_cast<std::size_t>(quale) < catalogo_.norme.size());
    scelta_ = quale;
    altra_ = true;
}

void NormeVive::natura(const factors::NaturaCarichi& natura) {
    natura_ = natura;
    altra_ = true;
}

bool NormeVive::nota(const live::PareteViva& parete) const {
    return !altra_ && ultima_ && ultima_->nSeg == parete.nSeg && ultima_->dati == parete.dati;
}

// A file with a fault might lack the very combination that governs: none of it is used.
void NormeVive::guarda(const live::PareteViva* parete) {
    if (parete == nullptr) return impedito(base::traduttore("Nessun progetto aperto"));
    if (!catalogo_.guaste.empty()) return impedito(frasi(catalogo_.guaste));
    if (scelta_ < 0)
        return impedito(
            base::traduttore("Nessuna norma: i file dei coefficienti parziali non ne hanno."));
    if (parete->nSeg == 0) return impedito(parete->rifiuto);
    if (nota(*parete)) return;
    impedimento_.clear();
    altra_ = false;
    ultima_ = {++numero_, parete->dati, parete->nSeg,
               catalogo_.norme[static_cast<std::size_t>(scelta_)], natura_};
    domanda_ = ultima_;
}

void NormeVive::impedito(std::string perche) {
    impedimento_ = std::move(perche);
    ultima_.reset();
    domanda_.reset();
    combinazioni_.reset();
}

bool NormeVive::rispondi(int numero, std::shared_ptr<const factors::Combinazioni> combinazioni) {
    if (!domanda_ || numero != numero_) return false;
    domanda_.reset();
    combinazioni_ = std::move(combinazioni);
    return true;
}

void NormeVive::rinuncia(int numero, const std::string& perche) {
    if (!domanda_ || numero != numero_) return;
    const auto fallita = std::move(ultima_);
    impedito(perche);
    ultima_ = fallita;  // nor is it asked again before something changes
}

}  // namespace korven::desk
