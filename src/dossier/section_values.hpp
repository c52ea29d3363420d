#pragma once

#include <optional>
#include <vector>

#include "live/section_checks.hpp"
#include "structure/axial_resistance.hpp"
#include "structure/shear_check.hpp"

// What is put into the formulas of the section's checks, for whoever follows them with a pencil.
// Units as in the formulas: N, mm, N/mm2; strains positive in tension; y from the downhill face.

namespace korven::dossier {

/// A force in the section and where it acts; 0 at 0 where there is none.
struct Interna {
    double forza = 0;  ///< in size [N]
    double y = 0;      ///< [mm]
};

/// What the strain that ends the search is.
enum class LimiteSezione {
    nessuno,        ///< no equilibrium under this axial force: no resistance
    accorciamento,  ///< 0.0035 of shortening at a face
    allungamento,   ///< 0.01 of elongation at the steel
};

/// A direction of bending under an axial force without the factor of actions.
struct ConAltroSforzo {
    double volte = 0;  ///< what the axial force of the project is multiplied by
    double Nd = 0;     ///< [N]
    double MRd = 0;    ///< as in `LatoFlessione` [N mm]
    std::optional<double> uso;
};

/// One metre of wall at its resistance in one direction of bending. The internal forces are those
/// of the strips: compression less tension is Nd, and with Nd at its place `yNd` they make up MRd.
struct LatoFlessione {
    /// [N mm]; 0: no resistance, and nothing below is set but Md. Below 0 where the axial force
    /// alone bends the section the other way: nothing is carried this way.
    double MRd = 0;
    double chi = 0;           ///< curvature, in size [1/mm]
    double epsTeso = 0;       ///< strain of the face that is stretched more
    double epsCompresso = 0;  ///< of the other face
    double x = 0;  ///< depth of what is shortened, from the face that is shortened; 0 to H [mm]
    Interna calcestruzzo;  ///< compression of the concrete
    Interna acciaioCompresso, acciaioTeso;
    LimiteSezione limite = LimiteSezione::nessuno;
    double Md = 0;  ///< design moment of the wall that bends it this way, in size [N mm]
    /// Md over MRd; nothing without a resistance or where no such moment acts.
    std::optional<double> uso;
    bool verificato = false;
    /// With the axial force as the project has it, and with none. Empty where neither leaves less
    /// than `MRd`: elsewhere the force helps, and its factor of actions is not on the safe side.
    std::vector<ConAltroSforzo> altri;

    /// The largest share of the resistance, under the design axial force or another.
    [[nodiscard]] std::optional<double> usoMaggiore() const;
};

struct ValoriFlessione {
    double fck = 0, fcd = 0;  ///< concrete; 0 for a sheet pile, which has none
    double fyk = 0, fyd = 0, modEacciaio = 0;
    double fsCalcestruzzo = 0, fsAcciaio = 0, fsAzioni = 0;
    double H = 0;              ///< depth [mm]
    double Ac = 0, As = 0;     ///< areas of one metre of wall [mm2]
    double yNd = 0;            ///< where the axial force acts: centroid of both areas [mm]
    double sforzoNormale = 0;  ///< as the project has it [t]
    double Nd = 0;             ///< design axial force, positive in compression [N]
    structure::ResistenzeAssiali assiali{};
    /// Against a positive moment of the wall, which stretches the excavated (downhill) side, and
    /// against a negative one.
    LatoFlessione positivo, negativo;
};

struct ValoriTaglio {
    structure::ValoriTaglio palo;  ///< of one pile
    double fck = 0, fyk = 0;
    double fsCalcestruzzo = 0, fsAcciaio = 0;
    double interasse = 0;                ///< of the piles [mm]
    structure::ConfrontoTaglio metro{};  ///< of one metre of wall [kN]
    /// Design shear over each resistance; nothing without one.
    std::optional<double> usoBielle, usoArmatura;
};

/// @param controlli  of the same wall
/// @return nothing without a section to be computed
[[nodiscard]] std::optional<ValoriFlessione> valoriFlessione(
    const project::DatiProgetto& dati, const live::ControlliSezione& controlli);

/// @return nothing without stirrups
[[nodiscard]] std::optional<ValoriTaglio> valoriTaglio(const project::DatiProgetto& dati,
                                                       const live::ControlliSezione& controlli);

/// The largest shear of all stages in size, times the factor of actions [kN/m]: what a section
/// without a check of shear is to be checked for elsewhere.
/// @return nothing of a wall that does not stand or has no shear
[[nodiscard]] std::optional<double> taglioDiProgetto(const live::PareteViva& parete);

}  // namespace korven::dossier
