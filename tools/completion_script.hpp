#pragma once

#include <string>
#include <vector>

#include "batch/options/command.hpp"

namespace korven::tools {

/// The script with which bash completes the command line of korven32c: commands, options and their
/// values, files by what an option writes, printers, the fields of the project that was named. It
/// is made from the rows that the command line itself reads. Offers the names of the user's
/// language, Italian or English, and understands both.
/// @param functions  the part of the script that knows no command
[[nodiscard]] std::string completionScript(const std::vector<batch::RigaComando>& commands,
                                           const std::string& functions);

}  // namespace korven::tools
