#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "equilibrium/extremes.hpp"
#include "project/project_data.hpp"
#include "results/report_numbers.hpp"
#include "results/section_uses.hpp"

// The one verdict on a check of the section: whoever tells one takes it from here.

namespace korven::safety {

struct Margine;

/// A check with the numbers of both calculations, at the project's mesh.
struct VerificaSezione {
    results::Verifica cosa = results::Verifica::momentoPositivo;
    std::optional<results::Uso> equilibrio;  ///< nothing where no such moment acts
    std::optional<results::Uso> relazione;   ///< the same; nothing without a report

    /// By the numbers of either.
    [[nodiscard]] bool fallita() const;
};

/// What is said of a check, from the lightest to the heaviest.
enum class Giudizio {
    verificata,    ///< it holds, with finer meshes too
    nonAssestata,  ///< it holds with all meshes, but what its use goes to is beyond the resistance
    cambia,   ///< it holds with this mesh and not with a finer one, or the wall falls with that one
    fallita,  ///< it fails with this mesh
};

/// The checks of a wall that stands; none without a section.
/// @param estremi    of all stages
/// @param relazione  nullptr without a report
[[nodiscard]] std::vector<VerificaSezione> verificheSezione(
    const project::DatiProgetto& dati, const equilibrium::Estremi& estremi,
    const results::NumeriRelazione* relazione);

/// @return nothing where there is no such check with any mesh, or the wall does not stand
[[nodiscard]] std::optional<Giudizio> giudizio(const Margine& margine, results::Verifica cosa);

struct VerificaGiudicata {
    results::Verifica cosa = results::Verifica::momentoPositivo;
    Giudizio giudizio = Giudizio::verificata;
};

/// All that there are.
[[nodiscard]] std::vector<VerificaGiudicata> giudizi(const Margine& margine);

/// What the use of a check goes to with ever finer meshes, of 1; nothing where that is not in
/// sight.
[[nodiscard]] std::optional<double> tendenza(const Margine& margine, results::Verifica cosa);

/// False for a wall that stands with this mesh alone.
[[nodiscard]] bool assestata(const Margine& margine);

/// "verificata", "NON verificata", "cambia con la maglia", "non a convergenza": an Italian key.
[[nodiscard]] std::string_view nome(Giudizio giudizio);
/// What other programs are told: "verificata", "fallita", "cambia", "non_assestata".
[[nodiscard]] std::string_view parola(Giudizio giudizio);

}  // namespace korven::safety
