#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "base/disk.hpp"
#include "base/text_lines.hpp"

// The page layout for text printing, kept in the file printer.cfg of the program folder.

namespace korven::plot {

struct ImpostazioniStampa {
    int margineSinistro = 0;    ///< [characters]
    int margineSuperiore = 0;   ///< [lines]
    int margineInferiore = 0;   ///< [lines]
    int lunghezzaPagina = 70;   ///< [lines]
    int altezzaCaratteri = 10;  ///< [points]
    std::string intestazione;
    std::string piePagina;
    std::string carattere = "Courier New";
    double offsetSuperiore = 0;  ///< [lines]
    bool operator==(const ImpostazioniStampa&) const = default;
};

/// Reads the file: nine values, one a line, in the order above; the last may be missing. Without a
/// file the values are those above.
/// @throws ErroreFile when the file is cut short or a number is none
[[nodiscard]] ImpostazioniStampa leggiImpostazioni(const std::string& percorso);

/// The same out of a file that is there.
[[nodiscard]] ImpostazioniStampa leggiImpostazioni(base::LettoreRighe& file);

/// The bytes of the file, always nine lines.
[[nodiscard]] std::string testoImpostazioni(const ImpostazioniStampa& impostazioni);

/// Writes the file anew, all of it or nothing, and makes its font the one of the pen in use.
/// @throws ErroreFile with the system's reason
void salvaImpostazioni(const std::string& percorso, const ImpostazioniStampa& impostazioni,
                       const base::Disco& disco = base::discoDiSistema());

/// The values as texts for fields, in the order of the file.
using CampiStampa = std::array<std::string, 9>;
[[nodiscard]] CampiStampa campiStampa(const ImpostazioniStampa& impostazioni);

/// What was typed into such fields. A number is read from the head of its text, what is none is 0;
/// those that are whole lose their fraction and are held within the 16 bits that they have.
[[nodiscard]] ImpostazioniStampa impostazioniScritte(const CampiStampa& campi);

/// Which font of a printer the form selects: the saved one, else Courier New, else the first.
/// @param caratteri  in the printer's order
/// @return index from 0; -1 when there is no font
[[nodiscard]] int carattereDaScegliere(std::span<const std::string> caratteri,
                                       std::string_view salvato);

}  // namespace korven::plot
