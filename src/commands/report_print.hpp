#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/dialogo.hpp"
#include "markup/report_printer.hpp"

namespace korven::commands {

/// The printer for one job; null when there is none and the user gave up.
using ApriStampante = std::function<std::unique_ptr<markup::ReportPrinter>()>;

/// Prints a mark-up file. A box tells of a printer that failed, and the program goes on: nothing is
/// lost by it. Does nothing if there is no such file, and nothing is printed without a printer.
/// While the user may be asked for one the pointer is the normal one.
/// @throws base::ErroreFile if the mark-up is broken; the job is then taken back
void stampaRelazione(const std::string& relazione, const ApriStampante& apri,
                     base::Dialogo& dialogo);

}  // namespace korven::commands
