#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "studies/summary/chosen_rows.hpp"
#include "studies/summary/failure_rule.hpp"
#include "studies/summary/interval.hpp"
#include "studies/summary/moments.hpp"

namespace korven::studies {

/// What the values of a row are: those of the fields, then the results.
struct FormaRiga {
    std::size_t campi = 0;
    std::size_t valori = 0;              ///< of the whole row
    std::vector<std::size_t> risultati;  ///< places of those that are described
    std::vector<std::size_t> usi;        ///< places of shares of a resistance
    /// Each of them makes a variant fail that stands.
    std::vector<Condizione> condizioni{};
};

/// What became of a variant.
enum class Sorte {
    sta,         ///< all its stages are in equilibrium
    senzaPiede,  ///< the same with an excavation that reaches or passes its toe
    cade,        ///< one of them is not
    rifiutata,   ///< its data are no wall that could be computed: it neither stands nor falls
};

/// True for both kinds of walls that stand.
[[nodiscard]] constexpr bool inEquilibrio(Sorte sorte) {
    return sorte == Sorte::sta || sorte == Sorte::senzaPiede;
}

struct EsitoRiga {
    Sorte sorte = Sorte::sta;
    int motivo = 0;  ///< why it does not stand: a number of the caller's
    int fase = 0;    ///< in which stage, 0: none
};

/// The shares of 1 below which quantiles are told.
inline constexpr std::array<double, 3> quoteQuantili{0.05, 0.5, 0.95};

/// How a value is spread among the variants that have it.
struct Statistica {
    std::size_t posto = 0;  ///< in a row
    Momenti momenti;        ///< of all of them
    /// Of those that are kept; nothing without any.
    std::optional<std::array<double, quoteQuantili.size()>> quantili;
    /// Rank correlation with each field, of the variants that are kept and have the value.
    std::vector<std::optional<double>> ranghi;
};

/// What the rows of a study come to. Takes them one by one as they are printed, so that rows that
/// are read again give the same; memory does not grow with their number.
class Riassunto {
 public:
    /// @param seme  of the choice of the rows that are kept
    Riassunto(FormaRiga forma, std::uint64_t seme,
              std::size_t capienza = RigheScelte::capienzaIntera);

    /// Takes a row; a value that is no number is none.
    /// @param i  number of the variant, each once, in ascending order
    void prendi(std::uint64_t i, std::span<const double> riga, const EsitoRiga& esito);

    [[nodiscard]] std::uint64_t numero() const { return numero_; }
    [[nodiscard]] std::uint64_t stanno() const { return stanno_; }
    /// How many are no wall: their data were refused. They count nowhere below.
    [[nodiscard]] std::uint64_t rifiutate() const { return rifiutate_; }
    /// How many are walls, which stand or fall.
    [[nodiscard]] std::uint64_t calcolate() const { return numero_ - rifiutate_; }
    /// How many of the walls do not stand, or meet one of the conditions.
    [[nodiscard]] std::uint64_t fallite() const { return fallite_; }
    /// How many walls do not stand for each reason and stage.
    [[nodiscard]] const std::map<std::pair<int, int>, std::uint64_t>& cadute() const {
        return cadute_;
    }
    /// How many stand and meet each of the conditions.
    [[nodiscard]] const std::vector<std::uint64_t>& oltre() const { return oltre_; }
    /// Of how many each share is the largest, in the order of `FormaRiga::usi`; of equal ones the
    /// first.
    [[nodiscard]] const std::vector<std::uint64_t>& governano() const { return governano_; }
    /// How many have a share beyond 1: they stand, but not with this resistance.
    [[nodiscard]] std::uint64_t superano() const { return superano_; }
    /// How many stand with an excavation that reaches or passes their toe.
    [[nodiscard]] std::uint64_t piediScavati() const { return piediScavati_; }
    /// Share of the walls that fail, if they are independent samples; 0 without a wall.
    [[nodiscard]] double probabilita() const;
    [[nodiscard]] Intervallo intervallo() const { return intervalloWilson(fallite_, calcolate()); }

    [[nodiscard]] std::size_t tenute() const { return scelte_.numero(); }
    /// Of the fields, then of the results that are described. Takes a second for many rows.
    [[nodiscard]] std::vector<Statistica> statistiche() const;
    /// The kept values of a place of the row, in the order of the variants; no number for none.
    [[nodiscard]] std::vector<double> tenuti(std::size_t posto) const;
    /// What became of each of the kept rows, in the same order.
    [[nodiscard]] std::vector<Sorte> sorti() const;

 private:
    [[nodiscard]] std::size_t tenuto(std::size_t posto) const;
    [[nodiscard]] bool fallisce(std::span<const double> riga, const EsitoRiga& esito);

    FormaRiga forma_;
    std::vector<std::size_t> posti_;  ///< of a row, that are kept
    std::uint64_t numero_ = 0, stanno_ = 0, rifiutate_ = 0, fallite_ = 0, superano_ = 0,
                  piediScavati_ = 0;
    std::map<std::pair<int, int>, std::uint64_t> cadute_;
    std::vector<std::uint64_t> oltre_, governano_;
    std::vector<Momenti> momenti_;
    RigheScelte scelte_;
    std::vector<double> riga_;  ///< of one what is kept: its values, last what became of it
};

}  // namespace korven::studies
