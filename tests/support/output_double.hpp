#pragma once

#include <string>
#include <vector>

#include "analysis/calcolo_paratia.hpp"

namespace korven::test {

/// Counts the outputs asked for.
class UscitaFinta : public analysis::UscitaCalcolo {
 public:
    [[nodiscard]] std::vector<std::string> file(analysis::ModoUscita,
                                                const std::string&) const override {
        return daScrivere;
    }
    void scriviRelazione() override { ++relazioni; }
    void disegnaDiagramma(analysis::Diagramma diagramma) override {
        diagrammi.push_back(diagramma);
    }

    int relazioni = 0;
    std::vector<analysis::Diagramma> diagrammi;
    std::vector<std::string> daScrivere;
};

}  // namespace korven::test
