#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "masks/grid_model.hpp"
#include "support/dialog_double.hpp"
#include "support/mask_setup.hpp"

namespace korven::test {

/// The model of a grid on the mask of `mascheraGriglia`, with two rows, and what its user types.
class BancoModelloGriglia : public ::testing::Test {
 protected:
    using Testi = std::vector<std::string>;

    BancoModelloGriglia() = default;
    /// @param risposta  to all questions
    explicit BancoModelloGriglia(base::Risposta risposta) : dialogo(risposta) {}

    void scrivi(const std::string& testo) {
        for (const char c : testo)
            modello.premi(c == '.' ? masks::Tasto::punto : masks::Tasto::carattere,
                          std::string(1, c), dialogo);
    }
    void premi(masks::Tasto tasto) { modello.premi(tasto, "", dialogo); }
    [[nodiscard]] std::string cella() const { return modello.testo(modello.corrente()); }

    masks::Maschera maschera = mascheraGriglia();
    DialogoFinto dialogo;
    const Testi iniziali{"2", "3", "18", "uno", "0", "8", "19", "due", "1"};
    masks::ModelloGriglia modello{maschera, iniziali};
};

}  // namespace korven::test
