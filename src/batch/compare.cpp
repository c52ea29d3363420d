#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "analysis/segment_count.hpp"
#include "base/colon.hpp"
#include "base/files.hpp"
#include "base/filled_text.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/computed_dossier.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/document_formats.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/output_names.hpp"
#include "commands/project_opening.hpp"
#include "commands/report_files.hpp"
#include "comparison/comparison.hpp"
#include "comparison/document.hpp"
#include "dossier/identity.hpp"
#include "project/output_guard.hpp"
#include "review/project_review.hpp"
#include "structure/offered_stiffness.hpp"

namespace korven::batch {

namespace {

using base::traduttore;
using comparison::Confronto;
using comparison::Muro;

// What is typed in the command line overrides both projects alike.
project::DatiProgetto usati(const Opzioni& opzioni, project::DatiProgetto dati) {
    if (opzioni.metodoSpinte) dati.metodoSpinte = *opzioni.metodoSpinte;
    if (opzioni.ricalcolaEJ && !structure::troppiFerri(dati.sezione))
        dati.rigidezzaEJ = structure::rigidezzaOfferta(dati.sezione).value_or(dati.rigidezzaEJ);
    return dati;
}

void raccontaPericoli(const std::string& file, const review::Osservazioni& osservazioni) {
    for (const auto& o : osservazioni)
        if (o.peso != review::Peso::daVedere) std::cerr << file << ": " << riga(o) << '\n';
}

// Reads a project and makes sure that the pages don't take its place.
dossier::Richiesta letto(const std::string& percorso, const Opzioni& opzioni, Esito& esito) {
    esito.progetto = percorso;  // of which an error tells
    commands::apriProgetto(percorso, {});
    controllaTabella(opzioni.pdfConfronto);
    dossier::Richiesta richiesta{.scritti = project::Progetto,
                                 .usati = usati(opzioni, project::Progetto),
                                 .nSeg = {},
                                 .identita = {},
                                 .sulProgetto = {}};
    richiesta.identita.file = percorso;
    richiesta.identita.opzioni = dossier::opzioni(alPostoDelProgetto(opzioni));
    richiesta.sulProgetto = review::esaminaFile(percorso, richiesta.usati);
    raccontaPericoli(percorso, *richiesta.sulProgetto);
    if (!review::mostrabile(richiesta.usati)) throw base::ErroreValore();
    return richiesta;
}

Muro calcolato(const dossier::Richiesta& richiesta, Esito& esito) {
    esito.progetto = richiesta.identita.file;
    FinoAllInterruzione osservatore;
    return comparison::muroCalcolato(richiesta.identita.file, richiesta, osservatore);
}

Confronto confrontoDiProgetti(const Opzioni& opzioni, Esito& esito) {
    const dossier::Richiesta prima = letto(opzioni.progetto, opzioni, esito);
    const std::string primo = project::fileCorrente;
    const dossier::Richiesta dopo = letto(opzioni.secondo, opzioni, esito);
    project::progettiProtetti.corrente = primo;
    Muro uno = calcolato(prima, esito), altro = calcolato(dopo, esito);
    esito.progetto = opzioni.progetto;
    return comparison::confronta(std::move(uno), std::move(altro));
}

// What prevents a comparison of all results is told as a run tells it.
int codice(const Confronto& confronto, Esito& esito) {
    if (confronto.stanno()) return fatto;
    for (const Muro* muro : {&confronto.prima, &confronto.dopo})
        if (!muro->fascicolo.parete.sta())
            racconta({muro->nome + base::duePunti() + verdetto(*muro)}, esito);
    return nonEseguito;
}

// Nothing says which project a result file comes from but its name.
std::vector<std::string> daConservare(const Opzioni& opzioni) {
    std::vector<std::string> file;
    for (const std::string& letto : {opzioni.progetto, opzioni.secondo}) {
        const std::string relazione = base::nomeRelazione(letto);
        file.insert(file.end(),
                    {letto, std::filesystem::path(letto).replace_extension(".kvd").string(),
                     relazione, commands::nomeTesto(relazione), base::nomeDocumento(relazione)});
    }
    return file;
}

void scriviPdf(const std::shared_ptr<const Confronto>& confronto, const Opzioni& opzioni,
               const PorteComando& porte, Esito& esito) {
    if (opzioni.pdfConfronto.empty()) return;
    const AmbienteDisegno ambiente(true);
    const auto documento =
        comparison::documento(confronto, dossier::data(dossier::fontiDiSistema({})));
    scrivi(documento, {opzioni.pdfConfronto, {}, {}}, esito.fileScritti, porte.disco);
}

// Whether the files are two of result files; what can't be compared so is wrong usage.
struct Specie {
    std::optional<results::TestaRisultati> prima, dopo;

