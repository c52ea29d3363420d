#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "commands/project_review.hpp"

// The parts of a project's review: the list that its checks fill, and the check of the section.

namespace korven::commands {

class ElencoRilievi {
 public:
    void impedimento(std::string testo) { rilievi_.push_back({true, std::move(testo)}); }
    void avviso(std::string testo) { rilievi_.push_back({false, std::move(testo)}); }
    /// What prevents a run first, else in the order in which it was found; empties the list.
    [[nodiscard]] std::vector<Rilievo> ordinato();

 private:
    std::vector<Rilievo> rilievi_;
};

/// "strato 3: ...", both texts being Italian keys.
[[nodiscard]] std::string riga(std::string_view nome, int numero, std::string_view testo);

/// A text with the value in question behind it, in brackets.
[[nodiscard]] std::string conValore(std::string testo, double valore);

[[nodiscard]] bool intero(double valore);

/// The stiffness and the structural section.
void controlloSezione(const project::DatiProgetto& dati, ElencoRilievi& elenco);

}  // namespace korven::commands
