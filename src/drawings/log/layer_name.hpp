#pragma once

#include <string_view>

#include "drawings/log/layer_description.hpp"

namespace korven::drawings {

/// The description of a layer as everything but the log shows it: a first word that is no graphic
/// code (`haCodice`) belongs to the name, "Limo argilloso" as much as "103C3 Limo argilloso". The
/// log takes the first word off whatever it is; a table or a picture that did so would call a
/// clayey silt a clay. Without a code there is no hatch, the colour is 1, and a line at the foot.
[[nodiscard]] DescrizioneStrato descrizioneMostrata(std::string_view descrStrato);

}  // namespace korven::drawings
