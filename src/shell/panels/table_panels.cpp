#include "shell/panels/table_panels.hpp"

#include <memory>

#include "panels/anchor_calculator.hpp"
#include "shell/masks/base1.hpp"
#include "shell/masks/base2_32.hpp"
#include "shell/panels/anchor_panel.hpp"
#include "shell/panels/layers_panel.hpp"
#include "shell/panels/stage_panel.hpp"
#include "shell/panels/wall_panel.hpp"

namespace korven::shell {

namespace {

PannelloTabella pannelliTabelle(base::Dialogo& dialogo, VitaProgetto& vita) {
    auto ingressi = std::make_shared<panels::IngressiCalcolo>();
    return [&dialogo, &vita, ingressi](Base2_32& forma, masks::NumeroMaschera numero) -> QWidget* {
        if (numero == masks::NumeroMaschera::strati) return new PannelloStrati(forma, dialogo);
        if (numero == masks::NumeroMaschera::tiranti)
            return new PannelloTiranti(forma, vita, *ingressi);
        if (numero == masks::NumeroMaschera::fasi) return new PannelloFasi(forma, vita);
        return nullptr;
    };
}

}  // namespace

PannelliForme pannelliForme(base::Dialogo& dialogo, VitaProgetto& vita) {
    return {.tabella = pannelliTabelle(dialogo, vita),
            .campi = [&vita](Base1& forma, masks::NumeroMaschera numero) -> QWidget* {
                return numero == masks::NumeroMaschera::paratia ? new PannelloParatia(forma, vita)
                                                                : nullptr;
            }};
}

}  // namespace korven::shell
