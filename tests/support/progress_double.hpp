#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/progress.hpp"

namespace korven::test {

/// Counts what a run reports and may act at each iteration.
class AvanzamentoFinto : public analysis::Avanzamento {
 public:
    void apri() override { ++aperture; }
    void iterazione(const analysis::StatoIterazione& stato) override {
        ++iterazioni;
        if (adOgniIterazione) adOgniIterazione(stato);
    }
    [[nodiscard]] bool fermata() override { return ferma; }
    void caduta(const analysis::FaseCalcolata&) override { ++cadute; }
    void chiudi() override { ++chiusure; }
    /// No time passes.
    void attendi(std::string_view detto) override {
        attese.emplace_back(detto);
        if (allaPausa) allaPausa(static_cast<int>(attese.size()));
    }
    void fineAttesa() override { ++fineAttese; }

    bool ferma = false;  ///< what is answered when the run asks for a stop
    int aperture = 0, chiusure = 0, iterazioni = 0, fineAttese = 0, cadute = 0;
    std::vector<std::string> attese;
    std::function<void(int volta)> allaPausa;
    std::function<void(const analysis::StatoIterazione&)> adOgniIterazione;
};

}  // namespace korven::test
