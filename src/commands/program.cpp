#include "commands/program.hpp"

#include "analysis/run_flags.hpp"
#include "analysis/watch/followed_run.hpp"
#include "commands/document_names.hpp"
#include "commands/edit_commands.hpp"
#include "commands/fatal_error.hpp"
#include "commands/output_commands.hpp"
#include "help/contexts.hpp"
#include "project/project_data.hpp"

namespace korven::commands {

bool Programma::esegui(Comando comando) {
    using enum Comando;
    switch (comando) {
        case nessuno:
            break;
        case fileApri:
            documento_.fileApri();
            break;
        case fileSalva:
            documento_.fileSalva();
            break;
        case printSetup:
            forme_.impostaStampante();
            break;
        case aiutoFile:
        case aiutoEdit:
        case aiutoStampa:
            aiuto(voce(comando).aiuto);
            break;
        case editStratigrafia:
        case editParatia:
        case editRigidezza:
        case editTiranti:
        case editFasi:
        case editTitoli:
            edita(comando, dialogo_, maschere_, forme_);
            break;
        case configura:
            forme_.editacfg();
            break;
        case fine:
            return documento_.fine();
        case sommario:
            forme_.sommario();
            break;
        case about:
            forme_.informazioni(rigaFileCorrente(project::fileCorrente));
            break;
        default:
            produciSeguendo(comando);
    }
    return false;
}

// A run that was stopped is told in the status line until another output goes through.
void Programma::produciSeguendo(Comando comando) {
    analysis::CorsaSeguita corsa(avanzamento_);
    produci(comando, dialogo_, corsa, forme_);
    const std::string arresto = corsa.arresto();
    if (!arresto.empty())
        finestra_.stato(arresto);
    else if (diceArresto_)
        documento_.mostraStato();
    diceArresto_ = !arresto.empty();
}

bool Programma::fineSessione(bool chiedibile) {
    if (!chiedibile) {
        recuperaProgetto();
        return true;
    }
    if (!documento_.fine()) return false;
    analysis::stopCalcolo = true;
    return true;
}

void Programma::aiuto(int voce) const {
    if (forme_.aiuto) forme_.aiuto(help::contestoAiuto(voce));
}

}  // namespace korven::commands
