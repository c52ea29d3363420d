#pragma once

#include <string>

#include "base/dialogo.hpp"

namespace korven::shell {

/// Shows a document of the program ("README", "docs/theory") in the program that the desktop has
/// for it, a browser for those of an installed program. Says in a box when there is no such
/// document, or nothing that opens it.
void apriDocumento(const std::string& nome, base::Dialogo& dialogo);

}  // namespace korven::shell
