#include "comparison/tables.hpp"

#include <algorithm>
#include <utility>

#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "comparison/field_words.hpp"
#include "tables/remark_table.hpp"

namespace korven::comparison {

namespace {

using base::riempito;
using base::traduttore;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

constexpr int decimaliQuota = 1;

// A difference shows its sign both ways.
Cella conSegno(const std::optional<double>& valore, int decimali, const project::Unita& u) {
    if (!valore) return {};
    Cella c = tables::cella(*valore, decimali, u);
    if (*valore > 0 && c.testo.find_first_of("123456789") != std::string::npos)
        c.testo.insert(0, "+");
    return c;
}

// With the digits of the values.
Cella differenza(const RisultatoConfrontato& r) {
    const std::size_t punto = r.prima.testo.find('.');
    const std::size_t cifre = punto == std::string::npos ? 0 : r.prima.testo.size() - punto - 1;
    return conSegno(r.differenza(), static_cast<int>(cifre), unita::nessuna);
}

// Whose reason stands in a note, which tells of which wall it is.
Cella senzaPerche(Cella cella) {
    cella.perche.clear();
    return cella;
}

std::vector<Cella> riga(const RisultatoConfrontato& r) {
    const std::string parentesi = traParentesi(r.unita);
    return {tables::parola(parentesi.empty() ? r.cosa : r.cosa + ' ' + parentesi),
            senzaPerche(r.prima), senzaPerche(r.dopo), differenza(r),
            conSegno(r.quota(), decimaliQuota, unita::percento)};
}

std::vector<tables::Colonna> colonneRisultati() {
    return {tables::colonnaParole("Risultato", "Che cosa si confronta, con la sua unità"),
            tables::colonna(unita::nessuna, "Prima", "Valore del primo"),
            tables::colonna(unita::nessuna, "Dopo", "Valore del secondo"),
            tables::colonna(unita::nessuna, "Differenza", "Il secondo meno il primo"),
            tables::colonna(unita::percento, "In valore assoluto",
                            "Di quanto cresce il valore assoluto rispetto al primo; nulla dove il "
                            "segno cambia")};
}

// Why one of the two has no number where the other has one, each reason once.
void note(const RisultatoConfrontato& r, Prospetto& p) {
    for (const Cella* c : {&r.prima, &r.dopo}) {
        if (c->perche.empty()) continue;
        std::string nota =
            traduttore(c == &r.prima ? "Prima" : "Dopo") + base::duePunti() + c->perche;
        if (std::find(p.note.begin(), p.note.end(), nota) == p.note.end())
            p.note.push_back(std::move(nota));
    }
}

std::string fraseMuro(const char* quale, const Muro& muro) {
    std::string frase =
        traduttore(quale) + base::duePunti() + muro.nome + base::duePunti() + verdetto(muro);
    if (const int nSeg = muro.fascicolo.parete.nSeg; nSeg > 0)
        frase +=
            base::puntoEVirgola() + riempito(traduttore("segmenti: %1"), {std::to_string(nSeg)});
    return frase;
}

std::string opzioniUsate(const Confronto& c) {
    std::string tutte;
    for (const std::string& opzione : c.prima.fascicolo.identita.opzioni)
        tutte += (tutte.empty() ? "" : ", ") + opzione;
    return tutte;
}

// A reader who takes one shown number from the other may come to another last digit.
void notaDifferenze(Prospetto& p) {
    if (!p.righe.empty())
        p.note.push_back(traduttore(
            "Le differenze sono dei valori non arrotondati: l'ultima cifra può non essere "
            "quella che danno i valori mostrati. La percentuale è del valore assoluto: + dove "
            "cresce, anche di un numero negativo; un trattino dove il segno cambia."));
}

Cella valore(const std::string& detto, bool ceLaRiga) {
    if (!ceLaRiga) return tables::senza(traduttore("Non ha questa riga."));
    return tables::parola(detto);
}

}  // namespace

std::vector<std::string> frasiMuri(const Confronto& c) {
    return {fraseMuro("Prima", c.prima), fraseMuro("Dopo", c.dopo)};
}

std::vector<std::string> frasi(const Confronto& c) {
    std::vector<std::string> tutte = {traduttore(
        c.prima.origine == Origine::equilibrio
            ? "I risultati sono della soluzione di equilibrio, non del calcolo per fasi della "
              "relazione."
            : "I risultati sono quelli dei due file, cioè del calcolo per fasi della relazione.")};
    if (const std::string opzioni = opzioniUsate(c); !opzioni.empty())
        tutte.push_back(
            riempito(traduttore("Opzioni, per ambedue al posto di ciò che i progetti dicono: %1."),
                     {opzioni}));
    if (c.uguali())
        tutte.push_back(traduttore("Nessuna differenza."));
    else if (!c.cambiaQualcosa() && !c.risultati.empty())
        tutte.push_back(traduttore("Nessun risultato cambia."));
    return tutte;
}

Prospetto prospettoCampi(const Confronto& c) {
    Prospetto p{
        .titolo = traduttore("Campi diversi"),
        .colonne = {tables::colonnaParole("Campo", "Il campo del progetto, con la sua unità"),
                    tables::colonnaParole("Prima", "Valore del primo"),
                    tables::colonnaParole("Dopo", "Valore del secondo")}};
    for (const project::CampoDiverso& campo : perRighe(c.campi)) {
        const project::Differenza d = paroleCampo(c, campo);
        p.righe.push_back(
            {tables::parola(d.cosa), valore(d.prima, campo.prima), valore(d.dopo, campo.dopo)});
    }
    if (p.righe.empty()) p.note.push_back(traduttore("Nessun campo è diverso."));
    return p;
}

Prospetto prospettoRisultati(const Confronto& c) {
    Prospetto p{.titolo = traduttore("Risultati"), .colonne = colonneRisultati()};
    for (const RisultatoConfrontato& r : c.risultati) {
        if (r.fase > 0) continue;
        p.righe.push_back(riga(r));
        note(r, p);
    }
    notaDifferenze(p);
    return p;
}

Prospetto prospettoFasi(const Confronto& c) {
    Prospetto p{.titolo = traduttore("Risultati delle fasi"), .colonne = colonneRisultati()};
    p.colonne.insert(p.colonne.begin(),
                     tables::colonna(unita::nessuna, "Fase", "Numero della fase"));
    for (const RisultatoConfrontato& r : c.risultati) {
        if (r.fase == 0) continue;
        auto& celle = p.righe.emplace_back(riga(r));
        celle.insert(celle.begin(), tables::cella(r.fase));
        note(r, p);
    }
    notaDifferenze(p);
    return p;
}

Prospetto prospettoOsservazioni(const Confronto& c) {
    Prospetto p = tables::prospettoOsservazioni({});
    p.colonne.insert(p.colonne.begin(),
                     tables::colonnaParole("In quale", "Quale dei due progetti ha l'osservazione"));
    p.note.clear();
    for (const auto* lista : {&c.sparite, &c.nuove})
        for (auto& celle : tables::prospettoOsservazioni(*lista).righe) {
            celle.insert(
                celle.begin(),
                tables::parola(traduttore(lista == &c.sparite ? "solo prima" : "solo dopo")));
            p.righe.push_back(std::move(celle));
        }
    if (p.righe.empty()) p.note.push_back(traduttore("Nessuna osservazione cambia."));
    return p;
}

std::vector<std::string> righeOsservazioni(const Confronto& c) {
    std::vector<std::string> righe;
    for (const auto* lista : {&c.sparite, &c.nuove})
        for (const auto& o : *lista)
            righe.push_back(traduttore(lista == &c.sparite ? "solo prima" : "solo dopo") +
                            base::duePunti() + traduttore(parolaMostrata(o.peso)) +
                            base::duePunti() + o.testo);
    return righe;
}

}  // namespace korven::comparison