    [[nodiscard]] std::string motivo(const Opzioni& opzioni) const {
        if (prima.has_value() != dopo.has_value())
            return base::riempito(
                traduttore("%1 è un file di risultati, %2 un progetto: si confrontano due "
                           "progetti, o due file di risultati"),
                {prima ? opzioni.progetto : opzioni.secondo,
                 prima ? opzioni.secondo : opzioni.progetto});
        const auto alPosto = dossier::opzioni(alPostoDelProgetto(opzioni));
        if (!prima || alPosto.empty()) return {};
        return base::riempito(
            traduttore("%1 vale per progetti: i numeri di un file di risultati ci sono già"),
            {alPosto.front()});
    }
};

Confronto confronto(const Specie& specie, const Opzioni& opzioni, Esito& esito) {
    if (!specie.prima) return confrontoDiProgetti(opzioni, esito);
    return comparison::confronta(comparison::muroDaRisultati(opzioni.progetto, *specie.prima),
                                 comparison::muroDaRisultati(opzioni.secondo, *specie.dopo));
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    analysis::contenutoNSeg = opzioni.nseg;
    const Interruzioni interruzioni;
    const Specie specie{results::leggiTestaRisultati(opzioni.progetto),
                        results::leggiTestaRisultati(opzioni.secondo)};
    if (const std::string motivo = specie.motivo(opzioni); !motivo.empty()) {
        fallisci(usoErrato, motivo, esito);
        return usoErrato;
    }
    if (!opzioni.pdfConfronto.empty()) {
        if (specie.prima) controllaNomi({opzioni.pdfConfronto}, daConservare(opzioni));
        base::controllaScrivibile(opzioni.pdfConfronto, porte.disco);
    }
    const auto fatto = std::make_shared<const Confronto>(confronto(specie, opzioni, esito));
    if (Interruzioni::chiesta() != 0) {
        racconta({traduttore("Calcolo interrotto dall'utente.")}, esito);
        return nonEseguito;
    }
    esito.confronto = fatto;
    const int suo = codice(*fatto, esito);
    scriviPdf(fatto, opzioni, porte, esito);
    return suo;
}

template <std::string Opzioni::*dove>
bool leggiPercorso(Opzioni& o, const std::string& valore) {
    o.*dove = valore;
    return percorsoAmmesso(valore);
}

template <std::string Opzioni::*dove>
RigaOpzione argomento(const base::Gemelli& nome, const char* spiegazione) {
    RigaOpzione riga = {nome, spiegazione,
                        [](Opzioni& o, const std::string& valore) {
                            o.*dove = valore;
                            return !valore.empty();
                        },
                        nome};
    riga.obbligatoria = true;
    return riga;
}

std::vector<RigaOpzione> opzioni() {
    return insieme({{argomento<&Opzioni::progetto>({"prima", "before"},
                                                   "il primo progetto, o file di risultati"),
                     argomento<&Opzioni::secondo>({"dopo", "after"},
                                                  "il secondo progetto, o file di risultati")},
                    opzioniComuni(),
                    {opzioneMetodo(),
                     opzioneSegmenti(),
                     opzioneEJ(),
                     {base::uguali("--pdf"),
                      "scrive il confronto in formato PDF, con le curve delle due pareti",
                      leggiPercorso<&Opzioni::pdfConfronto>, base::uguali("FILE")}}});
}

}  // namespace

RigaComando comandoConfronta() {
    return {{"confronta", "compare"},
            "dice in che cosa due progetti sono diversi e che cosa cambia nei risultati",
            opzioni(),
            esegui};
}

}  // namespace korven::batch
