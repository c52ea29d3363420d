#include "factors/words.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/run_start.hpp"
#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/shown_number.hpp"
#include "safety/large_displacement.hpp"
#include "safety/words.hpp"
#include "structure/partial_factors.hpp"
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

// A wall that is held by little more than its soil can give moves far: an equilibrium that no check
// of forces finds fault with.
void noteSpostamenti(const Combinazioni& tutte, std::vector<std::string>& note) {
    using project::numeroMostrato;
    for (const EsitoCombinazione& e : tutte.esiti) {
        const equilibrium::Estremo& y = e.estremi.spostamento;
        if (!e.sta() || y.fase < 1) continue;
        const double scavo = e.fasi[static_cast<std::size_t>(y.fase) - 1].scavo;
        const double quota = std::fabs(y.valore) / scavo;
        if (scavo < safety::scavoTrascurabile || quota <= safety::spostamentoPericoloso) continue;
        note.push_back(base::riempito(
            traduttore("%1: la parete si sposta di %2 mm nella fase %3, 1/%4 dello scavo, più di "
                       "1/%5. È in equilibrio, ma vicina al cedimento: le verifiche non limitano "
                       "gli spostamenti."),
            {e.combinazione.nome,
             numeroMostrato(std::fabs(y.valore), 1, project::unita::spostamentoFine),
             std::to_string(y.fase), numeroMostrato(1 / quota, 0),
             numeroMostrato(1 / safety::spostamentoPericoloso, 0)}));
    }
}

// Which of the two axial forces has the smaller resistance, where they are two.
void noteSforzoNormale(const Combinazioni& tutte, std::vector<std::string>& note) {
    note.push_back(
        traduttore("Lo sforzo normale entra per il suo coefficiente e com'è: vale la "
                   "resistenza a flessione minore."));
    for (const EsitoCombinazione& e : tutte.esiti)
        for (const Verifica& v : e.verifiche) {
            const bool momento =
                v.oggetto == Oggetto::momentoPositivo || v.oggetto == Oggetto::momentoNegativo;
            if (momento && e.combinazione.fattori.testaPermanente != 1)
                note.push_back(base::riempito(
                    traduttore("%1, %2: vale la resistenza con lo sforzo normale per %3."),
                    {e.combinazione.nome, traduttore(di(v.oggetto).testo),
                     base::testoNumero(v.perAssiale)}));
        }
}

std::string due(double coefficiente) { return base::testoDecimali(coefficiente, 2); }

// The loads are put in with less than their factor, since the effects have theirs as well.
void noteCarichi(const Combinazioni& tutte, std::vector<std::string>& note) {
    for (const EsitoCombinazione& e : tutte.esiti) {
        const Fattori& f = e.combinazione.fattori;
        if (f.effetti == 1) continue;
        note.push_back(base::riempito(
            traduttore("%1: i carichi entrano con il loro coefficiente diviso per quello degli "
                       "effetti (variabile sfavorevole: %2 / %3 = %4), così che alla fine abbiano "
                       "il loro."),
            {e.combinazione.nome, due(f.variabile), due(f.effetti), due(f.variabile / f.effetti)}));
    }
}

void noteMateriali(const project::Sezione& sezione, std::vector<std::string>& note) {
    const std::string acciaio = due(structure::fsAcciaio);
    note.push_back(
        sezione.tipoPalancola
            ? base::riempito(traduttore("La resistenza della sezione è quella del programma, non "
                                        "della norma: acciaio diviso per %1."),
                             {acciaio})
            : base::riempito(traduttore("La resistenza della sezione è quella del programma, non "
                                        "della norma: acciaio diviso per %1, calcestruzzo per %2."),
                             {acciaio, due(structure::fsCalcestruzzo)}));
}

void noteTaglio(const Combinazioni& tutte, std::vector<std::string>& note) {
    note.push_back(traduttore("Il taglio si verifica solo per pali armati con le staffe scritte."));
    if (std::string taglio = taglioDaVerificare(tutte); !taglio.empty())
        note.back() += " " + taglio;
}

void noteSezione(const Combinazioni& tutte, const project::DatiProgetto& dati,
                 std::vector<std::string>& note) {
    if (!structure::sezioneDefinita(dati.sezione)) {
        note.push_back(traduttore("Nessuna verifica: la sezione non è definita."));
        return;
    }
    noteMateriali(dati.sezione, note);
    if (!structure::staffePresenti(dati.sezione)) noteTaglio(tutte, note);
    if (dati.sforzoNormale != 0) noteSforzoNormale(tutte, note);
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

std::string taglioDaVerificare(const Combinazioni& combinazioni) {
    const Massimo& T = combinazioni.inviluppo.taglio;
    if (T.combinazione < 0 || T.fase == 0) return {};
    const auto& esito = combinazioni.esiti[static_cast<std::size_t>(T.combinazione)];
    return base::riempito(
        traduttore("Da verificare a parte con la norma: taglio di progetto %1 kN/m (%2, fase %3, "
                   "z = %4 m)."),
        {project::numeroMostrato(project::inKilonewton(std::fabs(T.valore)), 2),
         esito.combinazione.nome, std::to_string(T.fase), project::numeroMostrato(T.z, 2)});
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
    noteSpostamenti(combinazioni, note);
    noteSezione(combinazioni, dati, note);
    note.push_back(traduttore(
        "Soluzione di equilibrio di ogni combinazione, in memoria: i coefficienti del "
        "terreno agiscono sulle pressioni limite, non su quella a riposo né sui moduli."));
    note.push_back(
        traduttore("Momenti, tagli e tiri sono moltiplicati per il coefficiente degli effetti, gli "
                   "spostamenti no."));
    noteCarichi(combinazioni, note);
    note.push_back(
        traduttore("Ogni combinazione è calcolata con i segmenti del progetto: quanto "
                   "cambierebbe con più segmenti qui non si cerca."));
    if (dati.nTiranti > 0)
        note.push_back(
            traduttore("Di tiranti e puntoni c'è solo la forza: la loro resistenza, dell'acciaio, "
                       "del terreno e all'instabilità, non è verificata."));
    note.push_back(traduttore(
        "Il coefficiente 1.4 delle verifiche senza norma, quelle della relazione, qui non "
        "entra."));
    return note;
}

}  // namespace korven::factors
