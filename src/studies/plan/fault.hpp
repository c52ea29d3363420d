#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>

#include "project/typed_field.hpp"

namespace korven::studies {

/// Why a text makes no variants.
enum class MotivoPiano {
    campo,           ///< a name or a value: `rifiuto` says which
    testo,           ///< a field that holds a text: values of a study are numbers
    campoRipetuto,   ///< a field that has values already
    forma,           ///< not of the form that is in `atteso`
    nonNumero,       ///< a number is wanted
    virgola,         ///< a number with a decimal comma
    passoNullo,      ///< of a grid
    passoContrario,  ///< a step that leads away from the end
    troppeVarianti,  ///< more than `massimoVarianti`
    leggeIgnota,     ///< no law is called so
    parametri,       ///< of a law whose form is in `atteso`
    scarto,          ///< a standard deviation that is not above 0
    media,           ///< a lognormal law whose mean is not above 0
    estremi,         ///< of a uniform or triangular law, out of order
    oltreNumeri,     ///< a law with values that are too large
    mediaFuori,      ///< a law whose mean its field does not take: `rifiuto` says why
    nonContinuo,     ///< a law for a code, a flag or a number of rows
    senzaLegge,      ///< a correlation of a field that has no law
    stessoCampo,     ///< of a field with itself
    coppiaRipetuta,  ///< of two fields that have one already
    rho,             ///< not between -1 and 1
    nonDefinita,     ///< correlations that no variables have together
    rhoConIpercubo,  ///< a hypercube, which has no correlations
    csv,             ///< quotes of a file; `testo` says it, translated, with the line
    celle,           ///< a row of a file with more or fewer cells than columns
    senzaRighe,      ///< a file without rows of values
};

/// What is wrong with a text, and where.
struct DifettoPiano {
    MotivoPiano motivo;
    std::string testo = {};     ///< the piece of it that is wrong
    std::string atteso = {};    ///< what may stand there, as typed
    std::string opzione = {};   ///< as a whole, of a fault in one
    std::size_t carattere = 0;  ///< of an option, counted from 1; 0: none in particular
    long riga = 0;              ///< of a file, counted from 1; 0: not of a file
    std::size_t colonna = 0;    ///< of a file, counted from 1; 0: the whole line
    std::optional<project::Rifiuto> rifiuto = {};
};

/// What a text says, or what is wrong with it.
template <class T>
using Letto = std::variant<T, DifettoPiano>;

/// Variants that a study has at most: so many that a number counts them without rounding, and that
/// nobody waits for.
inline constexpr double massimoVarianti = 1e15;

}  // namespace korven::studies
