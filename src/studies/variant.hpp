#pragma once

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "analysis/run_observer.hpp"
#include "analysis/watch/run_end.hpp"
#include "project/field_table.hpp"
#include "project/project_data.hpp"
#include "structure/limit_search.hpp"
#include "studies/result.hpp"

namespace korven::studies {

/// Which of the two ways to an equilibrium a study takes.
enum class Soluzione {
    equilibrio,  ///< the equilibrium solution
    iterazione,  ///< the specified run: displacements, moments, shears and forces of the report
};

/// What is asked of every variant.
struct Domanda {
    int nSeg = 0;              ///< segments of the wall
    bool ricalcolaEJ = false;  ///< a stiffness that its section tells differently is the section's
    Soluzione soluzione = Soluzione::equilibrio;
    bool riduzione = false;  ///< the strength reductions too
    bool lunghezza = false;  ///< the search for the shortest wall too
};

/// Computes variants of a project one after the other, in memory: each as if the project had been
/// changed, saved and opened again, and then followed through its stages. No file, no text, no
/// state of the program; objects in several threads do not know of each other.
class CalcoloVariante {
 public:
    /// @param dati   the project; a method of the pressures that no file keeps stays with it
    /// @param campi  the fields that vary; rows of tables that a variant makes longer are welcome
    CalcoloVariante(const project::DatiProgetto& dati,
                    std::span<const project::CampoNominato> campi, const Domanda& domanda);

    /// Computes one variant.
    /// @param valori       of the fields, in shown units
    /// @param osservatore  follows the specified run, and may stop it; `causa` is then `fermato`
    /// @return valid until the next one is computed. Data that no run would take are a verdict of
    ///         the variant, never an exception
    const RisultatoVariante& calcola(std::span<const double> valori,
                                     analysis::OsservatoreCorsa& osservatore);

    /// True if the last variant was followed through its stages: no check refused its data.
    [[nodiscard]] bool seguita() const { return risultato_.causa != safety::Causa::rifiutato; }
    /// The project of the last variant, with the bending stiffness of its run.
    [[nodiscard]] const project::DatiProgetto& dati() const { return dati_; }
    /// The values of the last variant as its file keeps them, in shown units.
    [[nodiscard]] std::span<const double> scritti() const { return scritti_; }

 private:
    [[nodiscard]] Motivo scrivi(std::span<const double> valori);
    [[nodiscard]] Motivo scrivi(const project::CampoNominato& nominato, double valore,
                                double& scritto);
    [[nodiscard]] Motivo rifiuto() const;
    void prendiSezione();
    void calcolaFasi(analysis::OsservatoreCorsa& osservatore);
    void equilibrio();
    void iterazione(analysis::OsservatoreCorsa& osservatore);
    void senzaRiposo(const analysis::FineCorsa& fine);
    void margine();
    void verifiche();

    const project::DatiProgetto base_;
    const std::vector<project::CampoNominato> campi_;
    const Domanda domanda_;
    project::DatiProgetto dati_;
    std::vector<double> scritti_;
    RisultatoVariante risultato_;

    // Of the section, which takes ten times as long as a stage and seldom varies.
    struct Resistenze {
        project::Sezione sezione;
        double sforzoNormale = 0;
        std::optional<double> EJ;  ///< that it offers
        structure::MomentiResistenti MRd;
    };
    std::optional<Resistenze> resistenze_;
};

}  // namespace korven::studies
