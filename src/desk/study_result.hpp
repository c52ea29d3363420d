#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "desk/project_document.hpp"
#include "desk/study_choice.hpp"
#include "document/blocks.hpp"
#include "document/page.hpp"

namespace korven::desk {

/// A study that was computed, to its end or until it was stopped.
struct StudioFatto {
    std::shared_ptr<const StudioPronto> studio;
    std::vector<double> valori;  ///< the rows one after the other
    studies::ContoStudio conto;

    [[nodiscard]] std::uint64_t numero() const { return valori.size() / studio->righe->quanti(); }
    [[nodiscard]] bool intero() const { return numero() == studio->varianti->numero(); }
    /// @param i  a variant, from 0
    [[nodiscard]] std::span<const double> riga(std::uint64_t i) const {
        const std::size_t quanti = studio->righe->quanti();
        return std::span(valori).subspan(i * quanti, quanti);
    }
};

/// Computes a study.
/// @param fili      threads, from 1; the caller's own waits
/// @param prosegui  asked about ten times a second, told how many variants are done: false stops
/// @return the variants that are done
[[nodiscard]] std::shared_ptr<const StudioFatto> esegui(
    const std::shared_ptr<const StudioPronto>& studio, int fili,
    const std::function<bool(std::uint64_t fatte)>& prosegui);

/// What the study comes to, a line a fact.
[[nodiscard]] std::vector<std::string> frasi(const StudioFatto& fatto);

/// What is to be known before any of its numbers is read: limits to which many values were set.
[[nodiscard]] std::vector<std::string> avvisi(const StudioFatto& fatto);

/// The bytes that `korven32c serie` writes of these variants.
[[nodiscard]] std::string csv(const StudioFatto& fatto);

/// The chart of a result on a sheet of its own, for the screen, and that sheet.
/// @param risultato  stable name; of one that the study has not the document is empty
[[nodiscard]] document::Documento documentoGrafico(const std::shared_ptr<const StudioFatto>& fatto,
                                                   const std::string& risultato);
[[nodiscard]] document::Formato formatoGrafico(const StudioFatto& fatto,
                                               const std::string& risultato);

/// The document: what varied, what it comes to, the chart of a result, the first variants.
[[nodiscard]] document::Documento documento(const std::shared_ptr<const StudioFatto>& fatto,
                                            const std::string& risultato,
                                            const ProgettoDetto& progetto);
/// The variants and what they come to as the sheets of a workbook.
[[nodiscard]] workbook::CartellaFogli cartella(const StudioFatto& fatto,
                                               const ProgettoDetto& progetto);

/// What taking a variant does to a project: "lunghezzaParatia=9.5", a field each.
/// @param i  from 0
[[nodiscard]] std::vector<std::string> assegnazioni(const StudioFatto& fatto, std::uint64_t i);

/// The same in words: "Lunghezza della paratia: 9.5 m", translated.
[[nodiscard]] std::vector<std::string> valoriDetti(const StudioFatto& fatto, std::uint64_t i);

/// A variant taken into a project, or why it can't be.
struct VariantePresa {
    project::DatiProgetto dati;
    std::string perche;  ///< lines; empty where it can be
    /// That it is no wall to be built, and why: it falls, its data are refused, an excavation
    /// reaches its toe, or it meets one of the criteria; lines, empty otherwise.
    std::string avviso;
};
/// @param dati  the project as it is now: but for the fields that vary that of the study
[[nodiscard]] VariantePresa prendi(const StudioFatto& fatto, std::uint64_t i,
                                   const project::DatiProgetto& dati);

/// True while a study is what would be computed now: of what is typed, and of the project but for
/// the fields that vary, which taking a variant changes.
[[nodiscard]] bool attuale(const StudioFatto& fatto, const StudioScritto& scritto,
                           const project::DatiProgetto& dati);

}  // namespace korven::desk
