#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <string_view>

#include "support/temporary_folder.hpp"

#ifndef KORVEN_GOLDEN_FOLDER
#define KORVEN_GOLDEN_FOLDER "tests/golden"  // the build names the folder; a header alone has none
#endif

namespace korven::test {

/// A golden file without its header: the lines that begin with '#' at its top say how its content
/// was worked out.
inline std::string senzaTestata(std::string_view testo) {
    while (testo.starts_with('#')) {
        const auto fine = testo.find('\n');
        testo.remove_prefix(fine == std::string_view::npos ? testo.size() : fine + 1);
    }
    return std::string(testo);
}

/// Compares a text with the golden file `nome` below tests/golden. With KORVEN_GOLDEN=write
/// in the environment the file is written instead, its header kept, and is to be read before
/// it is committed.
inline void confrontaConGolden(std::string_view nome, const std::string& testo) {
    const std::string percorso = std::string(KORVEN_GOLDEN_FOLDER) + '/' + std::string(nome);
    const std::string atteso = contenuto(percorso);
    const std::string corpo = senzaTestata(atteso);
    if (const char* modo = std::getenv("KORVEN_GOLDEN");
        modo != nullptr && std::string_view(modo) == "write") {
        metti(percorso, atteso.substr(0, atteso.size() - corpo.size()) + testo);
        return;
    }
    EXPECT_FALSE(corpo.empty()) << percorso << " is missing or empty";
    EXPECT_EQ(testo, corpo) << percorso;
}

}  // namespace korven::test
