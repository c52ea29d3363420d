#pragma once

#include <algorithm>
#include <barrier>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "base/text_lines.hpp"
#include "project/project_file.hpp"
#include "support/random_walls.hpp"

namespace korven::test {

struct MuroConMaglia {
    project::DatiProgetto dati;
    int nSeg = 0;
};

inline std::vector<std::string> esempi() {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(KORVEN_EXAMPLES))
        if (voce.path().extension() == ".kvd") nomi.push_back(voce.path().string());
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

/// The delivered examples and random walls, each with a mesh of its own.
inline std::vector<MuroConMaglia> tantiMuri() {
    std::vector<MuroConMaglia> tutti;
    for (const auto& nome : esempi()) {
        auto file = base::LettoreRighe::apri(nome);
        MuroConMaglia& muro = tutti.emplace_back();
        project::leggiDati(file, muro.dati);
    }
    MuriCasuali casuali(7);
    for (int i = 0; i < 16; ++i) tutti.push_back({casuali.prossimo(), 0});
    for (std::size_t i = 0; i < tutti.size(); ++i)
        tutti[i].nSeg = 12 + static_cast<int>(i) * 5 % 23;
    return tutti;
}

inline constexpr std::size_t quantiFili = 4;

/// Does something with each of some walls in each of four threads, which start together and begin
/// at different walls.
/// @param lavoro   called with the number of a thread, in it: what to do there with a wall's number
/// @param intanto  goes on meanwhile in the calling thread
template <class Lavoro, class Intanto>
void inQuattroFili(std::size_t quanti, const Lavoro& lavoro, const Intanto& intanto) {
    std::barrier partenza(quantiFili + 1);
    std::vector<std::jthread> fili;
    for (std::size_t f = 0; f < quantiFili; ++f)
        fili.emplace_back([&, f] {
            auto mio = lavoro(f);
            partenza.arrive_and_wait();
            for (std::size_t i = 0; i < quanti; ++i) mio((i + f * quanti / quantiFili) % quanti);
        });
    partenza.arrive_and_wait();
    intanto();
    fili.clear();  // waits for them
}

}  // namespace korven::test
