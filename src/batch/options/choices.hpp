#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/diagrams.hpp"
#include "batch/options/output_formats.hpp"
#include "batch/options/question_choices.hpp"
#include "batch/options/series_choices.hpp"
#include "factors/load_factors.hpp"

namespace korven::batch {

struct RigaComando;

/// What the command line asks for.
struct Opzioni {
    const RigaComando* comando = nullptr;  ///< row of the table of commands
    std::string progetto;
    std::string uscita;                  ///< folder for the results; empty: beside the project
    bool ricalcolaEJ = false;            ///< answer to the question about the stiffness
    std::optional<double> metodoSpinte;  ///< code to set after the project is read
    std::optional<std::string> nseg;     ///< replaces the content of nseg.txt
    bool json = false;
    bool silenzioso = false;
    bool severo = false;   ///< remarks of weight `pericolo` end a command with 1
    bool calcola = false;  ///< `verifica`: the remarks on results too
    bool traccia = false;  ///< `calcola`: record of the slow stages
    int maxIterazioni = 5000;
    analysis::Diagramma tipo = analysis::Diagramma::pressioni;  ///< of `diagramma`, which needs one
    int fase = 0;                   ///< `diagramma`: the stage to draw, 0 for all
    FormatiRelazione relazione;     ///< of `relazione`, besides the mark-up
    FormatiDisegno disegno;         ///< files of a drawing
    FormatiAllegato allegato;       ///< of `allegato`
    FormatiTabelle tabelle;         ///< of `tabelle`
    std::string norma;              ///< whose partial factors are applied; empty: none
    factors::NaturaCarichi natura;  ///< what it takes the loads for
    std::string data;               ///< of a document, "2026-11-22"; empty: that of the run
    std::string csv;                ///< file of a table; empty: none
    DomandaLunghezza lunghezza;
    DomandaBloccaggio bloccaggio;
    std::vector<std::string> assegnazioni;  ///< `imposta`: "campo=valore"
    std::string progettoNuovo;              ///< `imposta`: the file to write
    std::string secondo;               ///< `confronta`: the file that the first is compared with
    std::string pdfConfronto;          ///< `confronta`: the PDF file; empty: none
    std::string pdfVerifica;           ///< `autoverifica`: the PDF file; empty: none
    std::string casi;                  ///< `autoverifica`: folder of cases; empty: the program's
    OpzioniSerie serie;                ///< of `serie`
    std::vector<std::string> formati;  ///< `tutto`: of each drawing; empty: PDF and DXF
};

}  // namespace korven::batch
