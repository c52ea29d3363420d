#pragma once

#include "base/disk.hpp"

namespace korven::batch {

/// korven32c as a whole, from its arguments to what it tells on its two outputs.
/// @param disco  takes the files that a command writes
/// @return the exit code
/// @throws what nothing could tell any more
[[nodiscard]] int programma(int argc, const char* const* argv,
                            const base::Disco& disco = base::discoDiSistema());

}  // namespace korven::batch
