#include <string>
#include <vector>

#include "analysis/subgrade_modulus.hpp"
#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "project/units.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/greek_letters.hpp"
#include "report/annex/model_tables.hpp"
#include "report/annex/sources.hpp"
#include "report/annex/table_pieces.hpp"
#include "structure/partial_factors.hpp"
#include "structure/strip_model.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

using base::traduttore;
using tables::parola;

namespace {

namespace unita = project::unita;
using project::DatiProgetto;

struct Ipotesi {
    const char* argomento;  ///< Italian keys, but for the source: author, title, year
    const char* testo;
    const char* fonte;
    bool (*vale)(const DatiProgetto&) = nullptr;  ///< empty: always
    std::vector<double> valori = {};              ///< of %1 to %9, as the calculation has them
};

template <auto codice, double DatiProgetto::*membro>
bool ha(const DatiProgetto& dati) {
    return dati.*membro == codice;
}
using enum project::MetodoSpinte;
using enum project::MetodoKs;
constexpr auto spinte = &DatiProgetto::metodoSpinte;
constexpr auto ks = &DatiProgetto::metodoKs;

// What is computed, with the methods of this project alone.
const Ipotesi ipotesi[] = {
    {"Paratia",
     "Trave elastica di rigidezza EJ costante su molle, divisa in segmenti uguali. Terreno, acqua "
     "e "
     "tiranti agiscono nei nodi.",
     fonti::winkler},
    {"Fasi",
     "Ogni fase è un equilibrio intero, non un incremento: dalla fase precedente passano solo gli "
     "spostamenti ai quali i tiranti sono posati.",
     fonti::newton},
    {"Terreno",
     "Su ogni lato una molla fra la spinta attiva e quella passiva, che parte dalla spinta a "
     "riposo "
     "con spostamento nullo: k0 = (1 - sin phi) / (1 + sin beta).",
     fonti::riposo},
    {"Spinte: Coulomb",
     "ka e kp di Coulomb per parete verticale e liscia, con l'inclinazione beta del terreno a "
     "monte e "
     "la coesione.",
     fonti::coulomb, ha<coulomb, spinte>},
    {"Spinte: Rankine",
     "ka e kp di Rankine con l'inclinazione beta del terreno a monte e la coesione; la spinta "
     "agisce "
     "tutta in orizzontale.",
     fonti::rankine, ha<rankine, spinte>},
    {"Spinte: Bell",
     "ka = tan²(45° - phi/2), kp = tan²(45° + phi/2); nei limiti non entrano né la coesione né "
     "l'inclinazione del terreno.",
     fonti::bell, ha<bell, spinte>},
    {"Modulo ks: Bowles",
     "ks = %1 (c Nc + gamma Ngamma + sigma' Nq), con i fattori di Hansen.",
     fonti::bowles,
     ha<bowles, ks>,
     {analysis::fattoreBowles}},
    {"Modulo ks: Lancellotta", "ks = m sqrt(k0 sigma), con m scritto nel progetto e sigma in t/m².",
     fonti::lancellotta, ha<lancellotta, ks>},
    {"Modulo ks: costante", "Il ks scritto per ogni strato.", fonti::winkler, ha<costante, ks>},
    {"Modulo ks: lineare",
     "Lineare in ogni strato, dal ks dello strato sopra (0 in superficie) al proprio.",
     fonti::winkler, ha<lineare, ks>},
    {"Tensioni efficaci", "Le spinte vengono dalle tensioni efficaci, in tutti gli strati.",
     fonti::terzaghi, ha<project::ModoTensioni::efficaci, &DatiProgetto::modoTensioni>},
    {"Tensioni totali",
     "Le spinte vengono dalle tensioni totali, in tutti gli strati; la pressione netta dell'acqua "
     "si "
     "aggiunge anche così.",
     fonti::terzaghi, ha<project::ModoTensioni::totali, &DatiProgetto::modoTensioni>},
    {"Acqua",
     "In quiete su entrambi i lati: la differenza dei livelli agisce per intero fino al piede.",
     fonti::terzaghi},
    {"Tiranti e puntoni",
     "F = pretensione + rigidezza · (y - y0), con y0 lo spostamento alla posa, per metro di "
     "paratia e in orizzontale; uno di sola trazione non agisce in compressione.",
     fonti::winkler},
    {"Flessione della sezione",
     "Sezioni piane, %1 strisce, calcestruzzo senza trazione, con lo sforzo normale scritto; "
     "azioni per %2, calcestruzzo diviso per %3, acciaio per %4.",
     fonti::eurocodice,
     nullptr,
     {structure::nStrisce, structure::fsAzioniSezione, structure::fsCalcestruzzo,
      structure::fsAcciaio}},
    {"Taglio della sezione",
     "Solo per pali armati con staffe: metodo normale, bielle di calcestruzzo e armatura d'anima.",
     fonti::eurocodice},
    {"Margine",
     "tan phi e c divisi per F finché la fase è appena in equilibrio: i coefficienti k0 e i moduli "
     "restano quelli del progetto.",
     fonti::riduzione},
};

struct Segno {
    project::Unita unita;
    const char* grandezza;
    const char* positivo;
};

constexpr Segno segni[] = {
    {unita::metri, "Profondità z", "verso il basso, dalla testa della paratia"},
    {unita::spostamentoFine, "Spostamento", "verso lo scavo"},
    {unita::pressione, "Pressioni sulla paratia",
     "verso lo scavo: quelle di monte sono positive, quelle di valle negative"},
    {unita::momentoAlMetro, "Momento flettente", "tende la faccia verso lo scavo; M = -EJ y''"},
    {unita::forzaAlMetro, "Taglio", "T = dM/dz; dT/dz = -p"},
    {unita::forzaAlMetro, "Forza dei tiranti", "trazione del tirante, compressione del puntone"},
    {unita::forzaAlMetro, "forza in testa", "verso lo scavo"},
    {unita::momentoAlMetro, "momento in testa", "ruota la testa verso lo scavo"},
    {unita::forzaAlMetro, "Sforzo normale", "compressione della paratia"},
};

tables::Prospetto prospettoIpotesi(const DatiProgetto& dati) {
    tables::Prospetto p{.titolo = traduttore("Che cosa si calcola"),
                        .colonne = {colonna("Argomento"), colonna("Ipotesi"), colonna("Fonte")}};
    for (const Ipotesi& i : ipotesi) {
        if (i.vale != nullptr && !i.vale(dati)) continue;
        std::vector<std::string> valori;
        for (const double valore : i.valori) valori.push_back(base::testoNumero(valore));
        p.righe.push_back({parola(traduttore(i.argomento)),
                           parola(conLettereGreche(base::riempito(traduttore(i.testo), valori))),
                           parola(conLettereGreche(i.fonte))});
    }
    return p;
}

tables::Prospetto prospettoSegni() {
    tables::Prospetto p{
        .titolo = traduttore("Segni e unità"),
        .colonne = {colonna("Grandezza fisica"), colonna("Unità"), colonna("Positivo")},
        .note = {
            traduttore("Tutte le forze e le rigidezze sono per metro di paratia. Una tonnellata "
                       "forza, l'unità del file, è presa come 10 kN esatti.")}};
    for (const Segno& s : segni)
        p.righe.push_back({parola(base::conMaiuscola(traduttore(s.grandezza))),
                           parola(std::string(s.unita.mostrata)), parola(traduttore(s.positivo))});
    return p;
}

}  // namespace

void capitoloModello(const Contesto& contesto, Blocchi& blocchi) {
    const DatiProgetto& dati = contesto.fascicolo->parete.dati;
    tavola(prospettoIpotesi(dati), blocchi);
    tavola(prospettoMolla(dati), blocchi);
    tavola(prospettoEsclusi(*contesto.fascicolo), blocchi);
    tavola(prospettoSegni(), blocchi);
}

}  // namespace korven::report
