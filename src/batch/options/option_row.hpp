#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "base/twin_names.hpp"
#include "batch/options/choices.hpp"

namespace korven::batch {

/// A switch, which takes no value.
using Segna = void (*)(Opzioni&);
/// One of `RigaOpzione::valori`, counted from 0.
using Scegli = void (*)(Opzioni&, std::size_t quale);
/// Any other text; false refuses it as a value that is not allowed.
using Leggi = bool (*)(Opzioni&, const std::string& valore);
/// A whole number in a range.
struct Conta {
    int minimo, massimo;
    int& (*dove)(Opzioni&);

    /// "20-1200", or ">= 0" without an end.
    [[nodiscard]] std::string intervallo() const;
};

/// An option of a command, or an argument by its place, as a row: what it is called, what the help
/// says of it and where what is typed goes.
struct RigaOpzione {
    base::Gemelli nome;       ///< "--uscita"; an argument by its place has no dashes
    std::string spiegazione;  ///< for the help, the key of a text
    std::variant<Segna, Scegli, Leggi, Conta> azione;
    base::Gemelli valore = {};               ///< word for its value in the help: "DIR"
    std::vector<base::Gemelli> valori = {};  ///< all the values that it may have, of `Scegli`
    std::string predefinito = {};            ///< value without the option, for the help
    std::string coda = {};  ///< after the explanation in the help: names, no words of a language
    bool obbligatoria = false;
    bool ripetibile = false;  ///< takes several values; an option parted by commas too
    bool conVirgole = false;  ///< of a repeatable option: a comma is part of a value, and each
                              ///< value has the option's name before it

    [[nodiscard]] bool perPosto() const { return !nome.italiano.starts_with('-'); }
    /// What the help shows for its value, in the language in use: "DIR", "momenti|taglio".
    [[nodiscard]] std::string valoreMostrato() const;
};

/// The rows of several groups as one list.
[[nodiscard]] std::vector<RigaOpzione> insieme(std::vector<std::vector<RigaOpzione>> gruppi);

/// A path that an option may have for its value. A forgotten value must not make a folder "--json"
/// of the next option.
[[nodiscard]] bool percorsoAmmesso(const std::string& valore);

}  // namespace korven::batch
