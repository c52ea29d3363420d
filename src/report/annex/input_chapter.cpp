#include <string>
#include <utility>
#include <vector>

#include "base/code_page.hpp"
#include "base/colon.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/annex/annex_drawings.hpp"
#include "project/field_table.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/field_cells.hpp"
#include "report/annex/table_pieces.hpp"
#include "structure/section_validity.hpp"
#include "tables/result_table.hpp"

namespace korven::report {

using base::conMaiuscola;
using base::traduttore;
using dossier::Fascicolo;
using project::Campo;
using project::Parte;
using tables::parola;

namespace {

tables::Prospetto prospettoValori(const char* titolo) {
    return {.titolo = traduttore(titolo),
            .colonne = {colonna("Significato"), colonna("Campo"), colonna("Unità"),
                        colonna("Scritto"), colonna("Usato"), colonna("Nota")}};
}

void riga(const Fascicolo& f, const Campo& campo, tables::Prospetto& p) {
    const Uso suo = uso(f, campo);
    p.righe.push_back({parola(nomeDetto(campo)), parola(project::nomeStabile(campo)),
                       parola(unitaDetta(campo)), scritto(f.scritti, campo), usato(f, campo),
                       parola(suo.nota)});
}

bool dellaSezione(const Campo& campo) { return campo.parte >= Parte::diaframma; }

tables::Prospetto generali(const Fascicolo& f) {
    tables::Prospetto p = prospettoValori("Paratia, terreno e opzioni");
    for (const Campo& campo : project::campi())
        if (!project::colonna(campo) && !dellaSezione(campo)) riga(f, campo, p);
    return p;
}

// In force first; what other types of section left in the file is told, since the file is whole.
tables::Prospetto dellaSezione(const Fascicolo& f, bool lette) {
    tables::Prospetto p = prospettoValori(lette ? "Sezione della paratia"
                                                : "Valori di altri tipi di sezione, non usati");
    for (const Campo& campo : project::campi())
        if (!project::colonna(campo) && dellaSezione(campo) && uso(f, campo).letto == lette)
            riga(f, campo, p);
    return p;
}

// Whole names: the captions of the editors are cut short for their columns.
tables::Colonna testa(const Campo& campo) {
    return {.titolo = nomeDetto(campo),
            .unita = unitaDetta(campo),
            .spiegazione = conMaiuscola(traduttore(campo.cosa)),
            .numerica = !std::holds_alternative<
                base::Tabella<std::string, project::massimoStrati> project::DatiProgetto::*>(
                campo.membro)};
}

// A row for each row of the project's table, a column for each of its fields.
tables::Prospetto tabella(const Fascicolo& f, Parte parte, const char* titolo) {
    tables::Prospetto p{.titolo = traduttore(titolo), .colonne = {colonnaNumero()}};
    const int righe = project::righe(f.scritti, parte);
    for (int i = 1; i <= righe; ++i) p.righe.push_back({tables::cella(i)});
    bool uguali = true, letti = true;
    for (const Campo& campo : project::campi()) {
        if (campo.parte != parte || !project::colonna(campo)) continue;
        p.colonne.push_back(testa(campo));
        for (int i = 1; i <= righe; ++i) {
            p.righe[static_cast<std::size_t>(i) - 1].push_back(scritto(f.scritti, campo, i));
            uguali = uguali && scritto(f.scritti, campo, i) == scritto(f.parete.dati, campo, i);
        }
        const Uso suo = uso(f, campo);
        letti = letti && suo.letto;
        if (!suo.nota.empty())
            p.note.push_back(nomeDetto(campo) + base::duePunti() + suo.nota + ".");
    }
    if (righe == 0) p.note = {traduttore("La tabella è vuota.")};
    if (righe > 0 && uguali)
        p.note.insert(p.note.begin(),
                      traduttore(letti ? "Valori come sono scritti; il calcolo prende gli stessi."
                                       : "Valori come sono scritti; il calcolo prende gli stessi "
                                         "dei campi che legge."));
    return p;
}

// Those that are written, each with its number.
tables::Prospetto titoli(const Fascicolo& f) {
    tables::Prospetto p{.titolo = traduttore("Titoli del progetto"),
                        .colonne = {colonnaNumero(), colonna("Titolo")}};
    for (int i = 1; i <= project::numeroTitoli; ++i)
        if (!f.scritti.titoli[i].empty())
            p.righe.push_back({tables::cella(i), parola(f.scritti.titoli[i])});
    if (p.righe.empty()) p.note = {traduttore("La tabella è vuota.")};
    return p;
}

void figure(const Contesto& contesto, Blocchi& blocchi) {
    constexpr double altezzaMinima = 9.5;  // of a wall with the names of its parts [cm]
    const auto f = contesto.fascicolo;
    if (f->parete.dati.lunghezzaParatia > 0) {
        const auto [l, h] = drawings::formatoParete;
        blocchi.emplace_back(document::Figura{
            f->limite
                ? base::riempito(
                      traduttore("Sezione della paratia, in scala; in rosso, ingrandito, come "
                                 "cade nella fase %1"),
                      {std::to_string(f->limite->fase)})
                : traduttore("Sezione della paratia con terreno, acqua, sostegni e fasi, in scala"),
            traduttore("La paratia in sezione verticale: strati, falda, sostegni con la loro "
                       "profondità e livelli di scavo delle fasi."),
            l, h, [f, l = l, h = h] { drawings::disegnaParete(f->parete, l, h); }, altezzaMinima,
            [f, l = l](double bassa) { drawings::disegnaParete(f->parete, l, bassa); }});
    }
    if (structure::sezioneDefinita(f->parete.dati.sezione)) {
        const auto [l, h] = drawings::formatoSezione;
        blocchi.emplace_back(document::Figura{
            traduttore("Sezione orizzontale della paratia"),
            traduttore("La sezione della paratia in pianta con le sue misure."), l, h,
            [f, l = l, h = h] { drawings::disegnaSezioneParete(f->parete.dati.sezione, l, h); }});
    }
}

}  // namespace

void capitoloDati(const Contesto& contesto, Blocchi& blocchi) {
    using document::Tavola;
    const Fascicolo& f = *contesto.fascicolo;
    blocchi.emplace_back(document::Paragrafo{
        traduttore(
            "Tutti i campi del progetto, nell'ordine del suo file, con il valore scritto e "
            "quello che il calcolo prende. Un trattino fra i valori usati: nessun calcolo lo "
            "legge. Sotto Campo c'è il nome del dato nel programma, uguale in ogni lingua."),
        {}});
    paragrafo(traduttore("I numeri hanno qui al più sette cifre; per intero stanno nel file di "
                         "progetto, nell'ultimo capitolo."),
              blocchi, document::Stile::nota);
    figure(contesto, blocchi);
    blocchi.emplace_back(Tavola{tabella(f, Parte::strati, "Strati")});
    blocchi.emplace_back(Tavola{tabella(f, Parte::tiranti, "Tiranti e puntoni")});
    blocchi.emplace_back(Tavola{tabella(f, Parte::fasi, "Fasi di scavo")});
    blocchi.emplace_back(Tavola{generali(f)});
    blocchi.emplace_back(Tavola{dellaSezione(f, true)});
    blocchi.emplace_back(Tavola{dellaSezione(f, false)});
    blocchi.emplace_back(Tavola{titoli(f)});
}

}  // namespace korven::report
