#pragma once

#include "factors/factor_set.hpp"
#include "factors/load_factors.hpp"

namespace korven::factors {

/// A code whose combinations are asked for, and what the loads of the project are taken for.
struct NormaChiesta {
    Norma norma;
    NaturaCarichi natura;
};

}  // namespace korven::factors
