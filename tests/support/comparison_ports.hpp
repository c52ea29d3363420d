#pragma once

#include <memory>
#include <string>

#include "shell/comparison/comparison_window.hpp"
#include "support/annex_ports.hpp"

namespace korven::test {

/// What a window of the comparison needs, with nobody who names another project.
inline shell::PorteConfronto porteConfronto(base::Dialogo& dialogo) {
    return {dialogo, [] { return std::string(); }, std::make_shared<SalvataggioDiProva>()};
}

}  // namespace korven::test
