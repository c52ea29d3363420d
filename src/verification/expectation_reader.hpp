#pragma once

#include <string_view>

#include "verification/case.hpp"
#include "verification/case_lines.hpp"

namespace korven::verification {

/// Reads one line of what is expected:
///
///     spostamento fase 1 z 10 = -117.944 mm entro 0.1 %
///     momento z 4 = variante x 2 entro 0.1 %
///     esito fase 2 = meccanismo
///
/// @param caso  with its walls, in which the places are looked up
/// @throws base::ErroreFile by `righe`
[[nodiscard]] Attesa leggiAttesa(const RigheCaso& righe, std::string_view riga, const Caso& caso);

}  // namespace korven::verification
