#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "project/field_table.hpp"

namespace korven::studies {

/// An end of a field's range to which a value beyond it was set.
struct Estremita {
    std::size_t campo;  ///< place among the fields that vary
    bool massimo;       ///< the upper end; else the lower

    auto operator<=>(const Estremita&) const = default;
};

/// How many values were set to each of them.
using ContoEstremita = std::map<Estremita, std::uint64_t>;

/// The variants of a study: values of some fields of a project, in the units that people see.
///
/// A variant is named by its number alone, so that any thread, and any machine, computes any of
/// them without knowing the others.
class Varianti {
 public:
    virtual ~Varianti() = default;

    /// The fields that differ from variant to variant, each once; `campo` is never nullptr.
    [[nodiscard]] virtual std::span<const project::CampoNominato> campi() const = 0;

    /// How many variants there are.
    [[nodiscard]] virtual std::uint64_t numero() const = 0;

    /// The values of one variant, in the order of the fields, in their shown units. They depend on
    /// its number, and on the seed of a sample, alone; may be called from several threads at once.
    ///
    /// @param i       from 0, below `numero()`
    /// @param valori  as many as there are fields; all are written
    /// @return those of them that were beyond the range of their field, and are at its end now
    virtual std::vector<Estremita> valori(std::uint64_t i, std::span<double> valori) const = 0;
};

}  // namespace korven::studies
