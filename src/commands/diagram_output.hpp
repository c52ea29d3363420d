#pragma once

#include "analysis/calcolo_paratia.hpp"

namespace korven::commands {

/// The output of the four diagram commands: draws into the plot store. It writes no file of its
/// own beside the results.
class UscitaDiagramma : public analysis::UscitaCalcolo {
 public:
    [[nodiscard]] std::vector<std::string> file(int, const std::string&) const override {
        return {};
    }
    void scriviRelazione() override {}
    void disegnaDiagramma(int modoUscita) override;
};

}  // namespace korven::commands
