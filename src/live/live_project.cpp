#include "live/live_project.hpp"

#include <algorithm>
#include <cassert>
#include <utility>

#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "safety/margin_words.hpp"
#include "structure/section_validity.hpp"

namespace korven::live {

using project::DatiProgetto;

void ProgettoVivo::guarda(const DatiProgetto* confermato, int apertura) {
    impedimento_.clear();
    if (confermato == nullptr) return;  // one that was opened stays so to the end of the program
    confermato_ = *confermato;
    const bool altro = apertura != std::exchange(apertura_, apertura);
    if (altro) voluta_.fase = Vista{}.fase;  // before the wall is shown, in its stages
    mostraDati(confermato_);
    if (!altro) return;
    mostra(voluta_);  // the same wall may have been opened again
    ++versione_;
}

void ProgettoVivo::digita(const masks::Maschera& maschera, const ValoriForma& valori) {
    if (aperto_) prova(conValori(confermato_, maschera, valori));
}

void ProgettoVivo::digita(const project::Sezione& sezione) {
    if (!aperto_) return;
    ProgettoInCorso inCorso{confermato_, {}};
    inCorso.dati->sezione = sezione;
    prova(inCorso);
}

void ProgettoVivo::prova(const ProgettoInCorso& inCorso) {
    if (impedimento_ != inCorso.impedimento) ++versione_;
    impedimento_ = inCorso.impedimento;
    if (inCorso.dati) mostraDati(*inCorso.dati);
}

void ProgettoVivo::mostraDati(const DatiProgetto& dati) {
    // The number of segments is the program's, and may have changed without the project.
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(dati).incastroPiede);
    const bool stessi =
        aperto_ && dati == mostrati_ && (parete_.nSeg == 0 || nSeg.value_or(0) == parete_.nSeg);
    if (stessi) return;
    aperto_ = true;
    mostrati_ = dati;
    parete_ = calcola(dati);
    ++versione_;
    lenti_.reset();
    domanda_.reset();
    if (parete_.nSeg == 0 && !structure::sezioneValida(dati.sezione))
        lenti_.emplace();
    else
        domanda_ = {++numero_, parete_.dati, parete_.nSeg};
    mostra(voluta_);
}

const PareteViva& ProgettoVivo::parete() const {
    assert(aperto_);
    return parete_;
}

void ProgettoVivo::mostra(Vista vista) {
    voluta_ = vista;
    vista.fase = std::clamp(vista.fase, 0, std::clamp(mostrati_.nFasi, 0, project::massimoFasi));
    if (vista == vista_) return;
    vista_ = vista;
    ++versione_;
}

// The search for a length that stands is too slow for a key, and so is the specified run: they come
// with the margin.
void ProgettoVivo::completaParete() {
    if (!lenti_->margine) return;
    parete_.senzaRelazione = safety::paroleSenzaRelazione(*lenti_->margine);
    if (!parete_.perche) return;
    const auto* caduta = lenti_->margine->caduta();
    if (caduta != nullptr && caduta->perche && caduta->fase == parete_.perche->fase)
        parete_.perche = caduta->perche;
}

bool ProgettoVivo::rispondi(int numero, RisultatiLenti risultati) {
    if (!domanda_ || domanda_->numero != numero) return false;
    domanda_.reset();
    lenti_ = std::move(risultati);
    completaParete();
    ++versione_;
    return true;
}

}  // namespace korven::live
