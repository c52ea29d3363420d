#pragma once

#include <memory>

#include "shell/study/study_window.hpp"
#include "support/annex_ports.hpp"

namespace korven::test {

/// What a window of studies needs, over no project that could take a variant.
inline shell::PorteStudio porteStudio(base::Dialogo& dialogo) {
    return {dialogo, std::make_shared<SalvataggioDiProva>(),
            [](const project::DatiProgetto&) { return false; }};
}

}  // namespace korven::test
