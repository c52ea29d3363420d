#pragma once

#include <string>

#include "document/blocks.hpp"
#include "project/project_data.hpp"
#include "workbook/sheet.hpp"

// What all documents and workbooks begin with that tell of the open project.

namespace korven::desk {

/// Whose numbers a document tells.
struct ProgettoDetto {
    std::string file;            ///< path; may be empty
    project::DatiProgetto dati;  ///< as they stand in the project, without the stiffness of the run
    std::string data;            ///< "2026-11-22", of the document
};

/// A document with its title, the name of the file with its imprint, header and footer.
[[nodiscard]] document::Documento documentoDi(const ProgettoDetto& progetto,
                                              const std::string& titolo);

/// A workbook with the same, still without sheets.
[[nodiscard]] workbook::CartellaFogli cartellaDi(const ProgettoDetto& progetto,
                                                 const std::string& titolo);

}  // namespace korven::desk
