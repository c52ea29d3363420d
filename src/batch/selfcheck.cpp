#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/document_formats.hpp"
#include "batch/run/drawing_formats.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/outcome.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/selfcheck_outcome.hpp"
#include "dossier/identity.hpp"
#include "verification/collection.hpp"
#include "verification/document.hpp"

namespace korven::batch {

namespace {

// The document must not take the place of a case, or of a project that cases begin with.
void controllaNome(const std::string& pdf, const std::vector<verification::Gruppo>& gruppi) {
    std::vector<std::string> file;
    for (const auto& gruppo : gruppi)
        for (const auto& caso : gruppo.casi) file.push_back(caso.file);
    std::error_code nessuna;
    for (const auto& base :
         std::filesystem::directory_iterator(verification::cartellaBasi(), nessuna))
        file.push_back(base.path().string());
    controllaNomi({pdf}, file);
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    const std::string cartella = opzioni.casi.empty() ? verification::cartellaCasi() : opzioni.casi;
    auto verifica = std::make_shared<Autoverifica>();
    verifica->gruppi = verification::leggiCasi(cartella, verification::cartellaBasi());
    if (!opzioni.pdfVerifica.empty()) {
        controllaNome(opzioni.pdfVerifica, verifica->gruppi);
        base::controllaScrivibile(opzioni.pdfVerifica, porte.disco);
    }
    const Interruzioni interruzioni;
    verifica->esito =
        verification::esegui(verifica->gruppi, [] { return Interruzioni::chiesta() != 0; });
    if (Interruzioni::chiesta() != 0) {
        racconta({base::traduttore("Calcolo interrotto dall'utente.")}, esito);
        return nonEseguito;
    }
    esito.autoverifica = verifica;
    if (!opzioni.pdfVerifica.empty()) {
        const AmbienteDisegno ambiente(true);
        const auto documento =
            verification::documento(verifica->esito, dossier::data(dossier::fontiDiSistema({})));
        scrivi(documento, {opzioni.pdfVerifica, {}, {}}, esito.fileScritti, porte.disco);
    }
    return verifica->esito.superata() ? fatto : nonEseguito;
}

RigaOpzione opzioneCasi() {
    return {{"--casi", "--cases"},
            "cartella di casi di verifica, al posto di quelli del programma",
            [](Opzioni& o, const std::string& valore) {
                o.casi = valore;
                return percorsoAmmesso(valore);
            },
            base::uguali("DIR")};
}

RigaOpzione opzionePdf() {
    return {base::uguali("--pdf"), "scrive la verifica in formato PDF",
            [](Opzioni& o, const std::string& valore) {
                o.pdfVerifica = valore;
                return percorsoAmmesso(valore);
            },
            base::uguali("FILE")};
}

}  // namespace

RigaComando comandoAutoverifica() {
    return {{"autoverifica", "selfcheck"},
            "calcola i casi di verifica e confronta i risultati con i valori attesi",
            insieme({opzioniComuni(), {opzioneCasi(), opzionePdf()}}),
            esegui};
}

}  // namespace korven::batch
