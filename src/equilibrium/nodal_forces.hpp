#pragma once

#include <vector>

#include "equilibrium/stage_problem.hpp"

namespace korven::equilibrium {

/// One side of all nodes, an array a quantity; see LatoNodo.
struct LatoNodi {
    std::vector<double> riposo, Eh, minimo, massimo;

    explicit LatoNodi(std::size_t n) : riposo(n), Eh(n), minimo(n), massimo(n) {}
};

/// The forces on the nodes of a stage as functions of their displacements, laid out for the loops
/// of Newton's method: an array a quantity, and no node that is a case of its own.
///
/// One object serves one number of nodes; after its construction nothing is allocated.
class ForzeNodi {
 public:
    /// @param n  nodes of the system, not fewer than 4
    explicit ForzeNodi(int n);

    /// Takes a stage over.
    /// @pre nothing in it is unstable (`datoInstabile`)
    void imposta(const ProblemaFase& problema);

    /// @param y  displacements [m]; node 1 is element 0, here and below
    /// @param r  forces without balance: all that acts on a node, less the bending force [t]
    /// @param k  springs: by how much r falls with the node's own y, bending apart [t/m]
    /// @pre all of them with n elements: asserted
    void valuta(const std::vector<double>& y, std::vector<double>& r, std::vector<double>& k);

 private:
    void terreno(const std::vector<double>& y, std::vector<double>& r,
                 std::vector<double>& k) const;
    void tiranti(const std::vector<double>& y, std::vector<double>& r,
                 std::vector<double>& k) const;
    void flessione(const std::vector<double>& y, std::vector<double>& r);

    std::vector<double> peso_;      ///< tributary lengths [m]
    std::vector<double> costante_;  ///< water and constant pressure [t/m2]
    std::vector<double> vincolo_;   ///< spring of a restraint, 0 without one [t/m]
    LatoNodi monte_, valle_;
    std::vector<double> momento_;  ///< of bending, over the step [t]
    std::vector<TiranteFase> tiranti_;
    double rigidezza_ = 0;  ///< EJ / h^3 [t/m]
    double H_ = 0;          ///< force at the top [t]
    double coppia_ = 0;     ///< moment at the top over the step [t]
};

}  // namespace korven::equilibrium
