#pragma once

#include "shell/annex/annex_work.hpp"

namespace korven::desktop {

/// The annex of the open project as it is now, saved or not, with today's date: of the numbers that
/// a file keeps. Its command makes the same of the file, byte by byte; where the file on the disk
/// is not this project the annex says so.
/// @param norma  a code that it has a chapter on
[[nodiscard]] shell::CalcoloAllegato allegatoDelProgetto(
    const std::optional<factors::NormaChiesta>& norma = {});

}  // namespace korven::desktop
