#pragma once

#include <string>
#include <string_view>

#include "base/disk.hpp"

namespace korven::plot {

/// The name proposed for the DXF file of a project: the project's file name without its folder, its
/// extension replaced by ".DXF", or with that appended when it has none.
[[nodiscard]] std::string nomeDxf(std::string_view progetto);

/// Name of the text style in DXF files: the first line of dxf.cfg in the program folder. Where that
/// file is missing or empty it is "MONOTXT", and the file is written with it if the folder allows
/// it. A blank line means that name as well.
/// @throws ErroreFile when the file is there and can't be read
[[nodiscard]] std::string leggiStileTesti(const base::Disco& disco = base::discoDiSistema());

/// The stored drawing as DXF, UTF-8.
/// @throws ErroreFile when a spill file can't be read
[[nodiscard]] std::string testoDxf(std::string_view stile);

/// Writes the stored drawing as DXF in Windows-1252, all of it or nothing, over an earlier file of
/// that name. The text style is read once and held for the run.
/// @throws ErroreFile with the system's reason
void plotDxf(const std::string& percorso, const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::plot
