#include "commands/diagram_output.hpp"

#include "drawings/result_diagram.hpp"

namespace korven::commands {

void UscitaDiagramma::disegnaDiagramma(int modoUscita) {
    drawings::disegnaDiagramma(static_cast<drawings::Diagramma>(modoUscita));
}

}  // namespace korven::commands
