#pragma once

#include "project/project_data.hpp"

namespace korven::analysis {

/// Vertical stress at a node and the layer that the node belongs to. A node exactly on a boundary
/// belongs to the lower layer; its stress is the same from both sides.
/// Source of the effective stress, the total one less the pore pressure: Terzaghi (1943) (not
/// looked up).
struct TensioneNodo {
    int strato = 0;       ///< 0 if no layer holds the depth
    double totale = 0;    ///< [t/m2]
    double efficace = 0;  ///< [t/m2]
};

/// Weight that one layer from t to b lays on depth z, with the water table at depth w. All depths
/// in metres below the wall top.
///
///     z > b:       gammaN (b - t), gammaN (w - t) + gammaSat (b - w), or gammaSat (b - t)
///     t <= z <= b: the same with z for b
///     z < t:       0
///
/// @return stress [t/m2]
[[nodiscard]] double pesoStrato(double z, double t, double b, double w, double gammaN,
                                double gammaSat);

/// Net water pressure on the wall, uphill minus downhill [t/m2]: each side counts its head from its
/// own water level, whatever the excavation depth.
[[nodiscard]] double pressioneAcquaNetta(double z, double faldaMonte, double faldaValle,
                                         double gammaAcqua);

/// Stress at depth z on the retained side, from `sovraccMonte` and the layers. Below the last layer
/// the last layer goes on. Water above the ground (`faldaMonte` below 0) lowers the effective
/// stress by z gammaAcqua only.
[[nodiscard]] TensioneNodo tensioneMonte(const project::DatiProgetto& dati, double z);

/// Stress at depth z on the excavated side, from the surcharge of the stage and the weight between
/// the excavation level and z; the water table is `dati.faldaValle`. Water above the excavation
/// level lowers the effective stress by (z - scavo) gammaAcqua only.
/// @param scavo  excavation depth [m], not below z: asserted
[[nodiscard]] TensioneNodo tensioneValle(const project::DatiProgetto& dati, double z, double scavo,
                                         double sovraccarico);

/// Bottom of layer j for these sums and for the layer of a node: the last one counts 100 m deeper.
[[nodiscard]] double fondoStrato(const project::DatiProgetto& dati, int j);

}  // namespace korven::analysis
