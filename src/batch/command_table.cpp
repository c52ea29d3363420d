#include "batch/command_table.hpp"

namespace korven::batch {

const std::vector<RigaComando>& comandi() {
    static const std::vector<RigaComando> tutti = {
        comandoCalcola(),    comandoRelazione(),  comandoAllegato(),     comandoVerifica(),
        comandoEquilibrio(), comandoSicurezza(),  comandoCombinazioni(), comandoTabelle(),
        comandoDiagramma(),  comandoSezione(),    comandoStratigrafia(), comandoCampiture(),
        comandoTutto(),      comandoConfronta(),  comandoCampi(),        comandoImposta(),
        comandoLunghezza(),  comandoBloccaggio(), comandoSerie(),        comandoAutoverifica(),
    };
    return tutti;
}

}  // namespace korven::batch
