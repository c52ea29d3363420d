#include <string>
#include <utility>

#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "project/units.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/model_tables.hpp"

namespace korven::report {

using base::traduttore;
using project::DatiProgetto;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

// A quantity and how each side has it.
class Righe {
 public:
    explicit Righe(Prospetto& p) : p_(p) {}

    void aggiungi(const char* cosa, std::string monte, std::string valle) {
        p_.righe.push_back({tables::parola(traduttore(cosa)), tables::parola(std::move(monte)),
                            tables::parola(std::move(valle)),
                            tables::parola(std::string(unita::pressione.mostrata))});
    }

 private:
    Prospetto& p_;
};

void tensioni(const DatiProgetto& dati, Righe& r) {
    if (dati.modoSpinte == project::ModoSpinte::comeMonte) {
        r.aggiungi("Tensione verticale totale", "σv = q + Σ γ Δz", tables::nessuno);
        r.aggiungi("Acqua nei pori", "u = γw (z − max(zw, 0)) ≥ 0", tables::nessuno);
    } else {
        r.aggiungi("Tensione verticale totale", "σv = q + Σ γ Δz", "σv = qf + Σ γ Δz");
        r.aggiungi("Acqua nei pori", "u = γw (z − max(zw, 0)) ≥ 0", "u = γw (z − max(zw, e)) ≥ 0");
    }
    const char* usata =
        dati.modoTensioni == project::ModoTensioni::efficaci ? "σ = σv − u" : "σ = σv";
    r.aggiungi("Tensione verticale usata", usata,
               dati.modoSpinte == project::ModoSpinte::comeMonte
                   ? "σ = " + traduttore("quella di monte")
                   : usata);
}

void limiti(const DatiProgetto& dati, Righe& r) {
    if (dati.metodoSpinte < project::MetodoSpinte::bell) {
        r.aggiungi("Limite attivo", "pa = ka σ − 2 c tan(45° − φ/2) ≥ 0",
                   "pa = −ka σ + 2 c tan(45° − φ/2) ≤ 0");
        r.aggiungi("Limite passivo", "pp = kp σ + 2 c tan(45° + φ/2)",
                   "pp = −kp σ − 2 c tan(45° + φ/2)");
    } else {
        r.aggiungi("Limite attivo", "pa = ka σ", "pa = −ka σ");
        r.aggiungi("Limite passivo", "pp = kp σ", "pp = −kp σ");
    }
}

}  // namespace

Prospetto prospettoMolla(const DatiProgetto& dati) {
    Prospetto p{.titolo = traduttore("La molla del terreno in un nodo"),
                .colonne = {colonna("Grandezza fisica"), colonna("Monte"), colonna("Valle"),
                            colonna("Unità")}};
    Righe r(p);
    tensioni(dati, r);
    r.aggiungi("Pressione a riposo", "p0 = k0 σ", "p0 = −k0 σ");
    limiti(dati, r);
    r.aggiungi("Pressione, elastica fra i limiti", "p = p0 − ks y,   pa ≤ p ≤ pp",
               "p = p0 − ks y,   pp ≤ p ≤ pa");
    r.aggiungi("Acqua sulla paratia", "γw (z − zw) ≥ 0", "−γw (z − zw) ≤ 0");
    p.note = {
        base::riempito(
            traduttore(
                "Segni: positivo verso lo scavo. y è lo spostamento del nodo [m], z la sua "
                "profondità, zw quella della falda dal suo lato, e lo scavo della fase [m]; q e "
                "qf sono i sovraccarichi a monte e sul fondo dello scavo; %1 è il peso naturale "
                "sopra la falda e quello saturo sotto, %2 il peso dell'acqua [kN/m³], c la "
                "coesione [kN/m²], ks il modulo [kN/m³]."),
            {"γ", "γw"}),
        traduttore("La pressione segue sempre la stessa retta, da p0 con spostamento nullo. In un "
                   "nodo vincolato la molla del terreno non agisce: p è quella con y = 0. Sopra lo "
                   "scavo a valle non c'è terreno."),
        base::riempito(traduttore("I coefficienti e i moduli di ogni strato sono nel capitolo %1, "
                                  "i valori di ogni nodo nel capitolo %2."),
                       {traduttore("Terreno e rigidezze"), traduttore("Terreno nodo per nodo")})};
    return p;
}

}  // namespace korven::report
