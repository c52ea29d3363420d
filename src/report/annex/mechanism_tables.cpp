#include "report/annex/mechanism_tables.hpp"

#include <cmath>

#include "base/code_page.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/anchor_names.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/table_pieces.hpp"
#include "tables/quantities.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::AzioneLimite;
using dossier::BilancioLimite;
using dossier::LimiteTerreno;
using dossier::NodoAlLimite;
using dossier::ParteAlLimite;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

std::string nome(const project::DatiProgetto& dati, const ParteAlLimite& parte) {
    switch (parte.cosa) {
        case AzioneLimite::forzaTesta:
            return base::conMaiuscola(traduttore("forza in testa"));
        case AzioneLimite::momentoTesta:
            return base::conMaiuscola(traduttore("momento in testa"));
        case AzioneLimite::monte:
            return traduttore("Terreno a monte");
        case AzioneLimite::valle:
            return traduttore("Terreno a valle");
        case AzioneLimite::acqua:
            return traduttore("Acqua");
        case AzioneLimite::costante:
            return traduttore("Pressione costante");
        case AzioneLimite::tirante:
            break;
    }
    return nomeTirante(dati, parte.tirante);
}

// Of a resultant: as far from the point that stays as its moment says, positive where the wall
// moves towards the excavation, so that force times arm is the moment with its sign.
Cella braccio(double metri) { return tables::cella(metri, 4, unita::metri); }

const char* effetto(const ParteAlLimite& parte) { return parte.spinta > 0 ? "spinge" : "resiste"; }

Cella stato(LimiteTerreno stato) {
    switch (stato) {
        case LimiteTerreno::attivo:
            return tables::parola(traduttore("attivo"));
        case LimiteTerreno::passivo:
            return tables::parola(traduttore("passivo"));
        case LimiteTerreno::nessuno:
            break;
    }
    return {};
}

std::vector<Cella> rigaTraslazione(const project::DatiProgetto& dati, const ParteAlLimite& parte) {
    return {tables::parola(nome(dati, parte)), tables::parola(""), tables::forza(parte.forza),
            tables::parola(traduttore(effetto(parte)))};
}

std::vector<Cella> rigaRotazione(const project::DatiProgetto& dati, const BilancioLimite& limite,
                                 const ParteAlLimite& parte) {
    std::vector<Cella> riga{
        tables::parola(nome(dati, parte)),
        tables::parola(traduttore(parte.sotto ? "sotto il perno" : "sopra il perno")),
        tables::forza(parte.forza)};
    if (parte.forza == 0) {
        riga.resize(5);
    } else {
        const double b1 = parte.spinta / parte.forza;
        riga.push_back(tables::profondita(limite.moto.profondita + limite.moto.verso * b1));
        riga.push_back(braccio(b1));
    }
    riga.push_back(tables::momento(parte.spinta));
    riga.push_back(tables::parola(traduttore(effetto(parte))));
    return riga;
}

}  // namespace

std::string fraseMeccanismo(const BilancioLimite& limite) {
    if (limite.moto.traslazione)
        return traduttore(
            "La paratia trasla: il terreno è al limite ovunque, dal lato verso cui si muove "
            "passivo, dall'altro attivo. Spinge ciò che ha il verso del moto; la somma è quanto "
            "manca.");
    return riempito(
        traduttore(
            "La paratia ruota attorno al perno, il nodo a %1 m: sopra e sotto di esso il terreno "
            "è al limite, passivo dal lato verso cui la paratia si muove, attivo dall'altro. Il "
            "braccio di una forza è la sua distanza dal perno, positiva dove la paratia si muove "
            "verso lo scavo. Il momento è forza per braccio, ciascuno con il suo segno: se è "
            "positivo la forza spinge la paratia nel suo moto, se è negativo le resiste. La somma "
            "dei momenti è quanto manca all'equilibrio."),
        {tables::profondita(limite.moto.profondita).testo});
}

