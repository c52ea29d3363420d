#pragma once

namespace korven::batch {

/// korven32c as a whole, from its arguments to what it tells on its two outputs.
/// @return the exit code
/// @throws what nothing could tell any more
[[nodiscard]] int programma(int argc, const char* const* argv);

}  // namespace korven::batch
