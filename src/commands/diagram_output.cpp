#include "commands/diagram_output.hpp"

#include "drawings/result_diagram.hpp"

namespace korven::commands {

void UscitaDiagramma::disegnaDiagramma(analysis::Diagramma diagramma) {
    drawings::disegnaDiagramma(diagramma);
}

}  // namespace korven::commands
