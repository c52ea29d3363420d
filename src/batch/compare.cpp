#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "analysis/segment_count.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
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

Muro muroDelProgetto(const std::string& percorso, const Opzioni& opzioni, Esito& esito) {
    esito.progetto = percorso;  // of which an error tells
    commands::apriProgetto(percorso, {});
    controllaTabella(opzioni.pdfConfronto);
    dossier::Richiesta richiesta{.scritti = project::Progetto,
                                 .usati = usati(opzioni, project::Progetto),
                                 .nSeg = {},
                                 .identita = {},
                                 .sulProgetto = {}};
    richiesta.identita.file = percorso;
    richiesta.sulProgetto = review::esaminaFile(percorso, richiesta.usati);
    raccontaPericoli(percorso, *richiesta.sulProgetto);
    if (!review::mostrabile(richiesta.usati)) throw base::ErroreValore();
    FinoAllInterruzione osservatore;
    return comparison::muroCalcolato(percorso, richiesta, osservatore);
}

Confronto confrontoDiProgetti(const Opzioni& opzioni, Esito& esito) {
    Muro prima = muroDelProgetto(opzioni.progetto, opzioni, esito);
    const std::string primo = project::fileCorrente;
    Muro dopo = muroDelProgetto(opzioni.secondo, opzioni, esito);
    project::progettiProtetti.corrente = primo;
    esito.progetto = opzioni.progetto;
    return comparison::confronta(std::move(prima), std::move(dopo));
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
    controllaTabella(opzioni.pdfConfronto);
    controllaNomi({opzioni.pdfConfronto}, daConservare(opzioni));
    const AmbienteDisegno ambiente(true);
    const auto documento =
        comparison::documento(confronto, dossier::data(dossier::fontiDiSistema({})));
    esito.fileScritti = scrivi(documento, {opzioni.pdfConfronto, {}, {}}, porte.disco).file;
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    analysis::contenutoNSeg = opzioni.nseg;
    const Interruzioni interruzioni;
    const auto testaPrima = results::leggiTestaRisultati(opzioni.progetto),
               testaDopo = results::leggiTestaRisultati(opzioni.secondo);
    if (testaPrima.has_value() != testaDopo.has_value()) {
        fallisci(usoErrato,
                 base::riempito(traduttore("%1 è un file di risultati, %2 un progetto: si "
                                           "confrontano due progetti, o due file di risultati"),
                                {testaPrima ? opzioni.progetto : opzioni.secondo,
                                 testaPrima ? opzioni.secondo : opzioni.progetto}),
                 esito);
        return usoErrato;
    }
    auto confronto = std::make_shared<const Confronto>(
        testaPrima
            ? comparison::confronta(comparison::muroDaRisultati(opzioni.progetto, *testaPrima),
                                    comparison::muroDaRisultati(opzioni.secondo, *testaDopo))
            : confrontoDiProgetti(opzioni, esito));
    if (Interruzioni::chiesta() != 0) {
        racconta({traduttore("Calcolo interrotto dall'utente.")}, esito);
        return nonEseguito;
    }
    esito.confronto = confronto;
    const int suo = codice(*confronto, esito);
    scriviPdf(confronto, opzioni, porte, esito);
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
