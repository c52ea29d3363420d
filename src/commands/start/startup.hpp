#pragma once

#include <functional>
#include <string>

#include "commands/document.hpp"
#include "commands/start/language_start.hpp"
#include "masks/values.hpp"

namespace korven::commands {

/// What the start of the program needs beside its language.
struct PorteAvvio {
    /// Reads what must be sound before there is work to lose (`leggiDatiProgramma`); may be empty.
    std::function<void()> leggiMaschere;
    /// Shows the about box, which greets whoever starts without a project; left out when empty.
    std::function<void()> saluta;
};

/// Reads the five mask files, and looks through the configuration of the drawings, which each
/// drawing reads anew: a file that can't be used ends the program when it starts and not in the
/// middle of somebody's work.
/// @throws base::ErroreFile with the file, its line and what was expected there
void leggiDatiProgramma(masks::Maschere& maschere);

/// The rest of the start, after the language: no project, masks and pens, then the project that the
/// command line names. Without an argument the defaults and the about box; with one that names no
/// file the defaults alone.
/// @param argomento  the command line, empty when there is none
/// @throws base::ErroreFile if a mask, the pens or the project can't be used
void avvia(const std::string& argomento, Documento& documento, const PorteAvvio& porte);

}  // namespace korven::commands
