#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "desk/study_result.hpp"
#include "support/wall_files.hpp"

// A study of a wall as the desktop makes it.

#ifndef KORVEN_EXAMPLES
#define KORVEN_EXAMPLES "data/examples"  // the build names the folder; a header alone has none
#endif

namespace korven::desk::test {

inline project::DatiProgetto muro() {
    return korven::test::leggiMuro(KORVEN_EXAMPLES "/diaframma_due_ordini.kvd");
}

/// Its length from 16 to 20 m.
inline StudioScritto lunghezze() {
    StudioScritto s;
    s.variazioni = {{"lunghezzaParatia", 0, {"16", "20", "1"}}};
    return s;
}

inline std::shared_ptr<const StudioFatto> fatto(const StudioScritto& s) {
    const auto letto = leggi(muro(), 50, s);
    EXPECT_NE(letto.studio, nullptr) << letto.perche;
    return esegui(letto.studio, 2, [](std::uint64_t) { return true; });
}

}  // namespace korven::desk::test
