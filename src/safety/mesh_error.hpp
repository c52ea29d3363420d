#pragma once

#include <array>
#include <optional>
#include <vector>

#include "equilibrium/extremes.hpp"
#include "project/project_data.hpp"
#include "results/section_uses.hpp"

namespace korven::safety {

/// Of values smaller than this on all meshes no error is told, in kN m, kN and mm. Reason: they are
/// shown with two decimals, which then hold a hundredth of them and less; an error of next to
/// nothing is none.
inline constexpr double minimoConErrore = 1;
/// Nor an order out of smaller differences, in kN m, kN and mm: two decimals hold a tenth of them,
/// and the order to 0.2.
inline constexpr double minimaConOrdine = 0.1;
/// Meshes that differ by less than this share of the value, and show no order, need none. Reason:
/// the number is known far better than the ground it was computed with.
inline constexpr double quotaSenzaOrdine = 0.01;

/// What three meshes say of the value that ever finer ones would give.
enum class Andamento {
    uguali,      ///< they have the same value
    vicine,      ///< the finer two differ by less than `minimaConOrdine`: no power is told
    avvicinano,  ///< from one side: the error falls with a power of the step
    alternano,   ///< closer and closer, but from both sides: no power is known
    strette,     ///< the step between the finer two is no smaller, but all three are within
                 ///< `quotaSenzaOrdine` of each other
    lontane,     ///< it is no smaller, and they are further apart: no value is in sight
};

/// How far a number of the envelopes is from that of a mesh four times as fine.
struct ErroreGrandezza {
    double valore = 0;  ///< with the project's mesh, in size
    double doppia = 0;  ///< with twice as many segments
    double fine = 0;    ///< with four times as many
    Andamento andamento = Andamento::uguali;
    /// |valore - fine| / fine; nothing where `fine` is 0, or all three are below `minimoConErrore`.
    std::optional<double> quota{};
    /// The power of the step with which the error falls,
    /// log2((valore - doppia) / (doppia - fine)); nothing unless they `avvicinano`.
    std::optional<double> ordine{};
};

/// What three meshes have to say of a check.
enum class EsitoMaglie {
    verificata,    ///< it holds with all of them
    fallita,       ///< it fails with all of them
    cambia,        ///< it holds with some
    nonAssestata,  ///< it holds with all, but what they go to is beyond the resistance
};

/// A check of the section with the largest numbers of each mesh, all stages together.
struct UsoMaglia {
    results::Verifica cosa = results::Verifica::momentoPositivo;
    /// With the project's mesh, twice and four times as many segments; nothing where no such
    /// moment acts.
    std::array<std::optional<results::Uso>, 3> maglie{};

    /// Of 1 with a mesh, counted from 0; 0 where no such moment acts.
    [[nodiscard]] double quota(std::size_t maglia) const;
    /// What the use goes to with ever finer meshes, of 1; nothing where that is not in sight
    /// (`limiteMaglie`).
    [[nodiscard]] std::optional<double> limite() const;
    [[nodiscard]] EsitoMaglie esito() const;
};

/// The largest numbers whose errors are told.
enum class Massimo { momentoPositivo, momentoNegativo, taglio, spostamento, tiro };
inline constexpr std::array tuttiIMassimi = {Massimo::momentoPositivo, Massimo::momentoNegativo,
                                             Massimo::taglio, Massimo::spostamento, Massimo::tiro};

struct ErrorePeggiore {
    Massimo di = Massimo::momentoPositivo;
    double quota = 0;
};

/// The error that the mesh leaves in the envelopes of all stages.
struct ErroreMaglia {
    ErroreGrandezza momentoPositivo;  ///< largest [t m]
    ErroreGrandezza momentoNegativo;  ///< smallest, in size [t m]
    ErroreGrandezza taglio;           ///< [t]
    ErroreGrandezza spostamento;      ///< [m]
    ErroreGrandezza tiro;             ///< [t]
    /// The checks that some mesh has a use of; none without a section.
    std::vector<UsoMaglia> usi{};

    [[nodiscard]] const ErroreGrandezza& di(Massimo massimo) const;
    /// The moment of the sign that is larger with the finest mesh.
    [[nodiscard]] const ErroreGrandezza& momento() const;
    /// The largest error of all, but for a moment that is small beside the one of the other sign:
    /// the one by which the mesh is judged, wherever that is done.
    [[nodiscard]] ErrorePeggiore peggiore() const;
    /// Share of the larger moment below which one is small. Reason: a section that bears the one
    /// has room for any error of the other.
    static constexpr double momentoMinore = 0.2;
};

/// The value that ever finer meshes go to, out of three whose step is halved each time:
///
///     c + (c - b) / (r - 1),  r = (b - a) / (c - b), but not below 2 nor above 4
///
/// that is, with an error that falls by the first power of the step at least, as a fixed toe and
/// levels between two nodes have it, and by the second at most, as the differences of the beam do.
/// @return nothing where they do not go one way
/// Source: Richardson's extrapolation (Richardson, Gaunt, The deferred approach to the limit, 1927,
/// not looked up).
[[nodiscard]] std::optional<double> limiteMaglie(double a, double b, double c);

/// Follows the wall at twice and four times as many segments as `nSeg`. Restraints are rigid there
/// (`RigiditaVincoli`).
/// @param estremi  of all stages at `nSeg`, of which the uses with this mesh are too
/// @return nothing if a stage of a finer mesh has no equilibrium
[[nodiscard]] std::optional<ErroreMaglia> erroreMaglia(const project::DatiProgetto& dati, int nSeg,
                                                       const equilibrium::Estremi& estremi);

}  // namespace korven::safety
