#pragma once

#include <cstdint>
#include <vector>

#include "project/field_table.hpp"
#include "studies/plan/correlation.hpp"
#include "studies/plan/law.hpp"
#include "studies/variants.hpp"

namespace korven::studies {

/// A field that varies by a law, in its shown unit.
struct CampoCasuale {
    project::CampoNominato campo;
    Legge legge;
};

/// How samples are drawn.
enum class Disegno {
    casuale,   ///< each for itself
    ipercubo,  ///< Latin hypercube: of n parts of equal probability each field takes each once
};

/// Samples: the value of each field is the one that its law does not exceed with a random
/// probability, of the variant's number, of the field's place among the fields and of the seed.
///
/// In a hypercube of n samples the probability lies in a part of its own of n equal parts, which a
/// keyed permutation gives: it needs no memory, but the samples change with n, and are not
/// independent, so that no confidence interval may be taken from them.
/// Source: McKay, Beckman & Conover (1979), A comparison of three methods for selecting values of
/// input variables in the analysis of output from a computer code.
class Campioni final : public Varianti {
 public:
    /// @param numero        at most 2^53
    /// @param correlazione  of the fields in their order; @pre none for a hypercube: asserted
    Campioni(const std::vector<CampoCasuale>& campi, std::uint64_t numero, std::uint64_t seme,
             Disegno disegno = Disegno::casuale, Correlazione correlazione = {});

    [[nodiscard]] std::span<const project::CampoNominato> campi() const override { return nomi_; }
    [[nodiscard]] std::uint64_t numero() const override { return numero_; }
    std::vector<Estremita> valori(std::uint64_t i, std::span<double> valori) const override;

    [[nodiscard]] const Legge& legge(std::size_t campo) const { return leggi_[campo]; }
    [[nodiscard]] std::uint64_t seme() const { return seme_; }
    /// True for samples from which a confidence interval may be taken.
    [[nodiscard]] bool indipendenti() const { return disegno_ == Disegno::casuale; }

 private:
    void probabilita(std::uint64_t i, std::span<double> p) const;

    std::vector<project::CampoNominato> nomi_;
    std::vector<Legge> leggi_;
    std::uint64_t numero_, seme_;
    Disegno disegno_;
    Correlazione correlazione_;
};

}  // namespace korven::studies
