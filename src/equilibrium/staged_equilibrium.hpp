#pragma once

#include <optional>
#include <vector>

#include "analysis/iteration_state.hpp"
#include "analysis/soil_state.hpp"
#include "equilibrium/newton.hpp"
#include "equilibrium/stage_setup.hpp"
#include "equilibrium/verdict.hpp"
#include "project/project_data.hpp"

namespace korven::equilibrium {

/// What is known of one stage.
enum class EsitoFase {
    equilibrio,    ///< it stands, and the displacements are found
    meccanismo,    ///< a rigid movement is not held
    nonDefinito,   ///< data whose equilibrium need not be certain, or not the only one
    nessunNumero,  ///< no number, or displacements beyond all use
};

/// The equilibrium of one stage, node 1 in element 0. Forces in t, moments in t m, pressures in
/// t/m2, per metre of wall; all positive towards the excavation, so that pressures of the excavated
/// side are negative.
struct FaseEquilibrio {
    int fase = 0;
    EsitoFase esito = EsitoFase::equilibrio;
    std::optional<analysis::RifiutoSuolo> rifiuto;  ///< the soil has no value: nothing else is set
    std::optional<Meccanismo> moto;                 ///< of a mechanism
    DatoInstabile instabile;                        ///< of `nonDefinito`
    EsitoNewton newton = EsitoNewton::trovato;      ///< of `nessunNumero`
    int passi = 0;                                  ///< steps of Newton's method

    std::vector<double> y;        ///< displacement [m]
    std::vector<double> momento;  ///< from the balance of the nodes
    std::vector<double> taglio;   ///< the same; of two values the larger in size
    /// Shear just above and just below the node: an anchor on it is between the two. The ends of
    /// the wall have one side each, and both values are its.
    std::vector<double> taglioSopra, taglioSotto;
    std::vector<double> monte, valle;        ///< pressure of each side
    std::vector<double> acqua;               ///< net water pressure
    double costante = 0;                     ///< constant pressure
    std::vector<analysis::StatiNodo> stati;  ///< of each side
    std::vector<double> tiri;                ///< of the anchors in place, tension positive
};

/// Follows a wall through its stages by the certain method. No file, no text, no state of the
/// program; objects in several threads do not know of each other.
class EquilibrioParete {
 public:
    /// @param dati  the project; its `rigidezzaEJ` is taken as given
    /// @param nSeg  segments of the wall, not fewer than 3: asserted. More than the specified run
    ///              can take are welcome
    EquilibrioParete(const project::DatiProgetto& dati, int nSeg,
                     RigiditaVincoli rigidita = RigiditaVincoli::comeLaCorsa);
    /// @param strati  the layers of the project with other strengths
    EquilibrioParete(const project::DatiProgetto& dati, int nSeg,
                     const analysis::SuoloStrati& strati,
                     RigiditaVincoli rigidita = RigiditaVincoli::comeLaCorsa);

    /// Computes stage k, once stage k - 1 is computed; after the first nothing is allocated.
    /// @return valid until the next stage is computed
    /// @throws base::ErroreIndice if the stage asks for more anchors than their table holds
    const FaseEquilibrio& calcola(int k);

    /// The stage as it was set up last.
    [[nodiscard]] const ProblemaFase& problema() const { return impostazione_.problema(); }

    /// Displacements of all nodes of the system [m]: with a fixed toe one more than the wall has.
    [[nodiscard]] const std::vector<double>& spostamenti() const { return y_; }

 private:
    void risultati();
    const FaseEquilibrio& senzaNumero();

    ImpostazioneFasi impostazione_;
    std::vector<double> y_;
    Newton newton_;
    FaseEquilibrio fase_;
};

/// All stages, up to the first that is no equilibrium.
[[nodiscard]] std::vector<FaseEquilibrio> calcolaEquilibrio(
    const project::DatiProgetto& dati, int nSeg,
    RigiditaVincoli rigidita = RigiditaVincoli::comeLaCorsa);

}  // namespace korven::equilibrium
