#pragma once

#include <cstdint>
#include <vector>

#include "project/field_table.hpp"
#include "studies/plan/fault.hpp"
#include "studies/variants.hpp"

namespace korven::studies {

/// Values of a field at equal distances, in its shown unit. Each is the decimal number that it
/// means, with as many decimals as its start and its step have: 8.3, not 8 + 3 * 0.1.
class Asse {
 public:
    /// The end is one of the values where it is within 1e-9 steps of one.
    /// @param passo  other than 0, leads from `da` to `a`; 1e15 values at most: asserted
    Asse(project::CampoNominato campo, double da, double a, double passo);

    [[nodiscard]] const project::CampoNominato& campo() const { return campo_; }
    [[nodiscard]] std::uint64_t numero() const { return numero_; }
    [[nodiscard]] double valore(std::uint64_t k) const;

    /// How many values there are, for a number that may be too large; below 1 for a step that
    /// leads away.
    [[nodiscard]] static double quanti(double da, double a, double passo);

 private:
    project::CampoNominato campo_;
    double da_, passo_;
    int decimali_;
    std::uint64_t numero_;
};

/// All values of some fields, each with each: the last field varies fastest.
class Griglia final : public Varianti {
 public:
    /// @return a field twice, or more than `massimoVarianti`
    [[nodiscard]] static Letto<Griglia> di(std::vector<Asse> assi);

    [[nodiscard]] std::span<const project::CampoNominato> campi() const override { return campi_; }
    [[nodiscard]] std::uint64_t numero() const override { return numero_; }
    std::vector<Estremita> valori(std::uint64_t i, std::span<double> valori) const override;

    [[nodiscard]] const std::vector<Asse>& assi() const { return assi_; }

 private:
    explicit Griglia(std::vector<Asse> assi);

    std::vector<Asse> assi_;
    std::vector<project::CampoNominato> campi_;
    std::uint64_t numero_ = 1;
};

}  // namespace korven::studies
