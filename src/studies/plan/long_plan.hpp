#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "base/open_file.hpp"
#include "project/project_data.hpp"
#include "studies/plan/fault.hpp"
#include "studies/plan/plan_rows.hpp"
#include "studies/variants.hpp"

namespace korven::studies {

struct PianoLungoLetto;

/// Variants that a file names one by one, however many: of the file only some pieces are in memory,
/// those that were read last. A variant whose piece is not there has it read once more.
class PianoLungo final : public Varianti {
 public:
    /// Reads a plan from end to end, once, for its faults (`leggiPiano` says what a plan is).
    /// @param dati   has the rows of the tables
    /// @param pezzo  bytes read at a time, and some more up to the end of a row
    /// @throws base::ErroreFile for a file that can't be read
    [[nodiscard]] static PianoLungoLetto leggi(const project::DatiProgetto& dati,
                                               const std::string& file,
                                               std::size_t pezzo = byteDiUnPezzo);

    [[nodiscard]] std::span<const project::CampoNominato> campi() const override {
        return righe_.campi();
    }
    [[nodiscard]] std::uint64_t numero() const override { return numero_; }
    /// @throws base::ErroreFile where the file no longer holds what it held
    std::vector<Estremita> valori(std::uint64_t i, std::span<double> valori) const override;

 private:
    static constexpr std::size_t byteDiUnPezzo = std::size_t{1} << 18;
    using Valori = std::shared_ptr<const std::vector<double>>;

    // Whole rows of the file.
    struct Pezzo {
        std::uint64_t da;
        std::size_t byte;
        long riga;             // of the file, from 1, that it begins with
        std::uint64_t primo;   // variant in it
        std::uint64_t numero;  // of variants
        bool testata;          // the names of the fields come first
    };

    PianoLungo(project::DatiProgetto dati, const std::string& file)
        : dati_(std::move(dati)), file_(file), righe_(dati_) {}
    void percorri(std::size_t pezzo);
    [[nodiscard]] Valori valoriDi(std::size_t pezzo) const;
    [[nodiscard]] Valori rileggi(const Pezzo& pezzo) const;

    const project::DatiProgetto dati_;
    const base::FileAperto file_;
    RighePiano righe_;          ///< as the first reading has left it
    std::vector<Pezzo> pezzi_;  ///< those with variants
    std::uint64_t numero_ = 0;

    mutable std::mutex mutex_;
    mutable std::vector<std::pair<std::size_t, Valori>> ultimi_;  ///< pieces in memory, by place
};

/// A plan, or all that is wrong with its file, as in `PianoLetto`.
struct PianoLungoLetto {
    std::unique_ptr<PianoLungo> piano;
    std::vector<DifettoPiano> difetti;
};

}  // namespace korven::studies
