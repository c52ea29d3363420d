#pragma once

#include <atomic>
#include <functional>

#include "document/blocks.hpp"

namespace korven::shell {

// An annex is made in three steps, so that the forms need not wait for its numbers.

/// Sets the document down, in the thread of the forms: its drawings and texts belong to them.
using ComposizioneAllegato = std::function<document::Documento()>;

/// Computes its numbers, in any thread.
/// @param fermata  true as soon as nobody waits for them any more
using CalcoloAllegato = std::function<ComposizioneAllegato(const std::atomic<bool>& fermata)>;

/// Takes the open project as it is now, in the thread of the forms.
/// @throws base::ErroreFile
using InizioAllegato = std::function<CalcoloAllegato()>;

}  // namespace korven::shell
