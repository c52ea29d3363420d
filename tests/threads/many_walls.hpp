#pragma once

#include <barrier>
#include <string>
#include <thread>
#include <vector>

#include "support/random_walls.hpp"
#include "support/wall_files.hpp"

namespace korven::test {

struct MuroConMaglia {
    project::DatiProgetto dati;
    int nSeg = 0;
};

/// The walls of a folder and random ones, each with a mesh of its own.
inline std::vector<MuroConMaglia> tantiMuri(const std::string& cartella) {
    std::vector<MuroConMaglia> tutti;
    for (const auto& nome : muriIn(cartella)) tutti.push_back({leggiMuro(nome), 0});
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
