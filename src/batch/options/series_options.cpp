#include "batch/options/series_options.hpp"

#include <charconv>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

#include "studies/columns.hpp"
#include "studies/plan/law.hpp"

namespace korven::batch {

namespace {

using base::uguali;

constexpr base::Gemelli file = uguali("FILE"), numero = uguali("N");

std::optional<std::uint64_t> intero(std::string_view testo) {
    std::uint64_t letto = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), letto);
    if (errore != std::errc() || fine != testo.data() + testo.size()) return {};
    return letto;
}

template <std::uint64_t OpzioniSerie::*dove, std::uint64_t minimo>
bool leggiIntero(Opzioni& o, const std::string& valore) {
    const auto letto = intero(valore);
    if (!letto || *letto < minimo) return false;
    o.serie.*dove = *letto;
    return true;
}

template <std::string OpzioniSerie::*dove>
bool leggiFile(Opzioni& o, const std::string& valore) {
    o.serie.*dove = valore;
    return percorsoAmmesso(valore);
}

template <std::vector<std::string> OpzioniSerie::*dove>
bool aggiungi(Opzioni& o, const std::string& valore) {
    (o.serie.*dove).push_back(valore);
    return !valore.starts_with('-');
}

bool leggiParte(Opzioni& o, const std::string& valore) {
    const auto barra = valore.find('/');
    if (barra == std::string::npos) return false;
    const auto quale = intero(std::string_view(valore).substr(0, barra));
    const auto quante = intero(std::string_view(valore).substr(barra + 1));
    if (!quale || !quante || *quale < 1 || *quale > *quante) return false;
    o.serie.parte = *quale;
    o.serie.parti = *quante;
    return true;
}

// The rest of a line of the help: what may stand there.
std::string traGli(const std::vector<std::string>& nomi) {
    constexpr std::size_t larga = 90;
    std::string testo, riga;
    for (const std::string& nome : nomi) {
        if (riga.size() + nome.size() > larga) testo += std::exchange(riga, {}) + '\n';
        riga += (riga.empty() ? "" : " ") + nome + (&nome == &nomi.back() ? "" : ",");
    }
    return ":\n" + testo + riga;
}

std::string leggi() {
    std::vector<std::string> forme;
    for (const studies::NomeLegge& legge : studies::nomiLeggi()) forme.push_back(legge.forma());
    return traGli(forme);
}

std::string risultati() {
    std::vector<std::string> nomi;
    for (const studies::Colonna& colonna : studies::colonne(2, true)) nomi.push_back(colonna.nome);
    return traGli(nomi);
}

// Given again and again, once a value, whose commas are its own.
RigaOpzione ripetuta(base::Gemelli nome, const char* spiegazione, Leggi azione,
                     base::Gemelli valore) {
    RigaOpzione riga = {nome, spiegazione, azione, valore};
    riga.ripetibile = true;
    riga.conVirgole = true;
    return riga;
}

std::vector<RigaOpzione> varianti() {
    RigaOpzione legge =
        ripetuta(opzioneLegge, "legge di un campo nei campioni", aggiungi<&OpzioniSerie::leggi>,
                 {"CAMPO=LEGGE(...)", "FIELD=LAW(...)"});
    legge.coda = leggi();
    return {
        {opzionePiano, "varianti di un file CSV: una colonna per campo, una riga per variante",
         leggiFile<&OpzioniSerie::piano>, file},
        ripetuta(opzioneGriglia, "varia un campo da un valore a un altro con un passo",
                 aggiungi<&OpzioniSerie::griglie>, {"CAMPO=DA:A:PASSO", "FIELD=FROM:TO:STEP"}),
        {opzioneCampioni, "numero di campioni casuali", leggiIntero<&OpzioniSerie::campioni, 1>,
         numero},
        {{"--seme", "--seed"},
         "seme dei campioni",
         leggiIntero<&OpzioniSerie::seme, 0>,
         numero,
         {},
         "1"},
        legge,
        ripetuta(opzioneRho, "correlazione di due campi nei campioni", aggiungi<&OpzioniSerie::rho>,
                 {"CAMPO,CAMPO=R", "FIELD,FIELD=R"}),
        {opzioneIpercubo, "campioni stratificati (ipercubo latino)",
         [](Opzioni& o) { o.serie.ipercubo = true; }},
    };
}

std::vector<RigaOpzione> calcolo() {
    RigaOpzione colonne = {opzioneColonne,
                           "solo queste colonne dei risultati, separate da virgole",
                           aggiungi<&OpzioniSerie::colonne>,
                           {"NOMI", "NAMES"}};
    colonne.ripetibile = true;
    colonne.coda = risultati();
    return {
        colonne,
        ripetuta(opzioneFallisce, "che cosa fa fallire anche una variante in equilibrio",
                 aggiungi<&OpzioniSerie::fallisce>, {"RISULTATO>VALORE", "RESULT>VALUE"}),
        {opzioneGrafico,
         "disegna un risultato sui campi che variano, o la sua distribuzione",
         leggiFile<&OpzioniSerie::grafico>,
         {"NOME", "NAME"}},
        {{"--sicurezza", "--safety"},
         "calcola anche la riduzione di resistenza e la paratia più corta",
         [](Opzioni& o) { o.serie.sicurezza = true; }},
        {{"--soluzione", "--solution"},
         "soluzione di equilibrio, o il calcolo per fasi della relazione",
         [](Opzioni& o, std::size_t quale) { o.serie.iterazione = quale == 1; },
         {},
         {{"equilibrio", "equilibrium"}, {"iterazione", "iteration"}}},
        {{"--controllo", "--control"},
         "calcola una variante ogni N in ambedue i modi e finisce con 1 se differiscono",
         Conta{1, std::numeric_limits<int>::max(),
               [](Opzioni& o) -> int& { return o.serie.controllo; }},
         numero},
    };
}

std::vector<RigaOpzione> righe() {
    constexpr int massimiFili = 1024;
    return {
        {opzioneUscitaSerie, "scrive le righe in questo file, non sull'uscita normale",
         leggiFile<&OpzioniSerie::uscita>, file},
        {{"--riprendi", "--resume"},
         "continua uno studio interrotto",
         [](Opzioni& o) { o.serie.riprendi = true; }},
        {opzioneSenzaLimite, "calcola anche più di 10 milioni di varianti",
         [](Opzioni& o) { o.serie.senzaLimite = true; }},
        {opzioneParte, "calcola solo la parte I di N", leggiParte, uguali("I/N")},
        {uguali("-j"), "fili di calcolo (altrimenti tutti i processori)",
         Conta{1, massimiFili, [](Opzioni& o) -> int& { return o.serie.fili; }}, numero},
    };
}

}  // namespace

std::vector<RigaOpzione> opzioniSerie() { return insieme({varianti(), calcolo(), righe()}); }

}  // namespace korven::batch
