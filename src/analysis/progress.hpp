#pragma once

#include <chrono>
#include <span>
#include <string>
#include <string_view>

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

/// Shows the progress of a run. The run has one thread: `iterazione` is also the one chance to
/// serve waiting events and to set `stopCalcolo`.
class Avanzamento {
 public:
    virtual ~Avanzamento() = default;
    /// The stages are about to begin.
    virtual void apri() = 0;
    /// A solve has finished.
    virtual void iterazione(const StatoIterazione& stato) = 0;
    /// The run has left its stages, whatever the outcome.
    virtual void chiudi() = 0;

    /// Before the stages, while another run holds the result file: called again and again, each
    /// time with the words that tell it. Lets `pausaAttesa` pass and is the one chance to serve
    /// waiting events and to set `stopCalcolo`, which ends the waiting. By default it just sleeps.
    virtual void attendi(std::string_view detto);
    /// The waiting is over, whatever its outcome.
    virtual void fineAttesa() {}

    static constexpr std::chrono::milliseconds pausaAttesa{50};
};

/// The line that tells the state of a run: "fase=2   iter.=5   Ymax=0.0123   Mmax=45.6", with Ymax
/// in metres and Mmax in kN m.
[[nodiscard]] std::string didascaliaAvanzamento(int fase, int iterazione, double yMax, double mMax);

}  // namespace korven::analysis
