#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "analysis/pressure_coefficients.hpp"
#include "base/filled_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "report/annex/columns.hpp"
#include "report/annex/formula_rows.hpp"
#include "report/annex/soil_tables.hpp"
#include "report/annex/table_pieces.hpp"
#include "review/at_rest_rule.hpp"

namespace korven::report {

using analysis::SuoloStrato;
using base::riempito;
using base::traduttore;
using dossier::Fascicolo;
using project::DatiProgetto;
using project::MetodoSpinte;
using tables::Cella;
using tables::Prospetto;
namespace unita = project::unita;

namespace {

// One side of a layer: coefficients positive on both.
struct Lato {
    double beta = 0;  ///< [degrees]
    double k0 = 0, ka = 0, kp = 0;
    bool indefinito = false;  ///< ka and kp have no value
};

Lato monte(const SuoloStrato& s, const DatiProgetto& dati) {
    return {dati.inclinazioneMonte, s.k0m, s.kam, s.kpm, s.motivoM != analysis::Indefinito::no};
}

Lato valle(const SuoloStrato& s) {
    return {0, -s.k0v, -s.kav, -s.kpv, s.motivoV != analysis::Indefinito::no};
}

Cella coefficiente(double k) { return tables::cella(k, 4, unita::nessuna); }

void riga(int j, const char* nome, const Lato& lato, const SuoloStrato& s, const DatiProgetto& dati,
          Prospetto& p) {
    const bool conCoesione = dati.metodoSpinte < MetodoSpinte::bell;
    const auto k = [&](double valore) { return lato.indefinito ? Cella{} : coefficiente(valore); };
    const auto c = [&](double valore) { return conCoesione ? tables::pressione(valore) : Cella{}; };
    p.righe.push_back({tables::cella(j), tables::parola(traduttore(nome)),
                       tables::cella(dati.phiStrato[j], 2, unita::nessuna),
                       tables::cella(lato.beta, 2, unita::nessuna),
                       tables::pressione(dati.coesione[j]), coefficiente(lato.k0), k(lato.ka),
                       k(lato.kp), c(s.coesione.attiva), c(s.coesione.passiva)});
}

// An angle; one below 0 stays in its brackets.
Termine gradi(std::string simbolo, double valore) {
    Termine fatto = termine(std::move(simbolo), valore, 2);
    fatto.valore.insert(fatto.valore.size() - (fatto.valore.back() == ')' ? 1 : 0), "°");
    return fatto;
}

// The formulas of a side, as the method of the project has them.
class Formule {
 public:
    Formule(const Fascicolo& f, Prospetto& p) : dati_(f.parete.dati), p_(p) {}

    void lato(int j, const char* nome, const Lato& l, bool anche) {
        const Termine phi = gradi("φ", dati_.phiStrato[j]);
        const Termine beta = gradi("β", l.beta);
        const std::string chi = riempito(traduttore(nome), {std::to_string(j)});
        riga(chi, "k0", "(1 − sin %1) / (1 + sin %2)", {phi, beta}, l.k0);
        if (anche && l.beta > 0)
            riga(riempito(traduttore("%1, non usato"), {chi}), "k0 (EN 1997-1, 9.5.2)",
                 "(1 − sin %1) (1 + sin %2)", {phi, beta}, perConfronto(j, l.beta));
        if (l.indefinito) return;
        spinte(chi, phi, beta, l);
    }

 private:
    // The rule of the standard beside, in which a rising ground raises the pressure at rest.
    [[nodiscard]] double perConfronto(int j, double beta) const {
        const double rad = analysis::pi / 180;
        return review::riposoDelPendio(dati_.phiStrato[j] * rad, beta * rad);
    }

    void spinte(const std::string& chi, const Termine& phi, const Termine& beta, const Lato& l) {
        if (dati_.metodoSpinte == MetodoSpinte::coulomb) {
            riga(chi, "ka", "cos² %1 / (1 + √(sin %1 · sin(%1 − %2) / cos %2))²", {phi, beta},
                 l.ka);
            riga(chi, "kp", "cos² %1 / (1 − √(sin %1 · sin(%1 + %2) / cos %2))²", {phi, beta},
                 l.kp);
        } else if (dati_.metodoSpinte == MetodoSpinte::rankine) {
            riga(chi, "ka",
                 "cos %2 · (cos %2 − √(cos² %2 − cos² %1)) / (cos %2 + √(cos² %2 − cos² "
                 "%1))",
                 {phi, beta}, l.ka);
            riga(chi, "kp",
                 "cos %2 · (cos %2 + √(cos² %2 − cos² %1)) / (cos %2 − √(cos² %2 − cos² "
                 "%1))",
                 {phi, beta}, l.kp);
        } else {
            riga(chi, "ka", "tan²(45° − %1 / 2)", {phi}, l.ka);
            riga(chi, "kp", "tan²(45° + %1 / 2)", {phi}, l.kp);
        }
    }

