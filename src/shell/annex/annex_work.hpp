#pragma once

#include <atomic>
#include <functional>
#include <optional>

#include "document/blocks.hpp"
#include "factors/requested_code.hpp"

namespace korven::shell {

// An annex is made in three steps, so that the forms need not wait for its numbers.

/// Sets the document down, in the thread of the forms: its drawings and texts belong to them.
using ComposizioneAllegato = std::function<document::Documento()>;

/// Computes its numbers, in any thread.
/// @param fermata  true as soon as nobody waits for them any more
using CalcoloAllegato = std::function<ComposizioneAllegato(const std::atomic<bool>& fermata)>;

/// Takes the open project as it is now, in the thread of the forms.
/// @param norma  a code that the annex has a chapter on; nothing: none
/// @throws base::ErroreFile
using InizioAllegato =
    std::function<CalcoloAllegato(const std::optional<factors::NormaChiesta>& norma)>;

}  // namespace korven::shell
