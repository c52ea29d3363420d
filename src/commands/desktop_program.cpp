#include "commands/desktop_program.hpp"

#include <cassert>
#include <utility>

#include "analysis/run_flags.hpp"
#include "analysis/watch/followed_run.hpp"
#include "commands/edit_commands.hpp"
#include "commands/fatal_error.hpp"
#include "commands/rescue/kept_rescue.hpp"
#include "help/contexts.hpp"
#include "masks/edited_section.hpp"
#include "project/project_data.hpp"
#include "safety/run_cause.hpp"

namespace korven::commands {

bool Programma::esegui(const VoceMenu& voce) {
    assert(puo(voce));
    congedata_ = false;
    const bool finisce = voce.comando(*this, voce);
    congedata_ = congedata_ || finisce;
    custodisci();
    return finisce;
}

bool Programma::puo(const VoceMenu& voce) const {
    return !apreMenu(voce) && (voce.haForma == nullptr || voce.haForma(forme_));
}

bool Programma::possibile(const VoceMenu& voce) const {
    if (inUscita_ && !voce.accanto) return false;
    return voce.possibile == nullptr || voce.possibile(*this);
}

void Programma::edita(masks::NumeroMaschera maschera, const char* rifiuto) {
    nellaStoria(maschera, [&] { commands::edita(maschera, rifiuto, dialogo_, maschere_, forme_); });
}

void Programma::editaDa(const masks::PostoCampo& posto) {
    const bool forma = posto.maschera == masks::senzaMaschera ? forme_.sezione && forme_.sezioneDa
                                                              : bool(forme_.maschera);
    if (!forma || project::fileCorrente.empty()) return;
    congedata_ = false;
    nellaStoria(posto.maschera, [&] { commands::editaDa(posto, maschere_, forme_); });
    custodisci();
}

bool Programma::prendi(const project::DatiProgetto& dati, const std::string& nome) {
    if (inUscita_ || project::fileCorrente.empty()) return false;
    congedata_ = false;
    const project::DatiProgetto prima = std::exchange(project::Progetto, dati);
    project::modificato = project::modificato || !(prima == dati);
    documento_.storia().fatto(nome, prima, dati);
    custodisci();
    return true;
}

void Programma::nellaStoria(masks::NumeroMaschera scheda, const std::function<void()>& apri) {
    if (project::fileCorrente.empty()) return apri();
    project::DatiProgetto prima = project::Progetto;
    // Its form gives the section a type even if it is left without.
    if (scheda == masks::senzaMaschera) masks::daiTipo(prima.sezione);
    apri();
    documento_.storia().confermata(scheda, prima, project::Progetto);
    if (!diceStoria_ || !documento_.storia().detto().empty()) return;
    documento_.mostraStato();
    diceStoria_ = false;
}

void Programma::annulla() { torna(&StoriaProgetto::annulla); }

void Programma::ripeti() { torna(&StoriaProgetto::ripeti); }

void Programma::torna(bool (StoriaProgetto::*verso)(project::DatiProgetto&)) {
    StoriaProgetto& storia = documento_.storia();
    if ((storia.*verso)(project::Progetto)) project::modificato = true;
    finestra_.stato(storia.detto());
    diceStoria_ = true;
}

void Programma::produci(void (*uscita)(const PorteUscita&)) {
    analysis::CorsaSeguita corsa(avanzamento_);
    inUscita_ = inCorsa_ = true;
    uscita({dialogo_, corsa, forme_, [this] {
                inCorsa_ = false;
                custodisci();
            }});
    inUscita_ = inCorsa_ = false;
    const std::string arresto = corsa.arresto();
    const auto causa = safety::causaCorsa(corsa.comeFinita(), project::Progetto);
    const bool dice = !arresto.empty() || !causa.frase.empty();
    if (!arresto.empty())
        finestra_.statoInBreve(corsa.doveFerma(), arresto);
    else if (dice)
        finestra_.statoInBreve(causa.breve, causa.frase);
    else if (diceArresto_ || diceStoria_)
        documento_.mostraStato();
    diceArresto_ = dice;
    diceStoria_ = false;
}

bool Programma::fineSessione(bool chiedibile) {
    if (!chiedibile) {
        recuperaProgetto();
        return true;
    }
    if (!documento_.fine()) return false;
    congedata_ = true;
    recuperoTenuto.rinuncia();
    analysis::stopCalcolo = true;
    return true;
}

void Programma::tieniAlSicuro() {
    if (!inCorsa_ && !congedata_) custodisci();
}

void Programma::custodisci() {
    if (congedata_)
        recuperoTenuto.rinuncia();
    else
        documento_.custodisci();
}

void Programma::apriGuida(int voce) const {
    if (forme_.guida) forme_.guida(help::contestoGuida(voce));
}

}  // namespace korven::commands
