#pragma once

#include <string_view>

namespace korven::exchange {

/// The rows of a text of parted cells, and the sign that parts them.
struct TestoParti {
    std::string_view testo;
    char separatore;
    long primaRiga;  ///< number of its first line in the file
};

/// Finds out what parts the cells of a table of layers: what a line "sep=;" at the head says, which
/// is no part of the rows, else the one of tab, semicolon and comma by which the first row with a
/// text gives the most names of columns, or the most numbers at its head.
[[nodiscard]] TestoParti trovaSeparatore(std::string_view testo);

/// A number with a decimal point or a decimal comma.
[[nodiscard]] bool sembraNumero(std::string_view testo);

}  // namespace korven::exchange
