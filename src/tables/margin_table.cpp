#include "tables/margin_table.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/anchor_names.hpp"
#include "review/limits.hpp"
#include "safety/margin_words.hpp"
#include "safety/mesh_words.hpp"
#include "safety/words.hpp"
#include "tables/check_table.hpp"
#include "tables/quantities.hpp"

namespace korven::tables {

namespace {

using base::traduttore;
using review::Peso;
using safety::Margine;
using safety::MargineFase;
namespace unita = project::unita;

std::optional<Peso> pesa(double valore, double daVedere, double pericolo, bool sotto) {
    const auto oltre = [&](double limite) { return sotto ? valore < limite : valore > limite; };
    if (oltre(pericolo)) return Peso::pericolo;
    return oltre(daVedere) ? std::optional(Peso::daVedere) : std::nullopt;
}

// Whether the last column says already that the slope of the ground is the limit.
bool dettoNelMoto(const safety::Riduzione& r) { return r.limitePendio && !r.moto; }

Cella riduzione(const safety::Riduzione& r) {
    Cella c = {.testo = r.F && dettoNelMoto(r) ? safety::testoF(*r.F) : testoRiduzione(r),
               .numero = r.F};
    if (r.oltre) c.ordine = safety::massimaRiduzione;
    if (r.oltre) c.barra = 1;
    if (!r.F) return c;
    c.barra = std::clamp(*r.F / fineBarraF, 0.0, 1.0);
    c.peso = pesa(*r.F, review::riduzioneDaVedere, review::riduzionePericolosa, true);
    return c;
}

Cella uso(const std::optional<double>& quota) {
    if (!quota) return senza(traduttore("Davanti alla paratia non c'è resistenza passiva."));
    Cella c = cella(*quota, 0, unita::percento);
    c.barra = std::clamp(*quota, 0.0, 1.0);
    c.peso = pesa(*quota, review::passivaDaVedere, review::passivaPericolosa, false);
    return c;
}

// A moment or a shear of one stage, both ways.
// @param manca  why the report has none
void riga(int fase, const project::Unita& u, const char* cosa, const safety::Confronto& c,
          Cella (*valore)(double), const Cella& manca, Prospetto& p) {
    p.righe.push_back({cella(fase), parola(traduttore(cosa) + " " + traParentesi(u)),
                       valore(c.statica.valore), dove(c.statica.fase, c.statica.z, c.statica.lato),
                       c.relazione ? cifre(mostrato(u, c.relazione->valore)) : manca,
                       c.relazione ? profondita(c.relazione->z) : manca});
}

void riga(int fase, const project::DatiProgetto& dati, const safety::ConfrontoTiro& tiro,
          const Cella& manca, Prospetto& p) {
    const Cella testa = senza(traduttore("La profondità del tirante è nella tabella Tiranti."));
    p.righe.push_back(
        {cella(fase),
         parola(project::nomeTirante(dati, tiro.tirante) + " " + traParentesi(unita::forzaAlMetro)),
         forza(tiro.statica), testa,
         tiro.relazione ? cifre(mostrato(unita::forzaAlMetro, tiro.relazione->valore)) : manca,
         testa});
}

Cella degliSfruttamenti() {
    return senza(traduttore("Tendenza ed esito si dicono degli sfruttamenti della sezione."));
}

void riga(const project::Unita& u, const char* cosa, Cella (*valore)(double),
          const safety::ErroreGrandezza& e, Prospetto& p) {
    p.righe.push_back(
        {parola(base::conMaiuscola(traduttore(cosa)) + " " + traParentesi(u)), valore(e.valore),
         valore(e.doppia), valore(e.fine),
         e.quota ? cella(*e.quota, 1, unita::percento) : senza(percheSenzaErrore()),
         e.ordine ? cella(*e.ordine, 1, unita::nessuna) : senza(percheSenzaOrdine(e.andamento)),
         degliSfruttamenti(), degliSfruttamenti()});
}

// A share has no order of its own: that of its moment or shear stands above.
void riga(const Margine& margine, const safety::UsoMaglia& u, Prospetto& p) {
    const auto valore = [](const std::optional<results::Uso>& uso) {
        return uso ? tables::uso(uso->progetto, uso->resistenza)
                   : senza(traduttore("Nessun momento negativo agisce."));
    };
    const Cella altrove =
        senza(traduttore("L'errore e il suo ordine sono quelli del momento o del taglio."));
    p.righe.push_back(
        {parola(traduttore("Sfruttamento") + base::duePunti() + traduttore(safety::nome(u.cosa)) +
                " " + traParentesi(unita::percento)),
         valore(u.maglie[0]), valore(u.maglie[1]), valore(u.maglie[2]), altrove, altrove,
         tables::tendenza(margine, u.cosa), esito(giudizio(margine, u.cosa))});
}

// Sentences begin with a capital; the same words stand within lines elsewhere.
std::string frase(std::string testo) {
    if (testo.empty()) return testo;
    testo = base::conMaiuscola(testo);
    return testo.back() == '.' ? testo : testo + '.';
}

std::vector<Cella> rigaMargine(const MargineFase& fase, const Margine& margine) {
    std::vector<Cella> riga = {cella(fase.fase),
                               profondita(fase.scavo),
                               riduzione(fase.riduzione),
                               uso(fase.passiva.quota),
                               parola(safety::testoTratti(fase.passiva.alLimite)),
                               spostamento(fase.piede.spostamento),
                               parola(parole(fase, margine.paratia))};
    if (fase.passiva.alLimite.empty())
        riga[4] = senza(traduttore("La resistenza passiva non è al limite a nessuna profondità."));
    const std::string verdettoParete = verdetto(margine);
    if (!fase.inEquilibrio()) riga[3] = riga[4] = riga[5] = senza(verdettoParete);
    for (Cella& c : riga)
        if (c.testo == nessuno && c.perche.empty()) c.perche = verdettoParete;
    return riga;
}

}  // namespace

Prospetto prospettoMargine(const Margine& margine) {
    Prospetto p{
        .titolo = traduttore("Margine per fase"),
        .colonne = {
            colonna(unita::nessuna, "Fase", "Numero della fase"),
            colonna(unita::metri, "Scavo", "Profondità dello scavo, dalla testa della paratia"),
            colonnaSimbolo(
                unita::nessuna, "F",
                "Riduzione della resistenza F: divisore di tan phi e c con cui la fase è appena in "
                "equilibrio"),
            colonna(unita::percento, "Passiva",
                    "Quota mobilitata della resistenza passiva davanti alla paratia"),
            colonnaParole("Al limite [m]", "Profondità in cui la passiva è al limite"),
            colonna(unita::spostamentoFine, "Piede",
                    "Spostamento del piede, positivo verso lo scavo"),
            colonnaParole("Moto con F", "Che cosa accade con la resistenza divisa per F")}};
    for (const MargineFase& fase : margine.fasi) p.righe.push_back(rigaMargine(fase, margine));
    const bool note = std::any_of(margine.fasi.begin(), margine.fasi.end(), [](const auto& fase) {
        return fase.riduzione.limitePendio && !dettoNelMoto(fase.riduzione);
    });
    for (std::string nota :
         {note ? notaPendenza(margine) : std::string(), safety::notaOltre(margine)})
        if (!nota.empty()) p.note.push_back(std::move(nota));
    return p;
}

Prospetto prospettoStatica(const Margine& margine, const project::DatiProgetto& dati) {
    const Colonna z = colonnaSimbolo(unita::metri, "z", "Profondità del valore a sinistra");
    Prospetto p{.titolo = traduttore("Equilibrio e relazione"),
                .colonne = {colonna(unita::nessuna, "Fase", "Numero della fase"),
                            colonnaParole("Massimi", "Grandezza, con la sua unità"),
                            colonna(unita::nessuna, "Equilibrio",
                                    "Dall'equilibrio dei nodi della stessa paratia"),
                            z,
                            colonna(unita::nessuna, "Relazione",
                                    "Come lo trova il calcolo per fasi e lo usa la relazione"),
                            z}};
    const std::string senzaRelazione = paroleRelazione(margine);
    const Cella manca = senza(margine.sta() ? senzaRelazione : verdetto(margine));
    for (const MargineFase& fase : margine.fasi) {
        if (!fase.inEquilibrio()) continue;
        riga(fase.fase, unita::momentoAlMetro, "Momento", fase.confronto.momento, momento, manca,
             p);
        riga(fase.fase, unita::forzaAlMetro, "Taglio", fase.confronto.taglio, forza, manca, p);
        for (const safety::ConfrontoTiro& tiro : fase.confronto.tiri)
            riga(fase.fase, dati, tiro, manca, p);
    }
    if (p.righe.empty()) p.note.push_back(verdetto(margine));
    if (!senzaRelazione.empty()) p.note.push_back(senzaRelazione);
    return p;
}

Prospetto prospettoMaglia(const Margine& margine) {
    Prospetto p{.titolo = traduttore("Errore di maglia"),
                .colonne = {colonnaParole("Massimi", "Grandezza, con la sua unità"),
                            colonna(unita::nessuna, "%1 segmenti", "Con la maglia del progetto"),
                            colonna(unita::nessuna, "%1 segmenti", "Con una maglia più fine"),
                            colonna(unita::nessuna, "%1 segmenti", "Con una maglia più fine"),
                            colonna(unita::percento, "Errore",
                                    "Differenza fra le due maglie, rispetto alla più fine"),
                            colonna(unita::nessuna, "Ordine",
                                    "Potenza del passo con cui l'errore diminuisce"),
                            colonnaTendenza(), colonnaParole("Esito", spiegazioneEsito)}};
    std::size_t colonna_ = 0;
    for (const int volte : {1, 2, 4}) {
        std::string& titolo = p.colonne[++colonna_].titolo;
        titolo = base::riempito(titolo, {std::to_string(volte * margine.nSeg)});
    }
    if (!margine.maglia) {
        p.note.push_back(margine.sta() ? frase(paroleMaglia(margine)) : verdetto(margine));
        return p;
    }
    const safety::ErroreMaglia& e = *margine.maglia;
    riga(unita::momentoAlMetro, "momento positivo", momento, e.momentoPositivo, p);
    riga(unita::momentoAlMetro, "momento negativo", momento, e.momentoNegativo, p);
    riga(unita::forzaAlMetro, "Taglio", forza, e.taglio, p);
    riga(unita::spostamentoFine, "Spostamento", spostamento, e.spostamento, p);
    riga(unita::forzaAlMetro, "Tiranti e puntoni", forza, e.tiro, p);
    for (const safety::UsoMaglia& u : e.usi) riga(margine, u, p);
    for (const safety::AvvisoMaglia& avviso : safety::avvisiMaglia(margine))
        p.note.push_back(avviso.testo);
    return p;
}

std::string percheSenzaErrore() {
    return base::riempito(traduttore("I valori non arrivano a %1 nell'unità della riga: un errore "
                                     "relativo non direbbe nulla."),
                          {base::testoDecimali(safety::minimoConErrore, 2)});
}

std::string percheSenzaOrdine(safety::Andamento andamento) {
    switch (andamento) {
        case safety::Andamento::avvicinano:
            break;
        case safety::Andamento::uguali:
            return traduttore("Le tre maglie danno lo stesso valore.");
        case safety::Andamento::vicine:
            return base::riempito(
                traduttore("Le due maglie più fini differiscono di meno di %1 nell'unità della "
                           "riga: le cifre scritte non bastano per un ordine."),
                {base::testoDecimali(safety::minimaConOrdine, 2)});
        case safety::Andamento::alternano:
            return traduttore(
                "Le tre maglie si avvicinano a un valore dalle due parti: l'errore "
                "non ha un ordine.");
        case safety::Andamento::strette:
            return base::riempito(
                traduttore("Le tre maglie differiscono di meno di %1 %: un ordine non serve."),
                {base::testoDecimali(safety::quotaSenzaOrdine, 0, 2)});
        case safety::Andamento::lontane:
            return traduttore(
                "Fra la seconda maglia e la terza il valore cambia quanto fra le "
                "prime due o di più: a che valore tende non si vede ancora.");
    }
    return {};
}

std::string verdetto(const Margine& margine) { return frase(paroleDecisiva(margine)); }

std::vector<std::string> frasi(const Margine& margine) {
    std::vector<std::string> tutte;
    for (const std::string& testo : {paroleLunghezza(margine), paroleMaglia(margine),
                                     paroleRelazione(margine), paroleMetodo(margine)})
        if (!testo.empty()) tutte.push_back(frase(testo));
    return tutte;
}

std::string didascaliaMeccanismo(const Margine& margine) {
    const MargineFase* decisiva = margine.sta() ? margine.decisiva() : nullptr;
    if (decisiva == nullptr) return {};
    return base::riempito(traduttore("così cade, nella fase %1, con la resistenza del terreno "
                                     "divisa per F = %2; com'è, è in equilibrio"),
                          {std::to_string(decisiva->fase), safety::testoF(*decisiva->riduzione.F)});
}

}  // namespace korven::tables
