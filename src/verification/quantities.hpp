#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "project/units.hpp"

namespace korven::verification {

struct Luogo;
class PareteCalcolata;

/// A quantity that a case may ask for.
struct Grandezza {
    /// Its value in the stored unit; nothing where there is none.
    using Valore = std::optional<double> (*)(PareteCalcolata&, const Luogo&);

    std::string_view nome;        ///< in the file of a case
    std::string_view didascalia;  ///< Italian key
    const project::Unita& unita;
    bool diFase = true;  ///< of a stage; the last where none is named
    bool conZ = false;   ///< at a depth, which must be that of a node
    bool conTirante = false;
    Valore corsa = nullptr, equilibrio = nullptr, sezione = nullptr;
};

[[nodiscard]] std::span<const Grandezza> grandezze();

/// That of a name; nullptr for none.
[[nodiscard]] const Grandezza* grandezza(std::string_view nome);

/// The quantity whose value is a word: what is known of a stage.
[[nodiscard]] bool aParole(const Grandezza& grandezza);

}  // namespace korven::verification
