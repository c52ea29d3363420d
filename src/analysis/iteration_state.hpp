#pragma once

#include <span>

#include "analysis/node_vector.hpp"

namespace korven::analysis {

/// State of one side of a node in one iteration.
enum class StatoLato : char { elastico, attivo, passivo };

struct StatiNodo {
    StatoLato monte = StatoLato::elastico;
    StatoLato valle = StatoLato::elastico;
    bool operator==(const StatiNodo&) const = default;
};

/// An anchor in place: its node, and whether it acted in the iteration.
struct TiranteInOpera {
    int nodo = 0;
    bool agisce = false;
};

/// What is known after one solve. Lengths in m, moments in t m; the vectors are counted from 1.
struct StatoIterazione {
    int fase = 0;
    int iterazione = 0;
    double yMax = 0;  ///< largest absolute displacement
    double mMax = 0;  ///< largest absolute moment
    bool convergente = false;
    int nNodi = 0;
    double passoNodi = 0;
    double profFase = 0;
    const VettoreNodi* yNodo = nullptr;
    const VettoreNodi* momentoNodo = nullptr;
    std::span<const StatiNodo> stati;         ///< element 0 is node 1
    std::span<const TiranteInOpera> tiranti;  ///< element 0 is anchor 1
};

}  // namespace korven::analysis
