#pragma once

#include <map>
#include <string>
#include <vector>

#include "verification/check.hpp"

namespace tools {

/// docs/verification.md: what the verification is and how a case is written, then of each group its
/// theory, its figure, a table of its cases and where each of them comes from. In the language in
/// force, which is English for the page that is delivered.
std::string verificationPage(const korven::verification::EsitoVerifica& outcome);

/// The figures of the page: the name of each file, and SVG.
std::map<std::string, std::string> verificationFigures(
    const std::vector<korven::verification::Gruppo>& groups);

}  // namespace tools
