#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "equilibrium/extremes.hpp"
#include "results/structure_checks.hpp"
#include "safety/diagnosis.hpp"
#include "safety/shortest_wall.hpp"

namespace korven::studies {

/// What is in the way of a variant that has no numbers. The words are in `paroleMotivo`.
enum class Motivo {
    nessuno,
    // of data that refuse a run
    valore,     ///< a number that its field does not take
    riga,       ///< a number for a row that the variant has not
    ordine,     ///< depths of layers, anchors or stages out of order
    lunghezza,  ///< no length
    strati,     ///< no layers
    fasi,       ///< no stages
    metodoKs,   ///< Bowles without friction
    tiranti,    ///< a stage asks for more anchors than the table holds
    ferri,      ///< more bars than the section's check can take
    rigidezza,  ///< no bending stiffness, neither typed nor of the section
    segmenti,   ///< more segments than a wall with a fixed toe can have
    suolo,      ///< the soil of a node has no value
    tabella,    ///< an index beyond a table
    // of a mechanism
    traslazione,
    rotazione,
    // of data whose equilibrium is not certain
    modulo,
    limiti,
    tirante,
    parete,
    // of numbers that are none
    nessunNumero,
    senzaMisura,
    nonRaggiunto,
    // of the specified run that finds no rest where there is an equilibrium
    oscillazione,
    singolare,
    limite,
};

/// The stable words for them by number, the same in every language: "rotazione"; empty for
/// `nessuno`.
[[nodiscard]] const std::vector<std::string_view>& paroleMotivo();
/// The words of `safety::parola(Causa)` by number.
[[nodiscard]] const std::vector<std::string_view>& paroleCausa();

/// The strength reduction of the stage by which a wall is judged: the first that does not stand,
/// else that of the smallest factor.
struct RiduzioneVariante {
    std::optional<double> F;
    bool oltre = false;  ///< no stage has a factor within the range
    int fase = 0;        ///< 0: none
};

/// What is known of one variant, in stored units. Numbers that a wall has only if all its stages
/// stand are those of all stages together, and 0 without a stage where it does not.
struct RisultatoVariante {
    safety::Causa causa = safety::Causa::eseguito;
    Motivo motivo = Motivo::nessuno;
    int faseCaduta = 0;  ///< the stage that has no equilibrium; 0: none, or none was reached

    equilibrium::Estremi estremi;
    std::vector<double> tiri;  ///< of each anchor that some stage has in place, the largest in
                               ///< size, with its sign [t]
    /// The checks of the section by the rules of the report, with the moments and shears of this
    /// solution; resistances also of a wall that does not stand.
    std::optional<results::ConfrontoMomenti> flessione;
    std::optional<structure::ConfrontoTaglio> taglio;
    std::optional<double> passiva;  ///< largest share of the soil in front that a stage uses
    int fasePassiva = 0;            ///< 0: none

    std::optional<RiduzioneVariante> riduzione;              ///< where it was asked for
    std::optional<safety::LunghezzaMinima> lunghezzaMinima;  ///< the same

    [[nodiscard]] bool sta() const { return causa == safety::Causa::eseguito; }
};

}  // namespace korven::studies
