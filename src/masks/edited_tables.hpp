#pragma once

#include <string>
#include <vector>

#include "project/field_table.hpp"

// What an editor shows of the project, and taking back what it hands over: texts as typed, in the
// units that the user sees. A number is the longest numeric prefix of its text, 0 if there is none.
//
// A table arrives as a list: the number of rows as text, then the cells row after row in the column
// order of DatiProgetto (the layer table without Su, which no editor shows). Cells that are missing
// at the end count as empty.
//
// A text that is the one that was shown keeps the stored value with all its digits: a form run
// through without an edit changes no data. In a table that holds wherever the row has moved to.
//
// Each function returns whether the project counts as modified by it: where it returns true the
// caller sets `modificato`, where it returns false `modificato` stays as it was.

namespace korven::masks {

/// The text of one field: the plain number in the unit that the user sees, or the text itself.
[[nodiscard]] std::string testoMostrato(const project::DatiProgetto& dati,
                                        const project::Campo& campo, int riga = 1);

/// What the table editors show: the number of rows, then the cells; the plain text of each number
/// in the unit that the user sees. Taken back unchanged they give the same project.
[[nodiscard]] std::vector<std::string> testiStrati(const project::DatiProgetto& dati);
[[nodiscard]] std::vector<std::string> testiTiranti(const project::DatiProgetto& dati);
[[nodiscard]] std::vector<std::string> testiFasi(const project::DatiProgetto& dati);
/// What the wall editor shows: the 18 values in its order, codes first.
[[nodiscard]] std::vector<std::string> testiParatia(const project::DatiProgetto& dati);
/// The six heading lines.
[[nodiscard]] std::vector<std::string> testiTitoli(const project::DatiProgetto& dati);

/// Takes back the soil layers and sorts them by depth; equal depths stay in the order typed. Su has
/// no column in the editor and stays with its row number when rows are exchanged; rows beyond the
/// count of before start with 0, whatever an earlier table left there.
/// @return true always: a confirmed table counts as modified, whether anything changed or not
/// @throws base::ErroreIndice if there are more rows than the table holds
bool riprendiStrati(project::DatiProgetto& dati, const std::vector<std::string>& testi);

/// Takes back the anchors and sorts them by depth.
/// @return true always, as for the layers
/// @throws base::ErroreIndice if there are more rows than the table holds
bool riprendiTiranti(project::DatiProgetto& dati, const std::vector<std::string>& testi);

/// Takes back the excavation stages. They are meant to be typed in the order of the excavation:
/// rows out of depth order keep their depths and water levels, while their anchor counts and
/// surcharges, and the stiffness of the anchors with the same row numbers, are exchanged.
/// @return true always, as for the layers
/// @throws base::ErroreIndice if there are more rows than the table holds
bool riprendiFasi(project::DatiProgetto& dati, const std::vector<std::string>& testi);

/// Takes back the wall parameters, 18 texts in the order of the wall editor.
/// @return true if any value differs from the stored one, so never for a form confirmed unchanged
bool riprendiParatia(project::DatiProgetto& dati, const std::vector<std::string>& testi);

/// Takes back the six heading lines.
/// @return true if any line differs from the stored one
bool riprendiTitoli(project::DatiProgetto& dati, const std::vector<std::string>& testi);

}  // namespace korven::masks
