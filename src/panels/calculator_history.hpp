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
    void usata();

    /// Takes the last step back, or does it again. The steps of the table are taken back when none
    /// is left here, and so are done again before those of here.
    /// @param tabella  whether the table has a step to do again
    /// @return the input or choice of that step; nothing when there was none, or when it is the
    ///         turn of the table, and nothing is said
    std::optional<std::size_t> annulla();
    std::optional<std::size_t> ripeti(bool tabella = false);
    /// A step of the table was taken back after all of these.
    void annullatoInTabella() { ++inTabella_; }

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
    int inTabella_ = 0;  // steps of the table that were taken back after those of here
};

}  // namespace korven::panels
