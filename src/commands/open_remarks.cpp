#include "commands/open_remarks.hpp"

#include <algorithm>
#include <iterator>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"
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
bool ancoraCosi(const Osservazione& osservazione, const DatiProgetto& letti,
                const DatiProgetto& dati) {
    const auto& campi = osservazione.campi;
    return std::all_of(campi.begin(), campi.end(),
                       [&](const std::string& nome) { return stessoNumero(letti, dati, nome); });
}

Osservazioni righeDelFile(const std::string& file) {
    try {
        if (!file.empty() && base::esisteFile(file)) return review::esaminaRighe(file, Progetto);
    } catch (const base::ErroreFile&) {
        // Another program has made something else of it, which saving asks about.
    }
    return {};
}

// As a new project begins, whatever its headings say.
bool nienteScritto(const DatiProgetto& dati) {
    DatiProgetto nuovo;
    project::azzera(nuovo);
    nuovo.titoli = dati.titoli;
    return dati == nuovo;
}

}  // namespace

void OsservazioniAperte::guardaFile() {
    if (project::modificato) return;
    letti_ = Progetto;
    delFile_ = righeDelFile(project::progettiProtetti.letto);
}

void OsservazioniAperte::guarda(const DatiProgetto& dati) {
    aperto_ = true;
    vuoto_ = nienteScritto(dati);
    dati_ = dati;
    deiDati_ = vuoto_ ? Osservazioni() : review::esaminaProgetto(dati);
    raccogli();
}

void OsservazioniAperte::risultati(const Osservazioni* trovate) {
    attende_ = trovate == nullptr;
    deiRisultati_ = attende_ ? Osservazioni() : *trovate;
    raccogli();
}

void OsservazioniAperte::raccogli() {
    tutte_ = deiDati_;
    if (vuoto_) return;
    std::copy_if(delFile_.begin(), delFile_.end(), std::back_inserter(tutte_),
                 [this](const auto& o) { return ancoraCosi(o, letti_, dati_); });
    tutte_.insert(tutte_.end(), deiRisultati_.begin(), deiRisultati_.end());
    perPeso(tutte_);
}

std::string OsservazioniAperte::conteggio() const {
    if (!aperto_) return {};
    if (vuoto_) return base::traduttore("Ancora nessun dato");
    constexpr const char* altre = "…";
    if (!attende_) return review::conteggio(tutte_);
    return tutte_.empty() ? altre : review::conteggio(tutte_) + ' ' + altre;
}

std::optional<masks::PostoCampo> postoDi(const Osservazione& osservazione) {
    for (const auto& campo : osservazione.campi)
        if (const auto posto = masks::postoDelCampo(campo)) return posto;
    return {};
}

}  // namespace korven::commands
