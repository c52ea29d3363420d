#pragma once

#include <array>
#include <string>
#include <vector>

#include "live/view.hpp"
#include "live/wall.hpp"
#include "tables/result_table.hpp"

namespace korven::tables {

/// One curve along the wall.
struct CurvaMostrata {
    Colonna testa;  ///< its quantity, with the unit that is shown
    /// As stored, at each node; of a stage the same twice. Of shear those just above the node.
    std::vector<double> minimo{}, massimo{};
    /// Of shear those just below the node, which differ at an anchor; of others the same as above.
    std::vector<double> minimoSotto{}, massimoSotto{};
    const project::Unita* unita = nullptr;
    Cella (*cella)(double) = nullptr;  ///< a value with the digits of the tables
    /// Ends of the axis in the shown unit, on round numbers, 0 between them or at one of them.
    double da = 0, a = 0;
    double passo = 0;  ///< between two numbers of the axis
};

/// The four curves of a stage or of the envelope, in the order of `live::Curva`.
struct CurveMostrate {
    std::string titolo;
    int fase = 0;             ///< 0: the envelope
    std::vector<double> z{};  ///< depth of each node [m]; empty where nothing stands
    std::array<CurvaMostrata, 4> curve{};
    std::string perche;  ///< why there are none
};

[[nodiscard]] CurveMostrate curve(const live::PareteViva& parete, int fase);

/// The node nearest to a depth; 0 where there is none.
[[nodiscard]] std::size_t nodoVicino(const CurveMostrate& curve, double z);

/// The value of a curve at a node, in its unit: "-12.34", of an envelope "-12.34 / 5.60"; of shear
/// at an anchor the value above it and that below it.
[[nodiscard]] std::string valore(const CurvaMostrata& curva, std::size_t nodo);

/// True if shear has one value above this node of a stage, and another below it.
[[nodiscard]] bool conSalto(const CurvaMostrata& curva, std::size_t nodo);

/// All that is to be read at a node, in one line: "z 3.20 m: Pressione netta 12.30 kN/m²; ...".
[[nodiscard]] std::string lettura(const CurveMostrate& curve, std::size_t nodo);

}  // namespace korven::tables
