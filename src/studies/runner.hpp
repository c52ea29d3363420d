#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "project/project_data.hpp"
#include "studies/both_ways.hpp"
#include "studies/row_text.hpp"
#include "studies/variant.hpp"
#include "studies/variants.hpp"

namespace korven::studies {

/// Variants from one up to another that is no more among them, counted from 0.
struct Tratto {
    std::uint64_t da = 0, a = 0;

    [[nodiscard]] std::uint64_t numero() const { return a - da; }
    bool operator==(const Tratto&) const = default;
};

/// The i-th of n parts of all variants, i from 1: parts follow one another, are all of them
/// together, and differ in length by one at most.
/// @pre 1 <= i <= n: asserted
[[nodiscard]] Tratto parte(std::uint64_t numero, std::uint64_t i, std::uint64_t n);

/// A study as its threads share it; nothing in it changes while they run.
struct Studio {
    const Varianti& varianti;
    const project::DatiProgetto& dati;
    Domanda domanda;
    const RigheStudio& righe;
    std::uint64_t controllo = 0;  ///< every so many variants both ways; 0: none
};

/// A variant that was computed both ways.
struct Controllata {
    std::uint64_t variante;  ///< from 0
    EsitoControllo esito;
};

/// Rows of a study that follow one another.
struct Righe {
    std::uint64_t primo = 0;  ///< their first variant, from 0
    std::uint64_t numero = 0;
    std::string byte;            ///< as the file has them
    std::vector<double> valori;  ///< the same rows one after the other, as they are printed
    ContoEstremita limitati{};   ///< values that were set to the end of their range
    std::vector<Controllata> controllate;
};

/// Who takes the rows, in the thread that runs the study.
class UscitaStudio {
 public:
    virtual ~UscitaStudio() = default;
    /// Takes the next rows, in the order of the variants. What it throws ends the study.
    virtual void prendi(const Righe& righe) = 0;
    /// Asked about ten times a second, and after each `prendi`: false ends the study.
    /// @param fatte  rows taken so far
    [[nodiscard]] virtual bool prosegui(std::uint64_t fatte) = 0;
};

/// Computes rows of a study with several threads. The rows depend on the study alone: any number of
/// threads, and any way to part the variants, gives the same.
///
/// Blocks of rows become bytes in the threads that compute them and are handed on in order; those
/// that wait for an earlier one are few, however many variants there are. Told to end, a thread
/// stops after the variant in hand, and what precedes the first gap is still handed on.
/// @param fili  threads, from 1: asserted; the caller's own waits and writes
/// @return rows that `uscita` has taken: all, unless it ended the study
/// @throws what a thread or `uscita` threw, once all threads have ended
std::uint64_t esegui(const Studio& studio, Tratto tratto, int fili, UscitaStudio& uscita);

/// The rows of a part of a study, computed in this thread: what a file holds of it is looked at
/// with these.
[[nodiscard]] Righe calcolaRighe(const Studio& studio, Tratto tratto);

}  // namespace korven::studies
