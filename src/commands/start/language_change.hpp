#pragma once

#include <functional>
#include <vector>

#include "base/dialogo.hpp"
#include "base/disk.hpp"

namespace korven::commands {

struct PorteCambioLingua {
    base::Dialogo& dialogo;
    /// Lets the user choose among these language codes.
    /// @param presente  the one of `language.cfg`, with which the program would start
    /// @return the code chosen; 0 when the form was left without
    std::function<int(const std::vector<int>& codici, int presente)> scegli;
    const base::Disco& disco = base::discoDiSistema();
};

/// Asks for another language, writes it into `language.cfg` and offers to start the program again:
/// texts, help and pens are those of the start until then. A file that can't be written is told in
/// a box.
/// @return true when the program is to start again
[[nodiscard]] bool cambiaLingua(const PorteCambioLingua& porte);

}  // namespace korven::commands
