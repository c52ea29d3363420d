#pragma once

#include <optional>
#include <string>
#include <vector>

#include "project/project_data.hpp"
#include "verification/quantities.hpp"

// A case of the verification: a wall, what is expected of it, where that comes from, how closely
// it must be met and why. docs/verification.md tells the form of its file.

namespace korven::verification {

/// Where a quantity is asked.
struct Luogo {
    int fase = 0;               ///< from 1; 0: of no stage
    std::optional<double> z{};  ///< depth of a node [m]
    int tirante = 0;            ///< from 1; 0: of no anchor

    bool operator==(const Luogo&) const = default;
};

/// Who computes a number.
enum class Metodo {
    corsa,       ///< the specified run, as the report has it
    equilibrio,  ///< the equilibrium solution
    sezione,     ///< the section alone
};

/// How closely a number must be met.
struct Tolleranza {
    double valore = 0;  ///< in the shown unit of the quantity, or a share of the expected value
    bool relativa = false;
    std::string testo{};  ///< as it is written: "0.1 %"
};

/// The other side is a run too: the second wall of the case, or the first at another place.
struct ConRun {
    bool variante = false;
    Luogo luogo{};
    double fattore = 1;
};

/// One number or word that is expected.
struct Attesa {
    int riga = 0;  ///< of the file
    const Grandezza* grandezza = nullptr;
    Luogo luogo{};
    std::optional<double> valore{};  ///< in the shown unit
    std::string parola{};            ///< of a quantity of words
    std::optional<ConRun> confronto{};
    Tolleranza tolleranza{};
    int decimali = 0;              ///< with which the value is written
    std::optional<Metodo> solo{};  ///< nothing: all methods that know the quantity
};

/// A wall and its mesh.
struct Parete {
    project::DatiProgetto dati{};
    int segmenti = 200;
};

struct Caso {
    std::string nome{};  ///< of its file, without folder and extension
    std::string file{};
    std::string titolo{};
    std::vector<std::string> fonte{};    ///< the literature or the way that the values come from
    std::vector<std::string> calcolo{};  ///< formulas
    std::string tolleranza{};            ///< why they are met so closely, and not more
    /// Why this program is known to differ; empty for a case that must be met.
    std::string noto{};
    Parete parete{};
    std::optional<Parete> variante{};
    std::vector<Attesa> attese{};
};

/// A folder of cases.
struct Gruppo {
    std::string nome{};  ///< of the folder
    int ordine = 0;
    std::string titolo{}, descrizione{};
    std::string figura{};  ///< the case that a figure of the group shows
    std::string curva{};   ///< what of it
    std::string teoria{};  ///< English, in the mark-up of the documents
    std::vector<Caso> casi{};
};

}  // namespace korven::verification
