#include "shell/panels/table_panels.hpp"

#include "shell/masks/base2_32.hpp"
#include "shell/panels/layers_panel.hpp"

namespace korven::shell {

PannelloTabella pannelliTabelle(base::Dialogo& dialogo) {
    return [&dialogo](Base2_32& forma, masks::NumeroMaschera numero) -> QWidget* {
        if (numero == masks::NumeroMaschera::strati) return new PannelloStrati(forma, dialogo);
        return nullptr;
    };
}

}  // namespace korven::shell
