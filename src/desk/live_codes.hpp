#pragma once

#include <memory>
#include <optional>
#include <string>

#include "factors/combinations.hpp"
#include "factors/factor_rows.hpp"
#include "live/wall.hpp"

namespace korven::desk {

/// A wall that is to be computed under the combinations of a code.
struct DomandaNorma {
    int numero = 0;              ///< by which the answer is known
    project::DatiProgetto dati;  ///< with the bending stiffness of the run
    int nSeg = 0;
    factors::Norma norma;
    factors::NaturaCarichi natura;
};

/// The open project under the combinations of a code, while it is worked on: whoever holds it tells
/// it what happens, has its questions computed, and shows what it knows.
class NormeVive {
 public:
    /// Takes the codes that there are, in their order. The one that was chosen stays so, by its
    /// name; else the first is.
    void norme(factors::Catalogo catalogo);
    [[nodiscard]] const std::vector<factors::Norma>& norme() const { return catalogo_.norme; }
    /// Which of them is chosen; -1: there is none.
    [[nodiscard]] int scelta() const { return scelta_; }
    /// @param quale  one of `norme`: asserted
    void scegli(int quale);
    /// What the loads of the project are.
    void natura(const factors::NaturaCarichi& natura);

    /// Looks at the wall, with what was chosen since.
    /// @param parete  of the open project; nullptr: none is open
    void guarda(const live::PareteViva* parete);

    /// Why there is nothing to compute, sentences, a line each; empty otherwise.
    [[nodiscard]] const std::string& impedimento() const { return impedimento_; }
    /// What is to be computed; nothing where the answer is known, or where there is nothing to
    /// compute.
    [[nodiscard]] const std::optional<DomandaNorma>& domanda() const { return domanda_; }

    /// Takes an answer.
    /// @return false for one to an earlier question, which is dropped
    bool rispondi(int numero, std::shared_ptr<const factors::Combinazioni> combinazioni);
    /// What ended a computation without an answer, a sentence.
    void rinuncia(int numero, const std::string& perche);
    /// The last answer, as long as there is something to compute: with a question it is of what was
    /// asked before. nullptr: none is known yet.
    [[nodiscard]] const std::shared_ptr<const factors::Combinazioni>& combinazioni() const {
        return combinazioni_;
    }

 private:
    void impedito(std::string perche);
    [[nodiscard]] bool nota(const live::PareteViva& parete) const;

    factors::Catalogo catalogo_;
    int scelta_ = -1;
    factors::NaturaCarichi natura_;
    bool altra_ = true;  // something else was chosen since the last question
    std::string impedimento_;
    int numero_ = 0;                      // of the last question
    std::optional<DomandaNorma> ultima_;  // of the answer that is known or awaited
    std::optional<DomandaNorma> domanda_;
    std::shared_ptr<const factors::Combinazioni> combinazioni_;
};

}  // namespace korven::desk
