#pragma once

#include <optional>

#include "live/wall.hpp"
#include "safety/margin.hpp"

namespace korven::live {

/// The wall as it falls, for a picture: one that does not stand as it is; of one that stands the
/// deciding stage as a mechanism by the movement that the strength divided by F cannot hold any
/// more. Nothing where no movement is known, as with a wall that restraints hold.
/// @param margine  of the same wall
[[nodiscard]] std::optional<PareteViva> pareteAlLimite(const PareteViva& parete,
                                                       const safety::Margine& margine);

}  // namespace korven::live
