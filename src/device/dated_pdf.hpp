#pragma once

#include <string>

namespace korven::device {

/// True where SOURCE_DATE_EPOCH says which moment a file bears.
[[nodiscard]] bool haDataVoluta();

/// The bytes of a PDF file as they go to the disk: where SOURCE_DATE_EPOCH says of which moment it
/// is, of that one and with an identifier made of its content, so that the same drawing gives the
/// same bytes again; else as they came.
/// @throws std::exception if they are no PDF file
[[nodiscard]] std::string conDataVoluta(std::string pdf);

}  // namespace korven::device
