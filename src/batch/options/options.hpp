#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/diagrams.hpp"
#include "batch/options/forms.hpp"

namespace korven::batch {

enum class Comando {
    calcola,
    relazione,
    verifica,
    diagramma,
    sezione,
    stratigrafia,
    campiture,
    tutto
};

/// The word of a command on the command line.
[[nodiscard]] const char* nomeComando(Comando comando);

/// What the command line asks for.
struct Opzioni {
    Comando comando = Comando::calcola;
    std::string progetto;
    std::string uscita;                  ///< folder for the results; empty: beside the project
    bool ricalcolaEJ = false;            ///< answer to the question about the stiffness
    std::optional<double> metodoSpinte;  ///< code to set after the project is read
    std::optional<std::string> nseg;     ///< replaces the content of nseg.txt
    std::string cartella;                ///< program folder; empty: the usual one
    std::string lingua;                  ///< tag; empty: that of language.cfg
    bool json = false;
    bool silenzioso = false;
    bool traccia = false;  ///< `calcola`: record of the slow stages
    int maxIterazioni = 5000;
    analysis::Diagramma tipo = analysis::Diagramma::pressioni;  ///< of `diagramma`, which needs one
    int fase = 0;              ///< `diagramma`: the stage to draw, 0 for all
    FormeRelazione relazione;  ///< of `relazione`, besides the mark-up
    FormeDisegno disegno;      ///< files of a drawing
    std::vector<std::string> formati = {"pdf", "dxf"};  ///< `tutto`: forms of each drawing
};

/// Either options or the end of the program, with what was asked for already printed.
struct EsitoLettura {
    std::optional<Opzioni> opzioni;
    int codice = 0;  ///< exit code if there are none: 0 for help and version, 2 for wrong usage
};

[[nodiscard]] EsitoLettura leggiOpzioni(int argc, const char* const* argv);

/// Value of an option that is needed before the others can be told in the right language; empty if
/// it is not given.
[[nodiscard]] std::string valoreAnticipato(int argc, const char* const* argv,
                                           const std::string& nome);

}  // namespace korven::batch
