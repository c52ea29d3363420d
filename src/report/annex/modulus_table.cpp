#include <algorithm>
#include <string>
#include <vector>

#include "analysis/subgrade_modulus.hpp"
#include "analysis/vertical_stress.hpp"
#include "base/filled_text.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/field_cells.hpp"
#include "report/annex/soil_tables.hpp"
#include "report/annex/table_pieces.hpp"

namespace korven::report {

using base::riempito;
using base::traduttore;
using dossier::Fascicolo;
using project::DatiProgetto;
using project::MetodoKs;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

Cella modulo(double ks) { return tables::cella(ks, 1, unita::modulo); }

int strati(const Fascicolo& f) { return static_cast<int>(f.terreno.strati.size()); }

void costante(const Fascicolo& f, Prospetto& p) {
    p.colonne = {colonnaStrato(), simboli(unita::modulo, "ks")};
    for (int j = 1; j <= strati(f); ++j)
        p.righe.push_back({tables::cella(j), modulo(f.parete.dati.ksStrato[j])});
    p.note.push_back(traduttore("Il ks scritto, lo stesso in tutto lo strato e sui due lati."));
}

// ks at the top and at the bottom of a layer, from which it is linear between.
void lineare(const Fascicolo& f, Prospetto& p) {
    const DatiProgetto& dati = f.parete.dati;
    p.colonne = {colonnaStrato(),
                 colonna("Lato"),
                 simboli(unita::metri, "t"),
                 simboli(unita::metri, "b"),
                 simboli(unita::modulo, "ks(t)"),
                 simboli(unita::modulo, "ks(b)")};
    const auto riga = [&](int j, const char* lato, double fondo) {
        p.righe.push_back({tables::cella(j), tables::parola(traduttore(lato)),
                           tables::profondita(dati.profStrato[j - 1]), tables::profondita(fondo),
                           modulo(dati.ksStrato[j - 1]), modulo(dati.ksStrato[j])});
    };
    for (int j = 1; j <= strati(f); ++j) {
        const double fondo = analysis::fondoStrato(dati, j);
        if (fondo == dati.profStrato[j] || dati.modoKs == project::ModoKs::comeMonte) {
            riga(j, "monte e valle", fondo);
        } else {
            riga(j, "monte", fondo);
            riga(j, "valle", dati.profStrato[j]);
        }
    }
    p.note.emplace_back("ks = ks(t) + (ks(b) − ks(t)) · (z − t) / (b − t)");
    p.note.push_back(traduttore("t, b: profondità della testa e del fondo dello strato."));
    if (const int n = strati(f); n > 0 && dati.modoKs != project::ModoKs::comeMonte)
        p.note.push_back(riempito(
            traduttore("A monte l'ultimo strato conta fino a %1 m sotto il suo fondo, e ks vi "
                       "cambia più piano che a valle, dove oltre il fondo la retta continua."),
            {tables::cella(analysis::fondoStrato(dati, n) - dati.profStrato[n], 0, unita::metri)
                 .testo}));
}

void bowles(const Fascicolo& f, Prospetto& p) {
    using analysis::fattoreBowles;
    const DatiProgetto& dati = f.parete.dati;
    p.colonne = {colonnaStrato(),
                 simboli(unita::nessuna, "Nq"),
                 simboli(unita::nessuna, "Nc"),
                 simboli(unita::nessuna, "Nγ"),
                 simboli(unita::modulo, "A"),
                 numeri(unita::modulo, "B sopra la falda"),
                 numeri(unita::modulo, "B sotto la falda"),
                 {.titolo = "C", .unita = "1/m"}};
    for (int j = 1; j <= strati(f); ++j) {
        const auto& [Nq, Nc, Ngamma] = f.terreno.strati[static_cast<std::size_t>(j) - 1].portanza;
        p.righe.push_back(
            {tables::cella(j), tables::cella(Nq, 3, unita::nessuna),
             tables::cella(Nc, 3, unita::nessuna), tables::cella(Ngamma, 3, unita::nessuna),
             modulo(fattoreBowles * dati.coesione[j] * Nc),
             modulo(fattoreBowles * dati.gammaN[j] * Ngamma),
             modulo(fattoreBowles * (dati.gammaSat[j] - analysis::alleggerimentoBowles) * Ngamma),
             tables::cella(fattoreBowles * Nq, 2, unita::nessuna)});
    }
    const std::string quaranta = base::testoNumero(fattoreBowles);
    p.note.push_back(riempito(
        "ks = A + B + C · (σv − u);   A = %1 c Nc;   B = %1 γ Nγ;   C = %1 Nq", {quaranta}));
    p.note.push_back(
        riempito("Nq = tan²(45° + φ/2) · exp(π tan φ);   Nc = (Nq − 1) / tan φ;   "
                 "Nγ = %1 (Nq − 1) tan φ",
                 {base::testoNumero(analysis::fattoreNgamma)}));
    p.note.push_back(riempito(
        traduttore("In kN e m. Sotto la falda %1 è il peso saturo meno %2 kN/m³, qualunque sia il "
                   "peso scritto per l'acqua; la tensione è quella efficace del lato, anche quando "
                   "le pressioni usano quella totale."),
        {"γ", base::testoNumero(mostrato(unita::modulo, analysis::alleggerimentoBowles))}));
    p.note.push_back(riempito(
        traduttore("Il termine della larghezza, 0.5 %1 B %2 nella portanza di una fondazione larga "
                   "B, è qui %1 %2, come con B = 2 m; %3 è in 1/m: la portanza divisa per 25 mm di "
                   "cedimento. A e B in kN/m³, C in 1/m, %4 e u in kN/m²."),
        {"γ", "Nγ", quaranta, "σv"}));
    if (dati.modoSpinte == project::ModoSpinte::comeMonte &&
        dati.modoKs != project::ModoKs::comeMonte)
        p.note.push_back(
            traduttore("A valle, con le spinte uguali al lato monte, la tensione efficace non è "
                       "calcolata e il termine C manca: ks = A + B."));
}

void lancellotta(const Fascicolo& f, Prospetto& p) {
    const DatiProgetto& dati = f.parete.dati;
    p.colonne = {colonnaStrato(), {.titolo = "m", .unita = unitaCoefficienteM}};
    for (int j = 1; j <= strati(f); ++j)
        p.righe.push_back(
            {tables::cella(j), {.testo = base::testoNumero(dati.coeffM), .numero = dati.coeffM}});
    p.note.push_back(riempito(
        traduttore("ks = %1 m %2(|p0| / %1) in kN/m³, con la pressione a riposo p0 in kN/m²: m è "
                   "scritto per t/m³ e t/m², e una tonnellata forza vale %1 kN."),
        {base::testoNumero(mostrato(unita::modulo, 1)), "√"}));
}

}  // namespace

Prospetto prospettoModuli(const Fascicolo& f) {
    const DatiProgetto& dati = f.parete.dati;
    Prospetto p{.titolo = traduttore("Moduli delle molle")};
    if (dati.metodoKs == MetodoKs::bowles)
        bowles(f, p);
    else if (dati.metodoKs == MetodoKs::lancellotta)
        lancellotta(f, p);
    else if (dati.metodoKs == MetodoKs::lineare)
        lineare(f, p);
    else
        costante(f, p);
    if (dati.modoKs == project::ModoKs::comeMonte)
        p.note.push_back(traduttore("A valle ks è quello di monte alla stessa profondità."));
    return p;
}

}  // namespace korven::report
