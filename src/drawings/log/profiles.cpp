#include <algorithm>
#include <vector>

#include "base/number_text.hpp"
#include "drawings/log/columns.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "project/field_table.hpp"

// The columns that show how a value changes with depth, growing to the right.

namespace korven::drawings {

namespace {

namespace unita = project::unita;
using project::etichetta;

using ColonnaStrati = base::Tabella<double, project::massimoStrati>;

// A value axis from the left edge of the column to its right one.
struct AsseProfilo {
    double fondoScala;
    double passo;
    int tacche;
    project::Unita unita;  // of the values; the numbers at the ticks are shown
};

class Profilo {
 public:
    Profilo(const Stratigrafia& stratigrafia, const Colonna& colonna, const AsseProfilo& asse)
        : stratigrafia_(stratigrafia), colonna_(colonna), asse_(asse) {}

    void tacche() const {
        constexpr double sopraTesta = 0.1;
        for (int k = 1; k <= asse_.tacche; ++k) {
            const double valore = k * asse_.passo;
            plot::linea(x(valore), piedeTabella, x(valore), testaTabella);
            plot::testoCentrato(x(valore), testaTabella + sopraTesta, altezzaNumeriColonna,
                                base::formattaMaschera(mostrato(asse_.unita, valore), "00"));
        }
    }

    void curva(const ColonnaStrati& valori) const {
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

void disegnaProfilo(const Stratigrafia& stratigrafia, const Colonna& colonna,
                    const AsseProfilo& asse, std::initializer_list<const ColonnaStrati*> curve) {
    const Profilo profilo(stratigrafia, colonna, asse);
    profilo.tacche();
    plot::plotPenna(pennaProfilo);
    for (const ColonnaStrati* valori : curve) profilo.curva(*valori);
}

double massimo(const ColonnaStrati& valori, int n) {
    double trovato = 0;
    for (int i = 1; i <= n; ++i) trovato = std::max(trovato, valori[i]);
    return trovato;
}

}  // namespace

void disegnaPesi(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    disegnaTestata(colonna, {etichetta("gamma N", unita::peso), etichetta("gamma S", unita::peso)});
    const auto& dati = stratigrafia.dati;
    disegnaProfilo(stratigrafia, colonna, {3, 0.5, 5, unita::peso}, {&dati.gammaN, &dati.gammaSat});
}

void disegnaAttrito(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    disegnaTestata(colonna, {etichetta("angolo attrito", unita::gradi)});
    disegnaProfilo(stratigrafia, colonna, {50, 10, 4, unita::gradi},
                   {&stratigrafia.dati.phiStrato});
}

void disegnaCoesione(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    constexpr project::Unita u = unita::pressione;
    constexpr AsseProfilo assi[] = {{5, 1, 4, u}, {10, 2, 4, u}, {50, 10, 4, u}};
    const auto& dati = stratigrafia.dati;
    const double c = massimo(dati.coesione, dati.nStrati);
    const double su = massimo(dati.suStrato, dati.nStrati);
    const std::string efficace = etichetta("c'", unita::pressione);
    const std::string nonDrenata = etichetta("Su", unita::pressione);
    if (c > 0 && su > 0)
        disegnaTestata(colonna, {efficace, nonDrenata});
    else if (c > 0)
        disegnaTestata(colonna, {efficace});
    else if (su > 0)
        disegnaTestata(colonna, {nonDrenata});
    else
        disegnaTestata(colonna, {etichetta("coesione", unita::pressione)});
    const AsseProfilo* asse = assi;
    while (asse + 1 != std::end(assi) && asse->fondoScala < std::max(c, su)) ++asse;
    disegnaProfilo(stratigrafia, colonna, *asse, {&dati.coesione, &dati.suStrato});
}

}  // namespace korven::drawings
