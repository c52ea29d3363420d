#pragma once

#include <string>
#include <string_view>

#include "masks/edited_section.hpp"

// What the section form shows of each field: the control, its row and column, the words of help.

namespace korven::shell {

struct CampoForma {
    double project::Sezione::*valore;
    const char* controllo;
    const char* riga;    ///< Italian key where the caption is not that of the table of fields
    int colonna;         ///< of its frame, from 0
    const char* titolo;  ///< of the column, without its unit; nullptr for none
    const char* aiuto;   ///< Italian key

    /// Italian key of the caption; fields with the same one are side by side.
    [[nodiscard]] std::string_view didascalia() const;
    /// Italian key of the heading of its column, empty for none. The columns of the materials say
    /// their units; of the other frames the title says it.
    [[nodiscard]] std::string intestazione() const;
};

/// In the order of the tabulator, that of `masks::campiSezione`.
extern const CampoForma campiForma[masks::numeroCampiSezione];

}  // namespace korven::shell
