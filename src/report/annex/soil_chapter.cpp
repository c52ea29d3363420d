#include <string>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/soil_tables.hpp"
#include "report/annex/sources.hpp"
#include "report/annex/table_pieces.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::Fascicolo;
namespace unita = project::unita;

namespace {

std::string EJ(double conservata) {
    return tables::cella(conservata, 0, unita::rigidezzaFlessionale).testo + " " +
           std::string(unita::rigidezzaFlessionale.mostrata);
}

// Which stiffness the calculation takes, and which the section has.
std::string qualeRigidezza(const Fascicolo& f) {
    const double usata = f.parete.dati.rigidezzaEJ;
    const auto& offerta = f.rigidezza.offerta;
    if (!offerta)
        return riempito(traduttore("Il calcolo prende EJ = %1 per metro di paratia, la rigidezza "
                                   "scritta: il progetto non ha una sezione da cui calcolarla, e "
                                   "come è stata ottenuta non è detto nei dati."),
                        {EJ(usata)});
    if (usata == *offerta)
        return riempito(traduttore("Il calcolo prende EJ = %1 per metro di paratia, quella che la "
                                   "sezione ha con i moduli scritti."),
                        {EJ(usata)});
    return riempito(traduttore("Il calcolo prende EJ = %1 per metro di paratia, la rigidezza "
                               "scritta; la sezione con i moduli scritti avrebbe %2."),
                    {EJ(usata), EJ(*offerta)});
}

void rigidezza(const Fascicolo& f, Blocchi& blocchi) {
    blocchi.emplace_back(document::Titolo{2, traduttore("Rigidezza EJ della paratia")});
    paragrafo(qualeRigidezza(f), blocchi);
    auto p = prospettoRigidezza(f);
    if (p.righe.empty()) return;
    if (!f.parete.dati.sezione.tipoPalancola)
        p.note.push_back(riempito(
            traduttore("Una sezione fessurata è meno rigida: con quella intera momenti e forze "
                       "vengono di regola maggiori, gli spostamenti minori del vero. Fonti: %1."),
            {fonti::rigidezza}));
    tavola(std::move(p), blocchi);
}

}  // namespace

void capitoloTerreno(const Contesto& contesto, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    paragrafo(riempito(traduttore("Che cosa il calcolo ricava dai dati, prima di cercare "
                                  "l'equilibrio: le formule e le loro fonti sono nel capitolo %1, "
                                  "i valori di ogni nodo nel capitolo %2."),
                       {traduttore("Modello e ipotesi"), traduttore("Terreno nodo per nodo")}),
              blocchi);
    if (f.terreno.strati.empty())
        paragrafo(traduttore("Il progetto non ha strati."), blocchi);
    else
        tavola(prospettoCoefficienti(f), blocchi);
    if (auto p = prospettoFormuleCoefficienti(f); !p.righe.empty()) tavola(std::move(p), blocchi);
    if (auto p = prospettoModuli(f); !p.righe.empty()) tavola(std::move(p), blocchi);
    rigidezza(f, blocchi);
}

}  // namespace korven::report