    void riga(std::string chi, const char* simbolo, const char* formula,
              std::vector<Termine> termini, double valore) {
        aggiungi({"", simbolo, formula, std::move(termini), valore, 4, tables::nessuno}, p_);
        p_.righe.back().front() = tables::parola(std::move(chi));
    }

    const DatiProgetto& dati_;
    Prospetto& p_;
};

int strati(const Fascicolo& f) { return static_cast<int>(f.terreno.strati.size()); }

const SuoloStrato& strato(const Fascicolo& f, int j) {
    return f.terreno.strati[static_cast<std::size_t>(j) - 1];
}

// A reader who puts a rising ground in expects more pressure at rest, and gets less.
void sullInclinazione(const Fascicolo& f, Prospetto& p) {
    if (f.parete.dati.inclinazioneMonte == 0) return;
    p.note.push_back(traduttore(
        f.parete.dati.inclinazioneMonte > 0
            ? "k0 con l'inclinazione è di Kézdi, come Bowles lo riporta: un terreno che sale lo "
              "abbassa, mentre EN 1997-1, 9.5.2, lo alza. Dove il terreno a monte è elastico la "
              "pressione calcolata è perciò minore, e con essa momenti e forze: dalla parte non "
              "sicura. Dove è al limite attivo k0 non conta. Per confronto: inclinazione nulla, "
              "con il peso del terreno sopra la testa come sovraccarico a monte."
            : "k0 con l'inclinazione è di Kézdi, come Bowles lo riporta: un terreno che scende lo "
              "alza; la regola di EN 1997-1, 9.5.2, vale solo per quello che sale. Dove il terreno "
              "a monte è elastico la pressione calcolata è perciò maggiore che in piano: dalla "
              "parte sicura."));
    for (int j = 1; j <= strati(f); ++j)
        if (const SuoloStrato& s = strato(f, j); s.k0m < s.kam) {
            p.note.push_back(riempito(
                traduttore("Strato %1: a monte k0 è minore di ka; il terreno senza coesione parte "
                           "già dal limite attivo."),
                {std::to_string(j)}));
        }
}

}  // namespace

Prospetto prospettoCoefficienti(const Fascicolo& f) {
    const DatiProgetto& dati = f.parete.dati;
    Prospetto p{
        .titolo = traduttore("Coefficienti di spinta"),
        .colonne = {colonnaStrato(), colonna("Lato"), simboli(unita::gradi, "φ"),
                    simboli(unita::gradi, "β"), simboli(unita::pressione, "c"),
                    simboli(unita::nessuna, "k0"), simboli(unita::nessuna, "ka"),
                    simboli(unita::nessuna, "kp"), simboli(unita::pressione, "2 c tan(45° − φ/2)"),
                    simboli(unita::pressione, "2 c tan(45° + φ/2)")}};
    for (int j = 1; j <= strati(f); ++j) {
        const SuoloStrato& s = strato(f, j);
        if (dati.inclinazioneMonte == 0) {
            riga(j, "monte e valle", monte(s, dati), s, dati, p);
        } else {
            riga(j, "monte", monte(s, dati), s, dati, p);
            riga(j, "valle", valle(s), s, dati, p);
        }
    }
    if (!(dati.metodoSpinte < MetodoSpinte::bell))
        p.note.push_back(traduttore("Con Bell la coesione non entra nei limiti."));
    sullInclinazione(f, p);
    return p;
}

Prospetto prospettoFormuleCoefficienti(const Fascicolo& f) {
    const DatiProgetto& dati = f.parete.dati;
    Prospetto p = prospettoFormule("Coefficienti di spinta, con i valori");
    Formule formule(f, p);
    for (int j = 1; j <= strati(f) && dati.profStrato[j - 1] <= dati.lunghezzaParatia; ++j) {
        if (dati.inclinazioneMonte == 0) {
            formule.lato(j, "Strato %1, monte e valle", monte(strato(f, j), dati), false);
        } else {
            formule.lato(j, "Strato %1, monte", monte(strato(f, j), dati), true);
            formule.lato(j, "Strato %1, valle", valle(strato(f, j)), false);
        }
    }
    return p;
}

}  // namespace korven::report
