#pragma once

#include <cstddef>
#include <string>
#include <vector>

// A mask describes an input form: its fields with labels, types, limits and help. The forms are
// built from masks alone, so that what is asked and explained can be changed without the program.

namespace korven::masks {

inline constexpr std::size_t massimoMaschere = 20;
inline constexpr int massimoCampi = 25;  ///< fields of one mask, choices included

/// One field of a form, or one column of a grid. Texts are translated, UTF-8.
struct CampoMaschera {
    std::string etichetta;     ///< label, with its unit in brackets
    bool soloLettura = false;  ///< shown, never changed
    std::string tipo;          ///< type text (field_type.hpp)
    double minimo = 0;         ///< limits of a number, themselves allowed
    double massimo = 0;
    std::string aiuto;  ///< what the help strip shows
    bool operator==(const CampoMaschera&) const = default;
};

enum class GenereMaschera {
    campi = 1,          ///< labelled fields
    griglia = 2,        ///< a table; rows with empty cells are asked about; rows can be inserted
    grigliaFissa = 3,   ///< the same without inserting and deleting rows
    grigliaLibera = 4,  ///< as `griglia`, cells may stay empty
};

/// A mask as its file tells it, in the language in force.
struct Maschera {
    GenereMaschera genere = GenereMaschera::campi;
    std::string titolo;
    /// Items of each choice field; the choices are the first fields. Empty for a grid.
    std::vector<std::vector<std::string>> scelte;
    /// The choices, then the other fields; for a grid its columns, the first that of row numbers.
    std::vector<CampoMaschera> campi;
    std::string riferimento;            ///< reference to the help; its leading number is the entry
    std::vector<std::string> pulsanti;  ///< captions: confirm, cancel, then what the form offers
    int contesto = 0;                   ///< entry of the help context table, 0 to 200
    bool operator==(const Maschera&) const = default;

    [[nodiscard]] int nCombo() const { return static_cast<int>(scelte.size()); }
    [[nodiscard]] int nCampi() const { return static_cast<int>(campi.size()) - nCombo(); }
};

/// Entry of the help context table that the help button opens: the number at the head of the mask's
/// reference, held between 0 and 200, the bounds of that table.
[[nodiscard]] int voceGuida(const Maschera& maschera);

}  // namespace korven::masks
