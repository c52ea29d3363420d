#pragma once

#include <memory>

#include "analysis/run_arrays.hpp"

namespace korven::test {

/// The arrays of a run as they are when its first stage begins, for tests that drive single steps
/// of the iteration.
inline std::unique_ptr<analysis::ArraysCorsa> corsaNuova(const project::DatiProgetto& dati,
                                                         int nSeg) {
    auto corsa = std::make_unique<analysis::ArraysCorsa>();
    analysis::preparaCorsa(dati, nSeg, *corsa);
    for (int i = 1; i <= corsa->nNodi; ++i) corsa->EJNodo[i] = dati.rigidezzaEJ;
    return corsa;
}

}  // namespace korven::test
