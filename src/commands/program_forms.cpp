#include "commands/program_forms.hpp"

namespace korven::commands {

bool haForma(Comando comando, const FormeProgramma& forme) {
    using enum Comando;
    switch (comando) {
        case editStratigrafia:
        case editParatia:
        case editTiranti:
        case editFasi:
        case editTitoli:
            return bool(forme.maschera);
        case editRigidezza:
            return bool(forme.sezione);
        case graficaMomenti:
        case graficaSpostamenti:
        case graficaTaglio:
        case graficaPressioni:
        case graficaStruttura:
        case graficaStratigrafia:
            return bool(forme.grafica);
        case stampaVideo:
            return bool(forme.anteprima);
        case stampaTabulati:
            return bool(forme.stampa);
        case esportaDoc:
            return bool(forme.esportaDoc);
        case esportaTxt:
            return bool(forme.esportaTxt);
        case configura:
            return bool(forme.editacfg);
        case printSetup:
            return bool(forme.impostaStampante);
        case aiutoFile:
        case aiutoEdit:
        case aiutoStampa:
            return bool(forme.aiuto);
        case sommario:
            return bool(forme.sommario);
        case about:
            return bool(forme.informazioni);
        default:
            return true;
    }
}

}  // namespace korven::commands