Prospetto prospettoLimite(const project::DatiProgetto& dati, const BilancioLimite& limite) {
    const bool ruota = !limite.moto.traslazione;
    Prospetto p{.titolo = traduttore("Equilibrio al limite"),
                .colonne = {colonna("Che cosa agisce"), colonna("Dove"),
                            numeri(unita::forzaAlMetro, "Forza")}};
    if (ruota) {
        p.colonne.push_back(simboli(unita::metri, "z"));
        p.colonne.push_back(numeri(unita::metri, "Braccio"));
        p.colonne.push_back(numeri(unita::momentoAlMetro, "Momento"));
    }
    p.colonne.push_back(colonna("Effetto"));
    for (const ParteAlLimite& parte : limite.parti)
        p.righe.push_back(ruota ? rigaRotazione(dati, limite, parte)
                                : rigaTraslazione(dati, parte));
    const std::string mancano = base::conMaiuscola(traduttore("mancano"));
    const Cella vuota = tables::parola("");
    if (!ruota) {
        p.righe.push_back({tables::parola(mancano), vuota,
                           tables::forza(limite.moto.verso * limite.mancante), vuota});
        return p;
    }
    p.righe.push_back({tables::parola(traduttore("Reazione del perno")), vuota,
                       tables::forza(limite.perno), tables::profondita(limite.moto.profondita),
                       braccio(0), tables::momento(0), vuota});
    p.righe.push_back({tables::parola(mancano), vuota, tables::forza(limite.forzaRisultante),
                       tables::profondita(limite.zRisultante),
                       braccio(limite.moto.spostamento(limite.zRisultante)),
                       tables::momento(limite.mancante), vuota});
    for (const ParteAlLimite& parte : limite.parti)
        if (parte.cosa == AzioneLimite::momentoTesta)
            p.note.push_back(
                traduttore("Il momento in testa spinge se gira la testa nel verso del "
                           "moto, e non ha né forza né braccio."));
    p.note.push_back(
        traduttore("L'ultima riga è la somma delle altre, forze e momenti: una forza sola "
                   "all'estremo che si sposta di più. Con una forza opposta in quel punto la "
                   "paratia sarebbe appena in equilibrio, e il perno porterebbe la reazione "
                   "scritta; in esso il terreno non è al limite."));
    p.note.push_back(
        traduttore("Il programma prova le rotazioni attorno a ogni nodo e le due traslazioni, in "
                   "ogni verso. Mostra il moto per cui è più grande la forza dell'ultima riga."));
    return p;
}

Prospetto prospettoPressioniLimite(const BilancioLimite& limite) {
    Prospetto p{
        .titolo = traduttore("Pressioni al limite"),
        .colonne = {numeri("Nodo"), simboli(unita::metri, "z"), numeri(unita::metri, "Tratto"),
                    numeri(unita::pressione, "Monte"), colonna("Stato a monte"),
                    numeri(unita::pressione, "Valle"), colonna("Stato a valle"),
                    numeri(unita::pressione, "Acqua"), numeri(unita::forzaAlMetro, "Forza")}};
    int numero = 0;
    for (const NodoAlLimite& n : limite.nodi)
        p.righe.push_back({tables::cella(++numero), tables::profondita(n.z),
                           tables::cella(n.tratto, 4, unita::metri), tables::pressione(n.monte),
                           stato(n.statoMonte), tables::pressione(n.valle), stato(n.statoValle),
                           tables::pressione(n.acqua), tables::forza(n.forza)});
    p.note.push_back(
        traduttore("Tratto: la lunghezza di paratia di cui il nodo porta le pressioni. Forza: "
                   "tratto per la somma delle pressioni; nel perno e in un vincolo non c'è."));
    if (!limite.nodi.empty() && limite.nodi.front().costante != 0)
        p.note.push_back(riempito(traduttore("La forza conta anche la pressione costante di %1 "
                                             "kN/m²."),
                                  {tables::pressione(limite.nodi.front().costante).testo}));
    return p;
}

}  // namespace korven::report
