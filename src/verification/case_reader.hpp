#pragma once

#include <string>
#include <string_view>

#include "verification/case.hpp"

namespace korven::verification {

/// Reads a case. docs/verification.md tells the form.
/// @param percorso   of the file, for errors and for the name of the case
/// @param contenuto  its bytes, UTF-8
/// @param basi       folder of the projects that a case may begin with, named without extension
/// @throws base::ErroreFile with the line and what was expected there
[[nodiscard]] Caso leggiCaso(const std::string& percorso, std::string_view contenuto,
                             const std::string& basi);

/// Reads what is told of a group; its cases are not looked for.
[[nodiscard]] Gruppo leggiGruppo(const std::string& percorso, std::string_view contenuto);

}  // namespace korven::verification
