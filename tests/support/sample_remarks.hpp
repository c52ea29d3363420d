#pragma once

#include "shell/remarks/remarks_window.hpp"

namespace korven::test {

/// A short one and a long one, with a field and without.
inline review::Osservazioni osservazioniMiste() {
    std::string lungo = "fase 2: ";
    for (int i = 0; i < 40; ++i) lungo += "parole lunghissime ";
    return {{"peso-mancante", review::Peso::pericolo, "manca un peso", {"gammaN[2]"}, "strati"},
            {"righe-in-piu", review::Peso::daVedere, lungo, {}, "sicurezza"}};
}

/// Actions that do nothing, all of them there.
inline shell::FinestraOsservazioni::Azioni azioniOsservazioni() {
    return {.apribile = [](const review::Osservazione&) { return true; },
            .apri = [](const review::Osservazione&) {},
            .guida = [](const std::string&) {}};
}

}  // namespace korven::test
