#include "live/limit_wall.hpp"

namespace korven::live {

std::optional<PareteViva> pareteAlLimite(const PareteViva& parete, const safety::Margine& margine) {
    if (!parete.sta())
        return parete.perche && parete.perche->moto ? std::optional(parete) : std::nullopt;
    const safety::MargineFase* decisiva = margine.decisiva();
    if (decisiva == nullptr || !decisiva->riduzione.moto ||
        decisiva->fase > parete.fasiInEquilibrio())
        return std::nullopt;
    PareteViva caduta = parete;
    caduta.fasi.resize(static_cast<std::size_t>(decisiva->fase));
    caduta.fasi.back().esito = equilibrium::EsitoFase::meccanismo;
    caduta.fasi.back().moto = decisiva->riduzione.moto;
    caduta.perche = safety::Diagnosi{.causa = safety::Causa::meccanismo,
                                     .fase = decisiva->fase,
                                     .paratia = margine.paratia,
                                     .moto = decisiva->riduzione.moto,
                                     .parti = {.monteAttivo = {},
                                               .montePassivo = {},
                                               .valleAttivo = {},
                                               .vallePassivo = decisiva->passiva.alLimite,
                                               .tirantiLenti = {}}};
    return caduta;
}

}  // namespace korven::live
