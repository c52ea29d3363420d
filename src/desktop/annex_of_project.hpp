#pragma once

#include "document/blocks.hpp"

namespace korven::desktop {

/// The annex of the open project as it is now, saved or not, with today's date. Its command makes
/// the same of the file when that has been saved.
[[nodiscard]] document::Documento allegatoDelProgetto();

}  // namespace korven::desktop
