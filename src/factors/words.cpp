#include "factors/words.hpp"

#include <algorithm>

#include "analysis/run_start.hpp"
#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "safety/words.hpp"
#include "structure/section_validity.hpp"

namespace korven::factors {

namespace {

using base::traduttore;

struct ParoleOggetto {
    std::string_view parola, testo;
};

// In the order of `Oggetto`.
constexpr ParoleOggetto oggetti[] = {
    {"momento_positivo", "Flessione, momento positivo"},
    {"momento_negativo", "Flessione, momento negativo"},
    {"bielle", "Taglio, bielle di calcestruzzo"},
    {"armatura", "Taglio, armatura d'anima"},
    {"terra", "resistenza del terreno a valle"},
};

const ParoleOggetto& di(Oggetto oggetto) { return oggetti[static_cast<std::size_t>(oggetto)]; }

// Without any there is no envelope to speak of.
void noteInviluppo(const Combinazioni& tutte, std::vector<std::string>& note) {
    const bool una = std::any_of(tutte.esiti.begin(), tutte.esiti.end(),
                                 [](const EsitoCombinazione& e) { return e.sta(); });
    if (una && !tutte.sta())
        note.push_back(traduttore("L'inviluppo è delle sole combinazioni in equilibrio."));
}

void noteTerra(const Combinazioni& tutte, std::vector<std::string>& note) {
    const auto percento = [](double quota) {
        return project::numeroMostrato(quota, 1, project::unita::percento);
    };
    for (const EsitoCombinazione& e : tutte.esiti)
        if (const auto& terra = e.terraSoloDetta)
            note.push_back(base::riempito(
                traduttore("%1: della resistenza del terreno a valle si usa il %2 % (ammesso %3 "
                           "%). Non è una verifica: il piede è vincolato, e non è quel terreno a "
                           "impedire la rotazione."),
                {e.combinazione.nome, percento(terra->progetto), percento(terra->resistenza)}));
}

void noteSezione(const project::DatiProgetto& dati, std::vector<std::string>& note) {
    if (!structure::sezioneDefinita(dati.sezione)) {
        note.push_back(traduttore("Nessuna verifica: la sezione non è definita."));
        return;
    }
    if (!structure::staffePresenti(dati.sezione))
        note.push_back(
            traduttore("Il taglio si verifica solo per pali armati con le staffe scritte."));
    if (dati.sforzoNormale != 0)
        note.push_back(
            traduttore("Lo sforzo normale entra per il suo coefficiente e com'è: vale la "
                       "resistenza a flessione minore."));
}

}  // namespace

std::string_view parola(Oggetto oggetto) { return di(oggetto).parola; }
std::string parole(Oggetto oggetto) { return base::conMaiuscola(traduttore(di(oggetto).testo)); }

std::string_view parola(Natura natura) {
    return natura == Natura::permanente ? "permanente" : "variabile";
}

std::string parole(const NaturaCarichi& natura) {
    const auto detta = [](Natura n) { return traduttore(parola(n)); };
    return base::riempito(
        traduttore("Sovraccarico a monte: %1; sul fondo dello scavo: %2; carichi in testa: %3."),
        {detta(natura.monte), detta(natura.scavo), detta(natura.testa)});
}

std::string esito(const EsitoCombinazione& combinazione) {
    if (!combinazione.sta()) return traduttore("nessun equilibrio");
    const std::optional<bool> giudizio = combinazione.giudizio();
    if (!giudizio) return traduttore("in equilibrio");
    return traduttore(*giudizio ? "verificata" : "NON verificata");
}

std::string caduta(const EsitoCombinazione& combinazione) {
    if (combinazione.sta() || combinazione.fasi.empty()) return {};
    const FaseCombinazione& fase = combinazione.fasi.back();
    const std::string perche =
        fase.rifiuto ? analysis::testoRifiuto(fase.fase, *fase.rifiuto) : inBreve(*fase.perche);
    return combinazione.combinazione.nome + base::duePunti() + perche;
}

std::string esiti(const Combinazioni& combinazioni) {
    std::string tutti;
    for (const EsitoCombinazione& e : combinazioni.esiti)
        tutti.append(tutti.empty() ? "" : base::puntoEVirgola())
            .append(e.combinazione.nome)
            .append(" ")
            .append(esito(e));
    return base::conDuePunti(combinazioni.norma.titolo, tutti);
}

std::string verdetto(const Combinazioni& combinazioni) {
    if (combinazioni.sta() && !combinazioni.conVerifiche())
        return traduttore("Tutte le combinazioni sono in equilibrio; non c'è nessuna verifica.");
    if (combinazioni.verificate())
        return traduttore(
            "Tutte le combinazioni sono in equilibrio e tutte le verifiche sono soddisfatte.");
    std::string cadute, fallite;
    for (const EsitoCombinazione& e : combinazioni.esiti) {
        if (e.verificata()) continue;
        std::string& nomi = e.sta() ? fallite : cadute;
        nomi += (nomi.empty() ? "" : ", ") + e.combinazione.nome;
    }
    std::string testo;
    if (!cadute.empty())
        testo = base::riempito(traduttore("Combinazioni senza equilibrio: %1."), {cadute});
    if (!fallite.empty())
        testo += (testo.empty() ? "" : " ") +
                 base::riempito(traduttore("Combinazioni con verifiche NON soddisfatte: %1."),
                                {fallite});
    return testo;
}

std::vector<std::string> note(const Combinazioni& combinazioni, const project::DatiProgetto& dati) {
    std::vector<std::string> note;
    noteInviluppo(combinazioni, note);
    noteTerra(combinazioni, note);
    noteSezione(dati, note);
    note.push_back(traduttore(
        "Soluzione di equilibrio di ogni combinazione, in memoria: i coefficienti del "
        "terreno agiscono sulle pressioni limite, non su quella a riposo né sui moduli."));
    note.push_back(
        traduttore("Momenti, tagli e tiri sono moltiplicati per il coefficiente degli effetti, gli "
                   "spostamenti no."));
    if (dati.nTiranti > 0)
        note.push_back(
            traduttore("Dei tiranti c'è solo la forza: la loro resistenza, dell'acciaio e del "
                       "terreno, non è verificata."));
    note.push_back(
        traduttore("Il coefficiente 1.4 della relazione è un'altra cosa: vale soltanto là."));
    return note;
}

}  // namespace korven::factors
