#pragma once

#include <string>

namespace korven::shell {

/// Asks whether a file may be replaced, in the language of the program, with No as the answer of
/// Enter; true without a question where there is no file of that name.
[[nodiscard]] bool puoSostituire(const std::string& percorso);

}  // namespace korven::shell
