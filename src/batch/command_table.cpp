#include "batch/command_table.hpp"

namespace korven::batch {

const std::vector<RigaComando>& comandi() {
    static const std::vector<RigaComando> tutti = {
        calcola(), relazione(),    verifica(),  diagramma(),
        sezione(), stratigrafia(), campiture(), tutto(),
    };
    return tutti;
}

}  // namespace korven::batch
