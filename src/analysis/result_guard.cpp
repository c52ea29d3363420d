#include "analysis/result_guard.hpp"

#include <set>

#include "analysis/run_flags.hpp"
#include "analysis/unfinished_results.hpp"
#include "base/file_error.hpp"
#include "base/file_identity.hpp"
#include "base/files.hpp"
#include "base/translated_texts.hpp"
#include "project/output_guard.hpp"

namespace korven::analysis {

namespace {

using base::traduttore;

// The locks that this program holds.
std::set<std::string>& tenute() {
    static std::set<std::string> nomi;
    return nomi;
}

// What shows the waiting is gone when it is over, whatever ends it.
class Attesa {
 public:
    explicit Attesa(Avanzamento& avanzamento) : avanzamento_(avanzamento) {}
    Attesa(const Attesa&) = delete;
    Attesa& operator=(const Attesa&) = delete;
    ~Attesa() { avanzamento_.fineAttesa(); }

 private:
    Avanzamento& avanzamento_;
};

void togliIncompiuti(const std::string& risultati, base::Dialogo& dialogo) {
    if (!base::esisteFile(risultati) || !risultatiIncompiuti(base::leggiFile(risultati))) return;
    base::cancellaFile(base::destinazione(risultati).value_or(risultati));
    if (base::esisteFile(risultati)) return;
    dialogo.messaggio(traduttore("È stato tolto un file dei risultati incompiuto, lasciato da un "
                                 "calcolo interrotto; i risultati vengono calcolati di nuovo") +
                          ": " + risultati,
                      traduttore("ATTENZIONE") + "!", base::Icona::informazione);
}

}  // namespace

bool GuardiaRisultati::occupa(const std::string& risultati, base::Dialogo& dialogo,
                              Avanzamento& avanzamento) {
    const std::string nome = base::nomeSerratura(risultati);
    if (tenute().contains(nome)) return true;
    if (!attendi(risultati, nome, avanzamento)) return false;
    if (serratura_.presa()) togliIncompiuti(risultati, dialogo);
    return true;
}

bool GuardiaRisultati::attendi(const std::string& risultati, const std::string& serratura,
                               Avanzamento& avanzamento) {
    if (prova(serratura)) return true;
    const std::string detto =
        traduttore("Un altro calcolo sta usando il file dei risultati; attesa fino a 10 secondi") +
        ": " + risultati;
    const Attesa attesa(avanzamento);
    stopCalcolo = false;
    for (int i = 0; i < pause; ++i) {
        avanzamento.attendi(detto);
        if (stopCalcolo || avanzamento.fermata()) {
            erroreCalcolo = true;
            return false;
        }
        if (prova(serratura)) return true;
    }
    throw base::ErroreScrittura(
        risultati, 0,
        traduttore("un altro calcolo sta ancora usando il file dei risultati: ripetere quando è "
                   "finito, o scrivere i risultati in un'altra cartella"));
}

bool GuardiaRisultati::prova(const std::string& serratura) {
    lascia();
    const auto esito = serratura_.prendi(serratura);
    if (esito == base::Serratura::Esito::presa) tenute().insert(serratura);
    if (esito == base::Serratura::Esito::ingombra)
        throw base::ErroreScrittura(
            serratura, 0,
            traduttore("qui i calcoli tengono occupato il file dei risultati: togliere ciò che ha "
                       "questo nome"));
    return esito != base::Serratura::Esito::occupata;
}

void GuardiaRisultati::lascia() {
    if (serratura_.presa()) tenute().erase(serratura_.percorso());
    serratura_.lascia();
}

void GuardiaRisultati::togliNonMostrabili(const std::string& risultati) {
    if (project::prendeIlPostoDelProgetto(risultati)) return;
    const std::string nome = base::nomeSerratura(risultati);
    if (tenute().contains(nome) || prova(nome)) base::cancellaFile(risultati);
}

}  // namespace korven::analysis
