#pragma once

#include <span>
#include <vector>

#include "project/field_table.hpp"
#include "project/project_data.hpp"

namespace korven::studies {

/// Tells of the variants of a study which have an excavation that reaches or passes their toe. Such
/// a wall may stand by its anchors and restraints alone, and is none to be built.
class PiedeScavato {
 public:
    /// @param dati   the project of the study
    /// @param campi  the fields that vary
    PiedeScavato(const project::DatiProgetto& dati, std::span<const project::CampoNominato> campi);

    /// @param riga  of a variant that was followed through its stages: begins with the values of
    ///              the fields, in shown units
    [[nodiscard]] bool operator()(std::span<const double> riga);

 private:
    struct Varia {
        std::size_t posto;  ///< in a row
        project::CampoNominato campo;
    };

    const project::DatiProgetto base_;
    std::vector<Varia> variano_;  ///< what it depends on, the number of stages first
    project::DatiProgetto dati_;
    bool sempre_;  ///< the answer where nothing varies that it depends on
};

}  // namespace korven::studies
