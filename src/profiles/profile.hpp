#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "masks/edited_section.hpp"
#include "project/field_table.hpp"

namespace korven::profiles {

/// What a row of the catalogue describes: a bar, a tube, or a whole section of a type.
enum class Genere { ferro, tubo, diaframma, pali, palancola, paliArmati };

/// Fields of the section form with the numbers that are typed into them.
using Misure = std::vector<std::pair<std::size_t, double>>;

/// One row of a catalogue. All lengths in mm, as the form has them.
struct Profilo {
    Genere genere = Genere::ferro;
    std::string nome;
    double diametro = 0;  ///< of a bar, outer of a tube
    double spessore = 0;  ///< of a tube's wall
    /// Of a section: places of `masks::campiSezione`, each once, fields of its type or materials.
    Misure misure{};
    std::string fonte;     ///< where the numbers come from
    bool proprio = false;  ///< the user's own

    bool operator==(const Profilo&) const = default;
};

/// The word of a kind in the file: "ferro", "pali-armati".
[[nodiscard]] std::string_view parola(Genere genere);

/// The kind of whole sections of a type. @pre a type of section: asserted
[[nodiscard]] Genere genereDi(project::Parte tipo);

/// True for a field whose number a row of a whole section may have: one of its type, a material.
[[nodiscard]] bool ammessa(Genere genere, std::size_t campo);

/// True if the row can fill fields of that type: bars the two kinds of reinforced concrete, tubes
/// the tubes, whole sections their own type.
[[nodiscard]] bool adatto(const Profilo& profilo, project::Parte tipo);

/// The fields of a type that take the diameter of a bar, in the order of the form; none for the
/// types without bars.
[[nodiscard]] std::vector<std::size_t> campiFerro(project::Parte tipo);

/// What taking the row writes into the form, each number as it is typed.
/// @param campo  of `campiFerro`, which a bar fills; of no matter for others
[[nodiscard]] masks::SezioneEditata::Testi testi(const Profilo& profilo, std::size_t campo);

/// The numbers of a row for people, translated: "Ø 273, t 6.3 mm", "b = 345, fyk = 355".
[[nodiscard]] std::string misureMostrate(const Profilo& profilo);

/// True if each word of `cercato` is found in name, numbers or source, whatever its case.
[[nodiscard]] bool trovato(const Profilo& profilo, std::string_view cercato);

/// Whole section of the type as it stands in the form: all its numbers above 0, with the materials
/// that it is made of where `materiali`. Its name and source are still empty.
[[nodiscard]] Profilo profiloDi(project::Parte tipo, const project::Sezione& sezione,
                                bool materiali);

}  // namespace korven::profiles
