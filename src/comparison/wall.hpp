#pragma once

#include <string>

#include "analysis/run_observer.hpp"
#include "dossier/dossier.hpp"
#include "results/result_head.hpp"

namespace korven::comparison {

/// Where the numbers of a wall come from.
enum class Origine {
    equilibrio,     ///< the equilibrium solution of a project
    fileRisultati,  ///< a file that the run of the report has left
};

/// One of the two walls that are compared.
struct Muro {
    std::string nome;  ///< as its user calls it: a path, "salvato"
    Origine origine = Origine::equilibrio;
    /// Of a result file: the project of its head and its stages; no margin and no remarks.
    dossier::Fascicolo fascicolo;
};

/// Computes a project, in memory.
[[nodiscard]] Muro muroCalcolato(std::string nome, const dossier::Richiesta& richiesta,
                                 analysis::OsservatoreCorsa& osservatore);

/// Takes the numbers of a result file, whatever mesh has written it.
/// @param testa  of that file
/// @throws base::ErroreFile if the file is broken
[[nodiscard]] Muro muroDaRisultati(const std::string& percorso,
                                   const results::TestaRisultati& testa);

/// What is known of its stages, in one sentence: that all stand, which one does not and why, or why
/// nothing is computed.
[[nodiscard]] std::string verdetto(const Muro& muro);

}  // namespace korven::comparison
