#pragma once

#include <string>
#include <vector>

#include "tables/result_table.hpp"
#include "workbook/sheet.hpp"

namespace korven::batch {

/// The files of all sheets in a folder: "DIR/muro-nodi.csv", in English "DIR/muro-nodes.csv".
[[nodiscard]] std::vector<std::string> fileFogli(const std::string& cartella);

/// docs/batch.md, `tables --csv`: the table alone, without its notes, in UTF-8. Numbers have
/// fifteen digits, so that a depth is the one that is meant (3.24, not 3.2399999999999998), and a
/// cell that has nothing to show is empty.
[[nodiscard]] std::string csvFoglio(const tables::Prospetto& prospetto);

}  // namespace korven::batch
