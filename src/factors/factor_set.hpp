#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace korven::factors {

/// The partial factors of one combination. Those of the soil divide, the others multiply; without a
/// word all leave the wall as it is.
struct Fattori {
    double attrito = 1;     ///< on tan phi
    double coesione = 1;    ///< on c'
    double nonDrenata = 1;  ///< on cu: `coesione` in total stresses, or of a layer without friction
    double peso = 1;        ///< on the unit weights of the soil
    double permanente = 1;  ///< unfavourable permanent surcharge on the ground
    double variabile = 1;   ///< unfavourable variable surcharge on the ground
    double testaPermanente = 1;       ///< unfavourable permanent load on the head, axial force too
    double testaVariabile = 1;        ///< unfavourable variable load on the head
    double favorevolePermanente = 1;  ///< favourable permanent load
    double favorevoleVariabile = 0;   ///< favourable variable load
    /// On the effects of actions: moments, shears, forces of the anchors. Where it is not 1 the
    /// wall is computed without it, so that a load enters with its own factor over this one.
    double effetti = 1;
    double terra = 0;         ///< on the earth resistance; 0: no check of it is asked for
    double scavoQuota = 0;    ///< unplanned excavation: share of a height, `over_excavation.hpp`
    double scavoMassimo = 0;  ///< and the most that it comes to [m]

    bool operator==(const Fattori&) const = default;
};

/// One of the factors: how a file calls it and what it may be.
struct VoceFattore {
    std::string_view chiave;  ///< "attrito"
    double Fattori::*membro;
    std::string_view cosa;  ///< what it acts on, an Italian key
    double minimo, massimo;
    bool obbligatoria = true;
};

/// All of them, in the order in which they are told.
[[nodiscard]] std::span<const VoceFattore> vociFattori();

/// A combination with where its numbers come from.
struct Combinazione {
    std::string nome;   ///< "DA1-1"
    std::string fonte;  ///< of the choice of its factors
    Fattori fattori;
    std::vector<std::string> fonti;  ///< of each factor, in the order of `vociFattori`

    bool operator==(const Combinazione&) const = default;
};

/// The combinations that one code asks for together.
struct Norma {
    std::string nome;    ///< as it is typed: "en1997-da1"
    std::string titolo;  ///< as it is shown
    std::string file;    ///< name of the file that it stands in
    std::vector<Combinazione> combinazioni;

    bool operator==(const Norma&) const = default;
};

}  // namespace korven::factors
