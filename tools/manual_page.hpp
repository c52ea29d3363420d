#pragma once

#include <string>
#include <utility>
#include <vector>

#include "batch/options/command.hpp"

// Manual pages in the markup of man(7), made from the rows that the command line itself reads: a
// page can't name an option that is not there, nor forget one. Texts come in the language in force,
// Italian or English.

namespace korven::tools {

/// A page of the manual.
struct ManualPage {
    std::string name;  ///< "korven32c-series": the file without its section
    std::string text;
};

/// One page for the command line as a whole, then one for each command.
/// @param date  that of the version, "2026-11-23"
/// @pre the language is Italian or English: asserted, for the headings are in these two alone
[[nodiscard]] std::vector<ManualPage> commandLinePages(
    const std::vector<batch::RigaComando>& commands, const std::string& date);

/// The pages of the programs that have no options of their own.
[[nodiscard]] std::vector<ManualPage> plainProgramPages(const std::string& date);

/// A text as man(7) takes it: backslashes, hyphens that are to be typed, and points and quotation
/// marks at the beginning of a line are not taken for markup.
[[nodiscard]] std::string escaped(const std::string& text);

}  // namespace korven::tools
