#include <string>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "batch/options/common_options.hpp"
#include "batch/run/command_ports.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/failure.hpp"
#include "batch/run/output_names.hpp"
#include "batch/run/reviewed_run.hpp"
#include "batch/run/told_remarks.hpp"
#include "project/output_guard.hpp"
#include "project/project_file.hpp"
#include "project/shown_number.hpp"
#include "review/project_review.hpp"
#include "structure/offered_stiffness.hpp"
#include "studies/assignments.hpp"

namespace korven::batch {

namespace {

// A typed stiffness stays what it was when the section changes, which is easily forgotten.
void avvisaRigidezza(Esito& esito) {
    const project::DatiProgetto& nuovo = *esito.impostato;
    const double EJ = nuovo.rigidezzaEJ;
    if (EJ == 0 || EJ != esito.scritti.rigidezzaEJ || nuovo.sezione == esito.scritti.sezione ||
        structure::troppiFerri(nuovo.sezione))
        return;
    const auto sua = structure::rigidezzaOfferta(nuovo.sezione);
    if (!sua || sua == structure::rigidezzaOfferta(esito.scritti.sezione)) return;
    const auto testo = [](double t) {
        return project::numeroMostrato(t, 0, project::unita::rigidezzaFlessionale);
    };
    racconta({base::riempito(
                 base::traduttore("La rigidezza EJ resta quella scritta, %1 kN m²/m, e la sezione "
                                  "nuova dà %2: con rigidezzaEJ=0 la calcola il programma."),
                 {testo(EJ), testo(*sua)})},
             esito);
}

// A change may make of a wall one that nobody meant: what is seen of that is told at once.
void esaminaNuovo(const Opzioni& opzioni, Esito& esito) {
    esito.osservazioni = review::esaminaFile(opzioni.progettoNuovo, *esito.impostato);
    esito.esaminato = true;
    raccontaImpedimenti(esito);
    raccontaPericoli(esito);
    Opzioni delNuovo = opzioni;
    delNuovo.progetto = opzioni.progettoNuovo;
    raccontaDaVedere(delNuovo, esito);
}

int esegui(const Opzioni& opzioni, const PorteComando& porte, Esito& esito) {
    esito.inMemoria = true;
    preparaProgetto(opzioni, esito);
    if (const std::string motivo = project::motivoNome(opzioni.progettoNuovo); !motivo.empty()) {
        fallisci(nonEseguito, base::traduttore(motivo), esito);
        return nonEseguito;
    }
    controllaFile({opzioni.progettoNuovo}, porte.disco);
    studies::Assegnato assegnato = studies::assegna(esito.scritti, opzioni.assegnazioni);
    if (!assegnato.difetti.empty()) {
        racconta(assegnato.difetti, esito);
        return ingressoRotto;
    }
    base::scriviFile(opzioni.progettoNuovo, base::inCp1252(project::testoProgetto(assegnato.dati)),
                     porte.disco);
    esito.fileScritti.push_back(opzioni.progettoNuovo);
    esito.impostato = assegnato.dati;
    avvisaRigidezza(esito);
    esaminaNuovo(opzioni, esito);
    return fatto;
}

RigaOpzione opzioneFile() {
    RigaOpzione riga = {{"--uscita", "--output"},
                        "il nuovo file di progetto",
                        [](Opzioni& o, const std::string& valore) {
                            o.progettoNuovo = valore;
                            return percorsoAmmesso(valore);
                        },
                        base::uguali("FILE")};
    riga.obbligatoria = true;
    return riga;
}

RigaOpzione assegnazioni() {
    RigaOpzione riga = {{"campi", "fields"},
                        "un campo con il suo nome per i programmi, nell'unità mostrata",
                        [](Opzioni& o, const std::string& valore) {
                            o.assegnazioni.push_back(valore);
                            return valore.find('=') != std::string::npos;
                        },
                        {"campo=valore", "field=value"}};
    riga.obbligatoria = true;
    riga.ripetibile = true;
    return riga;
}

}  // namespace

RigaComando comandoImposta() {
    return {{"imposta", "set"},
            "scrive un progetto con altri valori in alcuni campi",
            insieme({opzioniProgetto(), {assegnazioni(), opzioneFile()}}),
            esegui};
}

}  // namespace korven::batch
