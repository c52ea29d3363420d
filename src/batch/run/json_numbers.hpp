#pragma once

#include "project/program_numbers.hpp"

// The numbers of the JSON are those of all that other programs read.

namespace korven::batch {

using project::arrotondato;
using project::kN;
using project::kNm;
using project::spostamento;

}  // namespace korven::batch
