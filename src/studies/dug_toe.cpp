#include "studies/dug_toe.hpp"

#include <algorithm>
#include <array>

#include "project/deepest_excavation.hpp"
#include "project/project_file.hpp"
#include "project/typed_field.hpp"

namespace korven::studies {

namespace {

using project::DatiProgetto;

// Rows come before what stands in them.
const std::array<project::Membro, 3> daCui = {&DatiProgetto::nFasi, &DatiProgetto::lunghezzaParatia,
                                              &DatiProgetto::profFase};

}  // namespace

PiedeScavato::PiedeScavato(const DatiProgetto& dati, std::span<const project::CampoNominato> campi)
    : base_(project::comeRiletto(dati)), dati_(base_), sempre_(project::piedeScavato(base_)) {
    for (const project::Membro& membro : daCui)
        for (std::size_t j = 0; j < campi.size(); ++j)
            if (campi[j].campo->membro == membro) variano_.push_back({j, campi[j]});
}

bool PiedeScavato::operator()(std::span<const double> riga) {
    if (variano_.empty()) return sempre_;
    // Stages that the variant before has taken away.
    if (dati_.nFasi != base_.nFasi) dati_ = base_;
    for (const auto& [posto, campo] : variano_)
        project::metti(dati_, campo, project::conservato(*campo.campo, riga[posto]));
    return project::piedeScavato(dati_);
}

}  // namespace korven::studies
