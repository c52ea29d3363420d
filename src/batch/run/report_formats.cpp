#include "batch/run/report_formats.hpp"

#include <cassert>
#include <iostream>
#include <string>

#include "base/colon.hpp"
#include "base/file_error.hpp"
#include "base/folders/file_names.hpp"
#include "base/process/processi.hpp"
#include "base/translated_texts.hpp"
#include "base/value_error.hpp"
#include "batch/run/console_run.hpp"
#include "batch/run/interruption.hpp"
#include "batch/run/output_names.hpp"
#include "commands/output_title.hpp"
#include "commands/report_export.hpp"
#include "commands/report_files.hpp"
#include "device/graphics_session.hpp"
#include "device/report_pages.hpp"
#include "markup/print_renderer.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "review/project_review.hpp"

namespace korven::batch {

namespace {

bool interrotto() { return Interruzioni::chiesta() != 0; }

void annota(const std::string& file, std::string& nome, Esito& esito) {
    nome = file;
    esito.fileScritti.push_back(file);
}

// An interrupt from the terminal ends the converter too; that is no failure of its own.
void scriviDocumento(Esito& esito) {
    base::Processi programmi;
    try {
        annota(commands::scriviDocumento(esito.fileRelazione, programmi), esito.fileDocumento,
               esito);
    } catch (const base::ErroreFile&) {
        if (!interrotto()) throw;
    }
}

void scriviPdf(const std::string& file, CorsaConsole& corsa, Esito& esito) {
    const auto pdf = device::relazioneSuPdf(file, commands::titoloUscite(), corsa.disco());
    markup::printReport(esito.fileRelazione, *pdf, corsa.dialogo());
    annota(file, esito.filePdf, esito);
}

void stampa(const std::string& nome, base::Dialogo& dialogo, const Esito& esito) {
    const auto pagine = device::relazioneSuStampante(nome, commands::titoloUscite());
    markup::printReport(esito.fileRelazione, *pagine, dialogo);
}

void scriviFormati(const FormatiRelazione& formati, CorsaConsole& corsa, Esito& esito) {
    if (formati.testo && !interrotto())
        annota(commands::scriviTesto(esito.fileRelazione, corsa.disco()), esito.fileTesto, esito);
    if (formati.documento && !interrotto()) scriviDocumento(esito);
    if (!formati.pdf.empty() && !interrotto()) scriviPdf(formati.pdf, corsa, esito);
    if (!formati.stampante.empty() && !interrotto())
        stampa(formati.stampante, corsa.dialogo(), esito);
}

}  // namespace

void avvisaPosto() {
    if (!commands::relazioneAltrove(project::fileCorrente)) return;
    const std::string risultati = base::nomeRisultati(project::fileCorrente);
    std::cerr << base::traduttore("Il nome della relazione termina al primo punto del percorso")
              << base::duePunti() << base::nomeRelazione(risultati) << '\n';
}

void controllaUscite(const FormatiRelazione& formati) {
    assert(!formati.dipinte() || device::SessioneGrafica::aperta());
    const auto file = fileDelProgetto();
    if (!formati.pdf.empty())
        for (const auto& altro : file) project::controllaUscita(formati.pdf, altro);
    // Only links can make one file of two of these. Whether one is the project the run checks.
    const bool scritti[] = {true, true, formati.testo, formati.documento};
    for (std::size_t i = 1; i < file.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (scritti[i] && scritti[j]) project::controllaCoppia(file[i], file[j]);
    if (!formati.stampante.empty()) device::controllaStampante(formati.stampante);
}

bool produciRelazione(const FormatiRelazione& formati, CorsaConsole& corsa, Esito& esito) {
    // Not every value appears in every report, but no project is right with one.
    if (!review::mostrabile(project::Progetto)) throw base::ErroreValore();
    commands::UscitaRelazione uscita(true, formati.testo, formati.documento, corsa.disco());
    if (!corsa.esegui(analysis::relazione, uscita)) return false;
    annotaRisultati(esito);
    esito.fileRelazione = uscita.relazione();
    esito.fileScritti.push_back(esito.fileRelazione);
    scriviFormati(formati, corsa, esito);
    return true;
}

}  // namespace korven::batch
