#pragma once

#include <string>
#include <vector>

namespace korven::base {

/// Starts this very program once more in place of the running one, with the surroundings that it
/// was given. Comes back only if the system refuses.
/// @param argomenti  its name, then what follows on the command line; not empty: @pre
void ricomincia(const std::vector<std::string>& argomenti);

}  // namespace korven::base
