#pragma once

#include <memory>
#include <optional>
#include <string>

#include "comparison/computed_comparison.hpp"

namespace korven::comparison {

/// The open project compared with another one, or with its own file, while it is worked on: whoever
/// holds it tells it what happens, has its questions computed, and shows what it knows.
class ConfrontoVivo {
 public:
    /// With what the open project is compared, as the first of the two, from the next look on.
    /// @param percorso  of a project; empty: the open one as it was saved last
    void con(std::string percorso) { percorso_ = std::move(percorso); }
    [[nodiscard]] const std::string& con() const { return percorso_; }

    /// Looks at both: reads the file of the first, and takes the second as it is given.
    /// @param aperto  the open project; nullptr: none is open
    /// @param file    its path, which may lead to no file as yet
    /// @param nSeg    as `DomandaConfronto::nSeg`
    void guarda(const project::DatiProgetto* aperto, const std::string& file,
                std::optional<int> nSeg);

    /// Why there is nothing to compare, a sentence; empty otherwise.
    [[nodiscard]] const std::string& impedimento() const { return impedimento_; }
    /// What is to be computed; nothing where the answer is known, or where there is nothing to
    /// compare.
    [[nodiscard]] const std::optional<DomandaConfronto>& domanda() const { return domanda_; }

    /// Takes an answer.
    /// @return false for one to an earlier question, which is dropped
    bool rispondi(int numero, std::shared_ptr<const Confronto> confronto);
    /// What ended a computation without an answer, a sentence.
    void rinuncia(int numero, const std::string& perche);
    /// The last answer, as long as there is something to compare: with a question it is of the
    /// walls before. nullptr: none is known yet.
    [[nodiscard]] const std::shared_ptr<const Confronto>& confronto() const { return confronto_; }

 private:
    void impedito(std::string perche);
    void chiedi(DomandaConfronto domanda);

    std::string percorso_, impedimento_;
    int numero_ = 0;                          // of the last question
    std::optional<DomandaConfronto> ultima_;  // of the answer that is known or awaited
    std::optional<DomandaConfronto> domanda_;
    std::shared_ptr<const Confronto> confronto_;
};

}  // namespace korven::comparison
