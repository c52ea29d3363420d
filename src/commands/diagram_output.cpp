#include "commands/diagram_output.hpp"

#include "drawings/result_diagram.hpp"

namespace korven::commands {

void UscitaDiagramma::disegnaDiagramma(int modoUscita) {
    report::disegnaDiagramma(static_cast<report::Diagramma>(modoUscita));
}

}  // namespace korven::commands
