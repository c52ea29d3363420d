#pragma once

#include "analysis/calcolo_paratia.hpp"

namespace korven::commands {

/// The output of the four diagram commands: draws into the plot store. It writes no file of its own
/// beside the results.
class UscitaDiagramma : public analysis::UscitaCalcolo {
 public:
    [[nodiscard]] std::vector<std::string> file(analysis::ModoUscita,
                                                const std::string&) const override {
        return {};
    }
    void scriviRelazione() override {}
    void disegnaDiagramma(analysis::Diagramma diagramma) override;
};

}  // namespace korven::commands
