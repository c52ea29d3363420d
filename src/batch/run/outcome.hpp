#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "analysis/watch/run_control.hpp"
#include "project/project_data.hpp"
#include "results/run_outcome.hpp"
#include "review/project_review.hpp"
#include "safety/margin.hpp"
#include "safety/run_cause.hpp"
#include "safety/told_stages.hpp"

namespace korven::comparison {
struct Confronto;
}

namespace korven::factors {
struct Combinazioni;
}

namespace korven::batch {

struct Autoverifica;
struct RispostaBloccaggio;
struct RispostaLunghezza;

/// What a command has to tell, whether as text or as JSON.
struct Esito {
    std::string comando;       ///< its Italian name, whatever the language
    bool soloRilievi = false;  ///< its outcome is the remarks alone
    std::string progetto;
    int codice = 0;                     ///< exit code
    bool progettoLetto = false;         ///< the project could be read
    project::DatiProgetto scritti;      ///< it, before the command line sets anything in it
    bool corsa = false;                 ///< the command came as far as to run the analysis
    bool guasto = false;                ///< an error cut the command short
    bool severo = false;                ///< all was done, the code is 1 for the remarks alone
    std::vector<std::string> messaggi;  ///< why it was refused, or went wrong
    bool calcola = false;               ///< the command follows a wall through its stages
    /// What became of that; nothing if the command did not come so far.
    std::optional<safety::Causa> causa;
    std::string spiegazione;  ///< what the equilibrium solution says of a run that found no rest
    bool esaminato = false;   ///< the remarks below are those of a review
    review::Osservazioni osservazioni;
    std::optional<results::EsitoCalcolo> calcolo;
    bool inMemoria = false;  ///< its outcome is the one below, and no result file
    std::optional<safety::EquilibrioRaccontato> equilibrio;
    std::optional<safety::Margine> margine;
    std::shared_ptr<const Autoverifica> autoverifica;
    std::shared_ptr<const comparison::Confronto> confronto;
    std::shared_ptr<const RispostaLunghezza> lunghezza;
    std::shared_ptr<const RispostaBloccaggio> bloccaggio;
    std::shared_ptr<const factors::Combinazioni> combinazioni;
    /// Of a code that a document has a chapter on.
    std::shared_ptr<const factors::Combinazioni> sullaNorma;
    bool elencaCampi = false;                        ///< the fields of `scritti`
    std::optional<project::DatiProgetto> impostato;  ///< what `scritti` has become in another file
    bool righeVersate = false;   ///< it told its outcome row by row, where it was asked to
    bool giaAggiornato = false;  ///< the result file was up to date already
    std::vector<analysis::ControlloCorsa::Fase> fasi;
    /// What is said of the checks of a run; empty where its results were not looked at.
    std::vector<safety::VerificaGiudicata> giudizi;
    std::vector<std::string> fileScritti;
    /// Which option takes the outputs elsewhere, and what it does; empty if it was given, or none
    /// does.
    std::string altrove;
    std::string fileRelazione, fileTesto, fileDocumento, filePdf;

    /// True if the command has done all that it was asked.
    [[nodiscard]] bool compiuto() const { return codice == 0 || severo; }
    /// True if nothing prevents a run of the project, as far as the remarks know.
    [[nodiscard]] bool calcolabile() const {
        return progettoLetto && !guasto && review::calcolabile(osservazioni);
    }
};

/// Takes in what became of a run; a sentence about it goes to standard error too.
void annota(const safety::CausaCorsa& causa, Esito& esito);

/// The table of a run, a line a stage, with the traces of slow stages after it if `traccia`.
[[nodiscard]] std::string tabella(const Esito& esito, bool traccia);

/// "da vedere: strato 1: ...", or what prevents a run.
[[nodiscard]] std::string riga(const review::Osservazione& osservazione);

/// What a review found, a line each.
[[nodiscard]] std::string elenco(const Esito& esito);

/// The outcome as a JSON document (docs/json.md).
[[nodiscard]] std::string json(const Esito& esito);

}  // namespace korven::batch
