#include <string>
#include <utility>

#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/annex/annex_drawings.hpp"
#include "project/shown_number.hpp"
#include "report/annex/chapters.hpp"
#include "report/annex/section_tables.hpp"
#include "report/annex/shear_rules.hpp"
#include "report/annex/table_pieces.hpp"
#include "report/annex/twin_words.hpp"
#include "structure/limit_search.hpp"
#include "structure/partial_factors.hpp"
#include "structure/strip_model.hpp"
#include "tables/check_table.hpp"
#include "tables/section_table.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using document::Stile;
using dossier::Fascicolo;
using dossier::LatoFlessione;
using dossier::LimiteSezione;

namespace {

constexpr int perMille = 3;  // places of the point from a strain to its thousandths

void titolo(int livello, const char* testo, Blocchi& blocchi) {
    blocchi.emplace_back(document::Titolo{livello, traduttore(testo)});
}

// Of which actions the checks are.
void azioni(const Fascicolo& f, Blocchi& blocchi) {
    if (!f.controlli.conAzioni) {
        paragrafo(traduttore("Azioni non note: la paratia non è calcolata o non è in equilibrio."),
                  blocchi, Stile::pericolo);
        return;
    }
    if (!f.parete.sta())
        paragrafo(riempito(traduttore("Azioni della soluzione di equilibrio, fino alla fase %1."),
                           {std::to_string(f.parete.fasiInEquilibrio())}),
                  blocchi, Stile::pericolo);
    const auto due = [](double v) { return base::testoDecimali(v, 2); };
    paragrafo(
        riempito(
            traduttore("Azioni della soluzione di equilibrio: i momenti e il taglio maggiori fra "
                       "tutte le fasi in equilibrio. Coefficienti parziali: azioni %1, "
                       "calcestruzzo %2, acciaio %3."),
            {due(structure::fsAzioniSezione), due(structure::fsCalcestruzzo),
             due(structure::fsAcciaio)}),
        blocchi);
    paragrafo(traduttore("Nelle formule i valori messi hanno una cifra in più del risultato, che è "
                         "arrotondato una volta sola."),
              blocchi, Stile::nota);
}

// The strains at which a direction of bending reaches its resistance.
std::string stato(const LatoFlessione& l) {
    if (l.limite == LimiteSezione::nessuno)
        return traduttore("Nessun equilibrio con questo sforzo normale: la resistenza è 0.");
    if (l.MRd <= 0)
        return traduttore(
            "Lo sforzo normale da solo piega la sezione nel verso opposto: in questo "
            "verso non resiste a nulla.");
    const auto mille = [](double eps) { return base::testoDecimali(eps, 3, perMille); };
    const std::string testo =
        riempito(traduttore("Alla resistenza: curvatura %1 1/m, deformazione %2 ‰ alla faccia più "
                            "tesa e %3 all'altra, zona accorciata %4 mm."),
                 {base::testoDecimali(l.chi, 5, perMille), mille(l.epsTeso), mille(l.epsCompresso),
                  project::numeroMostrato(l.x, 1)});
    return testo + " " +
           riempito(
               traduttore(l.limite == LimiteSezione::accorciamento
                              ? "La decide l'accorciamento di una faccia, %1 ‰."
                              : "La decide l'allungamento dell'acciaio, %1 ‰."),
               {mille(l.limite == LimiteSezione::accorciamento ? -structure::accorciamentoLimite
                                                               : structure::allungamentoLimite)});
}

void verso(const Fascicolo& f, bool positivo, Blocchi& blocchi) {
    const auto& l = positivo ? f.flessione->positivo : f.flessione->negativo;
    titolo(3,
           positivo ? "Momento positivo, che tende la faccia verso lo scavo"
                    : "Momento negativo, che tende la faccia verso terra",
           blocchi);
    const bool agisce = l.Md > 0;
    if (f.controlli.conAzioni && agisce) {
        const auto& c = *f.controlli.flessione;
        tavola(prospettoFlessione(*f.flessione, positivo, positivo ? c.mMax : -c.mMin), blocchi);
        paragrafo(inFrase(traduttore(l.verificato ? "verificata" : "NON verificata")), blocchi,
                  l.verificato ? Stile::rilievo : Stile::pericolo);
    } else if (f.controlli.conAzioni) {
        paragrafo(traduttore(positivo ? "Nessun momento positivo agisce."
                                      : "Nessun momento negativo agisce."),
                  blocchi);
    }
    paragrafo(stato(l), blocchi);
    if (auto p = prospettoForzeInterne(*f.flessione, positivo); !p.righe.empty())
        tavola(std::move(p), blocchi);
}

void flessione(const Fascicolo& f, Blocchi& blocchi) {
    titolo(2, "Flessione", blocchi);
    const bool cls = f.flessione->fcd > 0;
    paragrafo(
        riempito(
            traduttore(
                cls ? "Stato limite ultimo di un metro di paratia, diviso in %1 strisce: sezioni "
                      "piane; calcestruzzo senza trazione, con parabola e rettangolo fino a 0.85 "
                      "fcd; acciaio elastico e poi plastico. La resistenza è il momento a cui una "
                      "faccia si accorcia di %2 o l'acciaio si allunga di %3 (CEN, ENV "
                      "1992-1-1, 1991, 4.3.1)."
                    : "Stato limite ultimo di un metro di paratia, diviso in %1 strisce: sezioni "
                      "piane; acciaio elastico e poi plastico. La resistenza è il momento a cui "
                      "una faccia si accorcia di %2 o si allunga di %3."),
            {std::to_string(structure::nStrisce),
             base::testoDecimali(-structure::accorciamentoLimite, 4),
             base::testoDecimali(structure::allungamentoLimite, 3)}),
        blocchi);
    tavola(prospettoMateriali(*f.flessione), blocchi);
    verso(f, true, blocchi);
    verso(f, false, blocchi);
}

void dominio(const Contesto& contesto, Blocchi& blocchi) {
    const auto f = contesto.fascicolo;
    if (f->dominio.empty()) return;
    auto p = tables::prospettoDominio(f->parete, nullptr, f->dominio);
    titolo(2, "Dominio N–M", blocchi);
    const auto [larghezza, altezza] = drawings::formatoDominio;
    const std::string cosa = traduttore("Dominio N–M della sezione e punti delle fasi");
    blocchi.emplace_back(document::Figura{
        cosa, cosa + ".", larghezza, altezza, [f, larghezza = larghezza, altezza = altezza] {
            drawings::disegnaDominio(f->dominio, f->nelDominio, larghezza, altezza);
        }});
    p.titolo = traduttore("Le fasi nel dominio");
    if (!p.righe.empty()) return tavola(std::move(p), blocchi);
    for (const std::string& nota : p.note) paragrafo(nota, blocchi);
}

void taglio(const Fascicolo& f, Blocchi& blocchi) {
    titolo(2, "Taglio", blocchi);
    if (!f.taglio) {
        paragrafo(percheSenzaTaglio(f) + " " + taglioDaVerificare(f), blocchi, Stile::rilievo);
        return;
    }
    tavola(prospettoTaglio(f.parete.dati.sezione, *f.taglio), blocchi);
    tavola(prospettoScostamentiTaglio(f.parete.dati, *f.taglio), blocchi);
}

void relazione(const Fascicolo& f, Blocchi& blocchi) {
    if (!f.conRelazione()) return;
    titolo(2, "Le verifiche della relazione", blocchi);
    auto p = tables::prospettoVerifiche(f.parete, *f.margine);
    p.titolo.clear();
    p.note.push_back(
        traduttore("Come nella relazione, questi numeri sono troncati alla seconda cifra; nel "
                   "resto del documento sono arrotondati."));
    tavola(std::move(p), blocchi);
}

}  // namespace

void capitoloSezione(const Contesto& contesto, Blocchi& blocchi) {
    const Fascicolo& f = *contesto.fascicolo;
    if (!f.flessione) {
        for (const std::string& riga :
             tables::quadroSezione(f.parete.dati, f.parete, nullptr).righe)
            paragrafo(riga, blocchi);
        paragrafo(traduttore("Nessuna verifica: la sezione non è definita."), blocchi,
                  Stile::rilievo);
        return;
    }
    azioni(f, blocchi);
    tavola(prospettoControlli(f), blocchi);
    if (auto p = prospettoVerificheDoppie(f); !p.righe.empty())
        tavola(std::move(p), blocchi);
    else if (f.conRelazione())
        paragrafo(traduttore("La relazione fa le stesse verifiche con gli stessi numeri."), blocchi,
                  Stile::nota);
    flessione(f, blocchi);
    dominio(contesto, blocchi);
    taglio(f, blocchi);
    relazione(f, blocchi);
}

}  // namespace korven::report
