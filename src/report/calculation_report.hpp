#pragma once

#include <string>

#include "base/disk.hpp"
#include "results/report_data.hpp"

namespace korven::report {

/// The whole calculation report in mark-up, UTF-8, lines ended by CR LF.
/// @param nomeProgetto  the project file's own name, for the foot of the pages
/// @throws ErroreValore if a value is too large to be shown
/// @throws base::ErroreIndice if a stage asks for more anchors than the table holds
[[nodiscard]] std::string testoRelazione(const results::DatiRelazione& dati,
                                         const std::string& nomeProgetto);

/// Writes the report of the result file that `fileCorrente` names, beside it, under the name that
/// the first point of the path gives. Everything is read back from that file; `Progetto` is left as
/// a reading of it leaves it, so that after Rankine or Bell the report says Coulomb: the foot of
/// its pages names the method that the run used.
/// @return the path of the mark-up file
/// @throws base::ErroreFile if the results can't be read or the report can't be written, or if its
///         name leads to the project or to the result file itself; nothing is written then
std::string scriviRelazione(const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::report
