#include "commands/open_remarks.hpp"

#include <algorithm>
#include <utility>

#include "analysis/run_arrays.hpp"
#include "analysis/segment_count.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "project/field_table.hpp"
#include "project/output_guard.hpp"
#include "review/project_review.hpp"
#include "review/remark_counts.hpp"

namespace korven::commands {

namespace {

using project::DatiProgetto;
using project::Progetto;
using review::Osservazione;
using review::Osservazioni;

bool stessoNumero(const DatiProgetto& una, const DatiProgetto& altra, std::string_view nome) {
    const auto nominato = project::campoNominato(nome);
    if (!nominato) return true;
    const auto& [campo, riga] = *nominato;
    return riga <= project::righe(una, campo->parte) &&
           riga <= project::righe(altra, campo->parte) &&
           numeroConservato(una, *campo, riga) == numeroConservato(altra, *campo, riga);
}

// What a remark says of a line of the file holds until the value is another one.
bool ancoraCosi(const Osservazione& osservazione, const DatiProgetto& letti) {
    const auto& campi = osservazione.campi;
    return std::all_of(campi.begin(), campi.end(), [&](const std::string& nome) {
        return stessoNumero(letti, Progetto, nome);
    });
}

Osservazioni righeDelFile(const std::string& file) {
    try {
        if (!file.empty() && base::esisteFile(file)) return review::esaminaRighe(file, Progetto);
    } catch (const base::ErroreFile&) {
        // Another program has made something else of it, which saving asks about.
    }
    return {};
}

}  // namespace

void OsservazioniAperte::guarda() {
    aperto_ = !project::fileCorrente.empty();
    if (!aperto_) return;  // a project that was opened stays so to the end of the program
    guardaFile();
    deiDati_ = review::esaminaProgetto(Progetto);
    chiedi();
    raccogli();
}

void OsservazioniAperte::guardaFile() {
    if (!project::modificato) {
        letti_ = Progetto;
        delFile_ = righeDelFile(project::progettiProtetti.letto);
        return;
    }
    std::erase_if(delFile_, [this](const auto& o) { return !ancoraCosi(o, letti_); });
}

void OsservazioniAperte::chiedi() {
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(Progetto).incastroPiede);
    if (ultima_ && nSeg == ultima_->nSeg && Progetto == ultima_->dati) return;
    deiRisultati_.clear();
    domanda_.reset();
    ultima_.reset();
    if (!nSeg || !review::calcolabile(deiDati_)) return;
    domanda_ = ultima_ = {++numero_, Progetto, *nSeg};
}

void OsservazioniAperte::rispondi(int numero, Osservazioni risultati) {
    if (!domanda_ || domanda_->numero != numero) return;
    domanda_.reset();
    deiRisultati_ = std::move(risultati);
    raccogli();
}

void OsservazioniAperte::raccogli() {
    tutte_.clear();
    for (const auto* parte : {&deiDati_, &delFile_, &deiRisultati_})
        tutte_.insert(tutte_.end(), parte->begin(), parte->end());
    perPeso(tutte_);
}

std::string OsservazioniAperte::conteggio() const {
    if (!aperto_) return {};
    constexpr const char* altre = "…";
    if (!domanda_) return review::conteggio(tutte_);
    return tutte_.empty() ? altre : review::conteggio(tutte_) + ' ' + altre;
}

std::optional<masks::PostoCampo> postoDi(const Osservazione& osservazione) {
    for (const auto& campo : osservazione.campi)
        if (const auto posto = masks::postoDelCampo(campo)) return posto;
    return {};
}

}  // namespace korven::commands
