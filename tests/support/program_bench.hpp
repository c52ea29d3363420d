#pragma once

#include <gtest/gtest.h>

#include <utility>

#include "commands/desktop_program.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/progress_double.hpp"

namespace korven::test {

/// The desktop program behind its menu, with doubles for all that it works with.
class BancoProgramma : public ::testing::Test {
 protected:
    commands::Programma programma(commands::FormeProgramma forme) {
        return {dialogo, nomi, finestra, avanzamento, maschere, std::move(forme)};
    }
    AmbienteDocumento ambiente;
    DialogoFinto dialogo;
    DialogoFileFinto nomi;
    FinestraFinta finestra;
    AvanzamentoFinto avanzamento;
    masks::Maschere maschere;
};

}  // namespace korven::test
