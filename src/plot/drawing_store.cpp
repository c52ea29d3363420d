#include "plot/drawing_store.hpp"

#include <string>
#include <utility>

#include "base/table.hpp"
#include "base/translated_texts.hpp"
#include "plot/spill_files.hpp"

namespace korven::plot {

namespace {

template <class T, class Valore>
void accoda(std::vector<T>& righe, int capacita, const char* troppe, Valore&& riga) {
    if (righe.size() >= static_cast<std::size_t>(capacita))
        throw base::ErroreIndice(base::traduttore(troppe) + ": " + std::to_string(capacita));
    righe.push_back(std::forward<Valore>(riga));
}

}  // namespace

void ArchivioDisegno::svuota() {
    linee_.clear();
    testi_.clear();
    poligoni_.clear();
    nFile_ = 0;
    scaricate_ = false;
}

void ArchivioDisegno::scarica() {
    try {
        scriviScarico(nFile_ + 1, linee_, *disco_);
    } catch (...) {
        svuota();
        throw;
    }
    ++nFile_;
    scaricate_ = true;
}

void ArchivioDisegno::aggiungi(const Segmento& linea) {
    if (!scaricate_ && linee_.size() == massimoLinee) scarica();
    if (std::exchange(scaricate_, false)) linee_.clear();
    linee_.push_back(linea);
}

void ArchivioDisegno::aggiungi(TestoPlot testo) {
    accoda(testi_, massimoTestiPlot, "il disegno ha più testi di quanti ne possa tenere",
           std::move(testo));
}

void ArchivioDisegno::aggiungi(const PoligonoPlot& poligono) {
    accoda(poligoni_, massimoPoligoni, "il disegno ha più poligoni di quanti ne possa tenere",
           poligono);
}

void ArchivioDisegno::chiudi() {
    if (nFile_ > 0 && !scaricate_) scarica();
}

void ArchivioDisegno::perOgniLinea(const std::function<void(const Segmento&)>& uso) const {
    if (nFile_ == 0) {
        for (const Segmento& linea : linee_) uso(linea);
        return;
    }
    for (int n = 1; n <= nFile_; ++n)
        for (const Segmento& linea : leggiScarico(percorsoFileScarico(n))) uso(linea);
}

}  // namespace korven::plot
