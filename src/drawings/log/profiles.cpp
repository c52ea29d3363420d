#include <algorithm>
#include <initializer_list>
#include <string>

#include "base/number_text.hpp"
#include "drawings/log/columns.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "project/field_table.hpp"

// The columns that show how a value changes with depth, growing to the right.

namespace korven::drawings {

namespace {

using project::DatiProgetto;
using ColonnaStrati = base::Tabella<double, project::massimoStrati>;
using Strati = ColonnaStrati DatiProgetto::*;

// A value axis from the left edge of the column to its right one, in the stored unit.
struct AsseProfilo {
    double fondoScala;
    double passo;
    int tacche;
};

class Profilo {
 public:
    Profilo(const Stratigrafia& stratigrafia, const Colonna& colonna, const AsseProfilo& asse)
        : stratigrafia_(stratigrafia), colonna_(colonna), asse_(asse) {}

    // The numbers at the ticks are in the unit that people see.
    void tacche(const project::Campo& campo) const {
        constexpr double sopraTesta = 0.1;
        for (int k = 1; k <= asse_.tacche; ++k) {
            const double valore = k * asse_.passo;
            plot::linea(x(valore), piedeTabella, x(valore), testaTabella);
            plot::testoCentrato(x(valore), testaTabella + sopraTesta, altezzaNumeriColonna,
                                base::formattaMaschera(mostrato(campo, valore), "00"));
        }
    }

    void curva(Strati strati) const {
        const auto& valori = stratigrafia_.dati.*strati;
        const int n = stratigrafia_.dati.nStrati;
        plot::plotMuovi(x(valori[1]), testaTabella, plot::pennaSu);
        for (int i = 1; i <= n; ++i) {
            const double y = std::max(stratigrafia_.yPiede(i), piedeTabella);
            plot::plotMuovi(x(valori[i]), y, plot::pennaGiu);
            if (i < n) plot::plotMuovi(x(valori[i + 1]), y, plot::pennaGiu);
        }
    }

 private:
    [[nodiscard]] double x(double valore) const {
        return colonna_.sinistra + colonna_.larghezza * valore / asse_.fondoScala;
    }

    const Stratigrafia& stratigrafia_;
    const Colonna& colonna_;
    const AsseProfilo& asse_;
};

// The curves of fields with the same unit over one axis.
void disegnaProfilo(const Stratigrafia& stratigrafia, const Colonna& colonna,
                    const AsseProfilo& asse, std::initializer_list<Strati> curve) {
    const Profilo profilo(stratigrafia, colonna, asse);
    profilo.tacche(project::campo(*curve.begin()));
    plot::plotPenna(pennaProfilo);
    for (const Strati strati : curve) profilo.curva(strati);
}

// The log calls its values by shorter words than the editors, in the units of their fields.
std::string testata(std::string_view parole, Strati strati) {
    return project::etichetta(parole, project::campo(strati).unita);
}

double massimo(const ColonnaStrati& valori, int n) {
    double trovato = 0;
    for (int i = 1; i <= n; ++i) trovato = std::max(trovato, valori[i]);
    return trovato;
}

}  // namespace

void disegnaPesi(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    disegnaTestata(colonna, {testata("gamma N", &DatiProgetto::gammaN),
                             testata("gamma S", &DatiProgetto::gammaSat)});
    disegnaProfilo(stratigrafia, colonna, {3, 0.5, 5},
                   {&DatiProgetto::gammaN, &DatiProgetto::gammaSat});
}

void disegnaAttrito(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    disegnaTestata(colonna, {testata("angolo attrito", &DatiProgetto::phiStrato)});
    disegnaProfilo(stratigrafia, colonna, {50, 10, 4}, {&DatiProgetto::phiStrato});
}

void disegnaCoesione(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    constexpr AsseProfilo assi[] = {{5, 1, 4}, {10, 2, 4}, {50, 10, 4}};
    const auto& dati = stratigrafia.dati;
    const double c = massimo(dati.coesione, dati.nStrati);
    const double su = massimo(dati.suStrato, dati.nStrati);
    const std::string efficace = testata("c'", &DatiProgetto::coesione);
    const std::string nonDrenata = testata("Su", &DatiProgetto::suStrato);
    if (c > 0 && su > 0)
        disegnaTestata(colonna, {efficace, nonDrenata});
    else if (c > 0)
        disegnaTestata(colonna, {efficace});
    else if (su > 0)
        disegnaTestata(colonna, {nonDrenata});
    else
        disegnaTestata(colonna, {testata("coesione", &DatiProgetto::coesione)});
    const AsseProfilo* asse = assi;
    while (asse + 1 != std::end(assi) && asse->fondoScala < std::max(c, su)) ++asse;
    disegnaProfilo(stratigrafia, colonna, *asse,
                   {&DatiProgetto::coesione, &DatiProgetto::suStrato});
}

}  // namespace korven::drawings
