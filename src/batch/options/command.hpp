#pragma once

#include <string>
#include <vector>

#include "batch/options/option_row.hpp"

namespace korven::batch {

struct Esito;
struct Opzioni;
struct PorteComando;

/// A command of korven32c as a row: what it is called, what the help says of it, the options it
/// takes, what it does.
struct RigaComando {
    base::Gemelli nome;
    std::string spiegazione;  ///< for the help, the key of a text
    std::vector<RigaOpzione> opzioni;

    /// Does the work and fills the outcome; progress, refusals and warnings go to standard error.
    /// @return the exit code: done, or the run was refused, found singular or stopped
    /// @throws the exceptions of the logic; what `esito` then holds is true as far as it goes
    int (*esegui)(const Opzioni& opzioni, const PorteComando& porte, Esito& esito);

    bool calcola = false;      ///< follows a wall through its stages
    bool disegna = false;      ///< must be given one file of a drawing at least
    bool soloRilievi = false;  ///< its outcome is a list of remarks
    /// Files that lie where the command writes its own, beside those of every report: one that
    /// fails, however it ends, names those that it has not written anew. nullptr: it has none.
    std::vector<std::string> (*rimasti)(const Opzioni& opzioni) = nullptr;
};

}  // namespace korven::batch
