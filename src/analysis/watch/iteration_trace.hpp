#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "analysis/progress.hpp"

namespace korven::analysis {

/// Follows the iteration of one stage and remembers which sides of which nodes changed their state,
/// and which anchors dropped out or came back: what an engineer must know about a stage that finds
/// no rest.
class TracciaIterazioni {
 public:
    /// What one side of a node did.
    struct CambioNodo {
        int nodo = 0;
        double profondita = 0;  ///< [m]
        bool monte = true;
        analysis::StatoLato da{}, a{};  ///< of the last change
        int cambi = 0;
        int ultimaIterazione = 0;
    };
    /// What an anchor did.
    struct CambioTirante {
        int tirante = 0;
        int nodo = 0;
        bool agisce = false;  ///< after the last change
        int cambi = 0;
        int ultimaIterazione = 0;
    };

    /// Takes one iteration; the first of a stage begins a new record.
    void registra(const analysis::StatoIterazione& stato);

    [[nodiscard]] int fase() const { return fase_; }
    [[nodiscard]] int iterazioni() const { return iterazioni_; }

    /// Changes whose last one came in iteration `da` or later, from the top of the wall down.
    [[nodiscard]] std::vector<CambioNodo> nodi(int da = 0) const;
    [[nodiscard]] std::vector<CambioTirante> tiranti(int da = 0) const;

    /// The record in words, translated: a line for each run of neighbouring nodes that change
    /// between the same two states on one side ("nodi 12-37"), a line an anchor; one line says so
    /// if nothing changed.
    [[nodiscard]] std::vector<std::string> righe(int da = 0) const;

    /// What is told of a run that was stopped in this stage: why, stage and iterations, then
    /// `righe` of the last iterations.
    /// @param motivo  Italian key
    [[nodiscard]] std::vector<std::string> arresto(std::string_view motivo) const;

    /// The same in one line.
    [[nodiscard]] std::string arrestoInBreve(std::string_view motivo) const;
    /// Of it only why, stage and iterations: "Calcolo interrotto (fase 2, 310 iterazioni)".
    [[nodiscard]] std::string dove(std::string_view motivo) const;

 private:
    [[nodiscard]] std::vector<std::string> ultimeRighe() const;
    void confronta(const analysis::StatoIterazione& stato);

    int fase_ = 0;
    int iterazioni_ = 0;
    std::vector<analysis::StatiNodo> stati_;
    std::vector<analysis::TiranteInOpera> agenti_;
    std::vector<CambioNodo> monte_, valle_;
    std::vector<CambioTirante> tiranti_;
};

}  // namespace korven::analysis
