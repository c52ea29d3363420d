#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>

#include "masks/history.hpp"
#include "panels/anchor_calculator.hpp"

namespace korven::panels {

/// The inputs of the calculator as they are typed, with what can be taken back: what was typed into
/// one input, or chosen, from coming to it until another one is changed.
class StoriaCalcolo {
 public:
    /// The inputs from 0 as `VoceCalcolo` counts them, then the two choices.
    static constexpr std::size_t genere = numeroVoci, misura = numeroVoci + 1;

    /// @param ingressi  must outlive the history
    explicit StoriaCalcolo(IngressiCalcolo& ingressi) : ingressi_(ingressi) {}

    void scrivi(VoceCalcolo voce, const std::string& testo);
    void scegli(GenereAncoraggio genere);
    void scegli(MisuraArea misura);

    /// A result went into the table: the next step to be taken back is that of the table.
    void usata() { storia_.svuota(); }

    /// Takes the last step back, or does it again.
    /// @return the input or choice of that step; nothing when there was none, and nothing is said
    std::optional<std::size_t> annulla();
    std::optional<std::size_t> ripeti();

    /// What was taken back or done again, until something else is done; else empty.
    [[nodiscard]] const std::string& detto() const { return storia_.detto(); }
    void taci() { storia_.taci(); }

 private:
    using Valore = std::variant<std::string, GenereAncoraggio, MisuraArea>;
    [[nodiscard]] Valore valore(std::size_t posto) const;
    void metti(std::size_t posto, const Valore& valore);
    void cambia(std::size_t posto, const Valore& dopo);

    IngressiCalcolo& ingressi_;
    masks::Storia<std::size_t, Valore> storia_;
};

}  // namespace korven::panels
