#include <algorithm>
#include <optional>
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
#include "safety/check_verdict.hpp"
#include "safety/mesh_words.hpp"
#include "structure/limit_search.hpp"
#include "structure/partial_factors.hpp"
#include "structure/section_type.hpp"
#include "structure/strip_model.hpp"
#include "tables/check_table.hpp"
#include "tables/check_words.hpp"
#include "tables/section_table.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using document::Stile;
using dossier::Fascicolo;
using dossier::LatoFlessione;
using dossier::LimiteSezione;
using results::Verifica;
using safety::Giudizio;
using tables::Prospetto;

namespace {

constexpr int perMille = 3;  // places of the point from a strain to its thousandths

void titolo(int livello, const char* testo, Blocchi& blocchi) {
    blocchi.emplace_back(document::Titolo{livello, traduttore(testo)});
}

// Of which actions the checks are.
void azioni(const Fascicolo& f, Blocchi& blocchi) {
    if (!f.controlli.conAzioni) {
        paragrafo(traduttore(tables::azioniNonNote(f.parete)), blocchi, Stile::pericolo);
        return;
    }
    if (!f.parete.sta())
        paragrafo(riempito(traduttore("Azioni della soluzione di equilibrio, fino alla fase %1."),
                           {std::to_string(f.parete.fasiInEquilibrio())}),
                  blocchi, Stile::pericolo);
    const auto due = [](double v) { return base::testoDecimali(v, 2); };
    paragrafo(
        traduttore("Azioni della soluzione di equilibrio: i momenti e il taglio maggiori fra "
                   "tutte le fasi in equilibrio.") +
            " " +
            riempito(f.flessione->fcd > 0
                         ? traduttore("Coefficienti parziali, costanti di questo programma: azioni "
                                      "%1, acciaio %2, calcestruzzo %3. CEN, ENV 1992-1-1 (1991), "
                                      "2.3.3, ha per l'acciaio lo stesso, per il calcestruzzo "
                                      "1.50, per le azioni 1.35 e 1.50.")
                         : traduttore("Coefficienti parziali, costanti di questo programma: azioni "
                                      "%1, acciaio %2, quello delle armature in CEN, ENV 1992-1-1 "
                                      "(1991), 2.3.3."),
                     {due(structure::fsAzioniSezione), due(structure::fsAcciaio),
                      due(structure::fsCalcestruzzo)}),
        blocchi);
    paragrafo(traduttore("Nelle formule i valori inseriti hanno una cifra in più del risultato, "
                         "che è arrotondato una volta sola."),
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
                            "tesa e %3 ‰ all'altra, zona compressa %4 mm."),
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

// A check that holds only as long as the factored axial force is there.
void conAltroSforzo(const LatoFlessione& l, bool positivo, const Fascicolo& f, Blocchi& blocchi) {
    auto p = prospettoAltriSforzi(*f.flessione, positivo);
    if (p.righe.empty()) return;
    tavola(std::move(p), blocchi);
    const auto massimo = l.usoMaggiore();
    if (l.verificato && massimo && *massimo >= 1)
        paragrafo(traduttore("Senza lo sforzo normale così moltiplicato la sezione non è "
                             "verificata."),
                  blocchi, Stile::pericolo);
}

// What is said of a direction of bending, the same as on the cover. Of a wall that falls no more
// than that a check of the stages before fails.
std::optional<Giudizio> giudizioDi(const Fascicolo& f, bool positivo) {
    const auto& l = positivo ? f.flessione->positivo : f.flessione->negativo;
    std::optional<Giudizio> g;
    if (f.parete.sta() && f.margine)
        g = safety::giudizio(*f.margine,
                             positivo ? Verifica::momentoPositivo : Verifica::momentoNegativo);
    return !g && !l.verificato ? Giudizio::fallita : g;
}

void verso(const Fascicolo& f, bool positivo, Blocchi& blocchi) {
    const auto& l = positivo ? f.flessione->positivo : f.flessione->negativo;
    titolo(3,
           positivo ? "Momento positivo, che tende la faccia verso lo scavo"
                    : "Momento negativo, che tende la faccia verso terra",
           blocchi);
    // A moment that is printed as 0 is what rounding leaves of none.
    Prospetto confronto;
    if (f.controlli.conAzioni && l.Md > 0) {
        const auto& c = *f.controlli.flessione;
        confronto = prospettoFlessione(*f.flessione, positivo, positivo ? c.mMax : -c.mMin);
    }
    const bool agisce = !confronto.righe.empty() && !stampataNulla(confronto.righe.front()[3]);
    if (agisce) {
        tavola(std::move(confronto), blocchi);
        if (const auto g = giudizioDi(f, positivo))
            paragrafo(inFrase(traduttore(nome(*g))), blocchi,
                      *g == Giudizio::verificata ? Stile::rilievo : Stile::pericolo);
        conAltroSforzo(l, positivo, f, blocchi);
    } else if (f.controlli.conAzioni) {
        paragrafo(traduttore(positivo ? "Nessun momento positivo agisce."
                                      : "Nessun momento negativo agisce."),
                  blocchi);
    }
    paragrafo(stato(l), blocchi);
    if (auto p = prospettoForzeInterne(*f.flessione, positivo); !p.righe.empty())
        tavola(std::move(p), blocchi);
}

// What the model makes of this kind of section, and what its code would have otherwise.
std::string delTipo(const project::Sezione& sezione) {
    switch (structure::tipoSezione(sezione)) {
        case structure::TipoSezione::diaframma:
        case structure::TipoSezione::paliArmati:
            return traduttore(
                "Il calcestruzzo è al netto delle barre. L'allungamento dell'acciaio "
                "è letto alla profondità del copriferro, cioè al bordo esterno delle "
                "barre e non al loro asse, anche dove barre non ci sono. Leggi dei "
                "materiali e limiti di CEN, ENV 1992-1-1 (1991), 4.2.1.3.3, "
                "4.2.2.3.2 e 4.3.1.");
        case structure::TipoSezione::pali:
            return traduttore(
                "Il calcestruzzo riempie il tubo e lavora con esso; l'allungamento "
                "dell'acciaio è letto alla faccia. Leggi dei materiali e limiti sono "
                "quelli del cemento armato in CEN, ENV 1992-1-1 (1991), 4.2.1.3.3, "
                "4.2.2.3.2 e 4.3.1: la norma delle colonne miste, EN 1994-1-1, qui "
                "non è applicata.");
        case structure::TipoSezione::palancola:
            return traduttore(
                "Coefficiente dell'acciaio e limiti di deformazione sono quelli del "
                "cemento armato in CEN, ENV 1992-1-1 (1991), 4.3.1. La norma delle "
                "palancole, EN 1993-5, verifica in un altro modo, con la classe "
                "della sezione, e qui non è applicata.");
        case structure::TipoSezione::nessuno:
            break;
    }
    return {};
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
                      "faccia si accorcia di %2 o l'acciaio si allunga di %3."
                    : "Stato limite ultimo di un metro di paratia, diviso in %1 strisce: sezioni "
                      "piane; acciaio elastico e poi plastico. La resistenza è il momento a cui "
                      "una faccia si accorcia di %2 o si allunga di %3."),
            {std::to_string(structure::nStrisce),
             base::testoDecimali(-structure::accorciamentoLimite, 4),
             base::testoDecimali(structure::allungamentoLimite, 3)}),
        blocchi);
    const project::Sezione& sezione = f.parete.dati.sezione;
    paragrafo(delTipo(sezione), blocchi);
    tavola(prospettoMateriali(sezione, *f.flessione), blocchi);
    verso(f, true, blocchi);
    verso(f, false, blocchi);
}

