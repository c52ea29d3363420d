#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "studies/dug_toe.hpp"
#include "studies/runner.hpp"
#include "studies/summary/summary.hpp"
#include "studies/summary/summary_text.hpp"

namespace korven::studies {

/// What is asked of the sum of a study, beside its rows.
struct DomandaConto {
    std::uint64_t seme = 1;     ///< of the choice of the rows that are kept
    bool campioni = false;      ///< the variants are random
    bool indipendenti = false;  ///< and have no part in each other
    /// What makes a variant fail that stands, as typed.
    std::vector<std::string> condizioni{};
};

/// What the rows of a study come to, for its end. Takes them as they are printed, so that those of
/// an interrupted study that are read again give the same.
class ContoStudio {
 public:
    /// @param dati  the project of the study
    /// @pre the conditions can be read: asserted
    ContoStudio(const project::DatiProgetto& dati, const RigheStudio& righe, DomandaConto domanda);

    /// @param i  the variant, from 0, in ascending order
    void riga(std::uint64_t i, std::span<const double> valori);
    /// The same of a row that was read from a file, which has the written columns alone.
    void riletta(std::uint64_t i, std::span<const double> valori);
    /// Values of rows that were set to the end of their field's range.
    void limitati(const ContoEstremita& quanti);
    void controllate(const std::vector<Controllata>& altre);

    /// True if a variant has other numbers both ways.
    [[nodiscard]] bool diverse() const { return diverse_ > 0; }
    /// What is told at the end, a line a fact, in words and shown units, translated; of samples
    /// with tables for a font of one width.
    [[nodiscard]] std::vector<std::string> righe() const;
    /// Of limits to which more than a hundredth of the values of a field were set a line each: the
    /// study is not of the law that was typed. They are the first of the facts.
    [[nodiscard]] std::vector<std::string> avvisi() const;
    /// The facts alone.
    [[nodiscard]] std::vector<std::string> fatti() const;
    /// What is told of the variants that were computed both ways, with the first of those that
    /// differ; empty if there were none.
    [[nodiscard]] std::vector<std::string> righeControllo() const;

    [[nodiscard]] const Riassunto& riassunto() const { return riassunto_; }
    [[nodiscard]] const FormaRiga& forma() const { return forma_; }

 private:
    [[nodiscard]] EsitoRiga esito(std::span<const double> valori);
    [[nodiscard]] std::vector<std::string> conteggi() const;
    [[nodiscard]] bool molti(std::uint64_t limitati) const;
    [[nodiscard]] std::string detto(const Estremita& limite, std::uint64_t quanti) const;
    [[nodiscard]] std::vector<std::string> pochiLimitati() const;
    [[nodiscard]] std::vector<std::string> senzaConto() const;
    [[nodiscard]] NomiRiassunto nomi() const;

    DomandaConto domanda_;
    RigheStudio righe_;
    PiedeScavato piedeScavato_;
    std::size_t causa_;   ///< places in a row
    std::size_t caduta_;  ///< that of no column where there is none
    FormaRiga forma_;
    Riassunto riassunto_;
    ContoEstremita limitati_;
    std::uint64_t rilette_ = 0;  ///< rows without the columns that are not written
    std::uint64_t controllate_ = 0, senzaRiposo_ = 0, incerte_ = 0, diverse_ = 0;
    std::vector<Controllata> prime_;               ///< of those that differ
    std::vector<std::uint64_t> primeSenzaRiposo_;  ///< the first variants without rest
};

}  // namespace korven::studies
