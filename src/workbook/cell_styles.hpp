#pragma once

#include <xlsxwriter.h>

#include <map>
#include <string>
#include <tuple>

#include "tables/result_table.hpp"

namespace korven::workbook {

/// The looks of cells, each made once for its workbook.
class StiliCelle {
 public:
    explicit StiliCelle(lxw_workbook* libro);

    [[nodiscard]] lxw_format* titolo() const { return titolo_; }
    [[nodiscard]] lxw_format* testa() const { return testa_; }
    [[nodiscard]] lxw_format* nota() const { return nota_; }
    /// Of a number, with the decimals that its text has, or of a word.
    /// @param aCapo  a long word goes on in further lines
    [[nodiscard]] lxw_format* di(const tables::Cella& cella, bool aCapo);

 private:
    lxw_workbook* libro_;
    lxw_format *titolo_, *testa_, *nota_;
    std::map<std::tuple<std::string, bool, bool>, lxw_format*> celle_;  // digits, danger, lines
};

/// Pattern of a number as its text has it: "0.00", "0", "0.000E+00", with the words beside it:
/// "0.00\" below\""; empty for what is shown in all its digits, and for a word.
[[nodiscard]] std::string schemaCifre(const tables::Cella& cella);

}  // namespace korven::workbook
