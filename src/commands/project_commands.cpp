#include "commands/project_commands.hpp"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "analysis/input_checks.hpp"
#include "analysis/segment_count.hpp"
#include "base/file_error.hpp"
#include "base/file_names.hpp"
#include "base/files.hpp"
#include "base/program_folder.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "project/project_file.hpp"
#include "report/calculation_report.hpp"
#include "report/text_renderer.hpp"

namespace korven::commands {

namespace {

namespace fs = std::filesystem;

std::string assoluto(const std::string& percorso) {
    return fs::absolute(percorso).lexically_normal().string();
}

void creaCartella(const std::string& cartella) {
    std::error_code errore;
    fs::create_directories(cartella, errore);
    if (!fs::is_directory(cartella))
        throw base::ErroreFile(cartella, 0, base::traduttore("impossibile creare la cartella"));
}

EsitoFase estremi(int k, const project::DatiProgetto& dati, int nNodi,
                  const analysis::RisultatiFase& risultati) {
    EsitoFase esito{k, dati.profFase[k], 0, risultati.momentoNodo[1], risultati.momentoNodo[1]};
    for (int i = 1; i <= nNodi; ++i) {
        esito.spostamentoMax = std::max(esito.spostamentoMax, std::fabs(risultati.yNodo[i]));
        esito.momentoMax = std::max(esito.momentoMax, risultati.momentoNodo[i]);
        esito.momentoMin = std::min(esito.momentoMin, risultati.momentoNodo[i]);
    }
    return esito;
}

}  // namespace

void apriProgetto(const std::string& percorso, const std::string& uscita) {
    const std::string progetto = assoluto(percorso);
    project::azzeraProgetto();
    project::fileCorrente = progetto;
    project::leggiProgetto();
    if (uscita.empty()) return;
    const std::string cartella = assoluto(uscita);
    creaCartella(cartella);
    project::fileCorrente = (fs::path(cartella) / fs::path(progetto).filename()).string();
}

EsitoCalcolo leggiEsito() {
    EsitoCalcolo esito;
    const auto& memoria = project::Progetto;
    const auto nSeg = analysis::leggiNSeg(analysis::vincoli(memoria).incastroPiede);
    if (!nSeg)
        throw base::ErroreFile(base::fileProgramma("nseg.txt"), 1,
                               base::traduttore(analysis::messaggioNSeg));
    esito.nSeg = *nSeg;
    esito.fileRisultati = base::nomeRisultati(project::fileCorrente);
    analysis::LettoreRisultati file(esito.fileRisultati, *nSeg + 1);
    project::DatiProgetto dati;
    file.leggiTesta(dati);
    analysis::RisultatiFase risultati;
    for (int k = 1; k <= dati.nFasi; ++k) {
        file.leggiFase(risultati);
        esito.fasi.push_back(estremi(k, dati, *nSeg + 1, risultati));
    }
    esito.chiusura = file.leggiChiusura();
    return esito;
}

void UscitaRelazione::scriviRelazione() {
    if (scrive_) relazione_ = report::scriviRelazione();
}

std::string scriviTesto(const std::string& relazione) {
    auto file = base::LettoreRighe::apri(relazione);
    const auto testo = report::renderText(file);
    std::string percorso = base::conUltimiTre(relazione, "txt");
    base::scriviFile(percorso, testo.value_or(""));
    return percorso;
}

}  // namespace korven::commands
