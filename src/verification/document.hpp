#pragma once

#include <string>

#include "document/blocks.hpp"
#include "verification/check.hpp"

namespace korven::verification {

/// The verification as a document: what came of all cases, then of each group a figure and a table,
/// and of each case where its values come from, how closely they must be met and why.
/// @param data  on which it was made, "2026-11-22"
[[nodiscard]] document::Documento documento(const EsitoVerifica& esito, const std::string& data);

}  // namespace korven::verification
