#include <algorithm>
#include <vector>

#include "base/number_text.hpp"
#include "drawings/log_columns.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "project/field_table.hpp"

// The columns that show how a value changes with depth, growing to the right.

namespace korven::drawings {

namespace {

using ColonnaStrati = base::Tabella<double, project::massimoStrati>;

// A value axis from the left edge of the column to its right one.
struct AsseProfilo {
    double fondoScala;
    double passo;
    int tacche;
    project::Membro campo;  // whose unit the numbers at the ticks have
};

class Profilo {
 public:
    Profilo(const Stratigrafia& stratigrafia, const Colonna& colonna, const AsseProfilo& asse)
        : stratigrafia_(stratigrafia),
          colonna_(colonna),
          asse_(asse),
          campo_(project::campo(asse.campo)) {}

    void tacche() const {
        constexpr double sopraTesta = 0.1;
        for (int k = 1; k <= asse_.tacche; ++k) {
            const double valore = k * asse_.passo;
            plot::linea(x(valore), piedeTabella, x(valore), testaTabella);
            plot::testoCentrato(x(valore), testaTabella + sopraTesta, altezzaNumeriColonna,
                                base::formattaMaschera(mostrato(campo_, valore), "00"));
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
    const project::Campo& campo_;
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
    disegnaTestata(colonna, {"gamma N [kN/m³]", "gamma S [kN/m³]"});
    const auto& dati = stratigrafia.dati;
    disegnaProfilo(stratigrafia, colonna, {3, 0.5, 5, &project::DatiProgetto::gammaN},
                   {&dati.gammaN, &dati.gammaSat});
}

void disegnaAttrito(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    disegnaTestata(colonna, {"angolo attrito [°]"});
    disegnaProfilo(stratigrafia, colonna, {50, 10, 4, &project::DatiProgetto::phiStrato},
                   {&stratigrafia.dati.phiStrato});
}

void disegnaCoesione(const Stratigrafia& stratigrafia, const Colonna& colonna) {
    constexpr auto campo = &project::DatiProgetto::coesione;
    constexpr AsseProfilo assi[] = {{5, 1, 4, campo}, {10, 2, 4, campo}, {50, 10, 4, campo}};
    const auto& dati = stratigrafia.dati;
    const double c = massimo(dati.coesione, dati.nStrati);
    const double su = massimo(dati.suStrato, dati.nStrati);
    if (c > 0 && su > 0)
        disegnaTestata(colonna, {"c' [kN/m²]", "Su [kN/m²]"});
    else if (c > 0)
        disegnaTestata(colonna, {"c' [kN/m²]"});
    else if (su > 0)
        disegnaTestata(colonna, {"Su [kN/m²]"});
    else
        disegnaTestata(colonna, {"coesione [kN/m²]"});
    const AsseProfilo* asse = assi;
    while (asse + 1 != std::end(assi) && asse->fondoScala < std::max(c, su)) ++asse;
    disegnaProfilo(stratigrafia, colonna, *asse, {&dati.coesione, &dati.suStrato});
}

}  // namespace korven::drawings
