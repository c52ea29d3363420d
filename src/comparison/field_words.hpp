#pragma once

#include <vector>

#include "comparison/comparison.hpp"
#include "project/differences.hpp"

namespace korven::comparison {

/// A field that differs, in words: a layer has its name behind its number, "angolo di attrito dello
/// strato 2 (Sabbia limosa) [°]", and its description is the text that the log shows.
[[nodiscard]] project::Differenza paroleCampo(const Confronto& confronto,
                                              const project::CampoDiverso& campo);

/// The fields that differ as people read them: those of one layer, anchor or stage together.
[[nodiscard]] std::vector<project::CampoDiverso> perRighe(std::vector<project::CampoDiverso> campi);

}  // namespace korven::comparison