// The points are of this mesh alone: a stage that decides a check has the verdict on that.
void verdettiDelleFasi(const Fascicolo& f, Prospetto& p) {
    for (auto& riga : p.righe) {
        auto peggiore = Giudizio::verificata;
        for (const bool positivo : {true, false}) {
            const auto& dove = positivo ? f.controlli.positivo : f.controlli.negativo;
            if (riga.front().testo == std::to_string(dove.fase))
                peggiore = std::max(peggiore, giudizioDi(f, positivo).value_or(peggiore));
        }
        if (peggiore != Giudizio::verificata) riga.back() = tables::esito(peggiore);
    }
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
    verdettiDelleFasi(*f, p);
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
    auto p = tables::prospettoVerificheRelazione(f.parete, *f.margine);
    p.titolo.clear();
    p.note.push_back(
        traduttore("Come nella relazione, questi numeri sono troncati alla seconda cifra decimale; "
                   "nel resto del documento sono arrotondati."));
    tavola(std::move(p), blocchi);
}

// The checks below are of this mesh alone: one that finer meshes judge otherwise says so here.
void verdettiDellaMaglia(const Fascicolo& f, Blocchi& blocchi) {
    if (!f.margine) return;
    for (const safety::AvvisoMaglia& avviso : safety::avvisiMaglia(*f.margine))
        if (avviso.verdetto) paragrafo(avviso.testo, blocchi, Stile::pericolo);
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
    verdettiDellaMaglia(f, blocchi);
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
