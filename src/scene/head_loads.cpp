#include <cmath>
#include <utility>
#include <vector>

#include "analysis/pressure_coefficients.hpp"
#include "scene/parts.hpp"
#include "scene/shown_values.hpp"

namespace korven::scene {

namespace {

bool agisce(double valore) { return disegnabile(valore) && valore != 0; }

class Testa {
 public:
    Testa(const Mostrata& m, const Inquadratura& q, Tela& tela) : m_(m), q_(q), tela_(tela) {}

    // Towards the excavation it draws the head, the other way it pushes it.
    void forza(double t) {
        const double y = q_.yTesta - 0.45 * q_.em, da = q_.xValle + 3, a = da + 2.6 * q_.em;
        const double sotto = q_.yTesta + 0.8 * q_.em;
        freccia(t > 0 ? std::vector<Punto>{{da, y}, {a, y}} : std::vector<Punto>{{a, y}, {da, y}});
        scrivi("F " + conUnita(t, project::unita::forzaAlMetro),
               {{{a + 0.4 * q_.em, y}, Ancora::sinistra},
                {{da, y - q_.em}, Ancora::sinistra},
                {{da, sotto}, Ancora::sinistra, fondoValle(m_, q_, sotto)}});
    }

    void assiale(double t) {
        const double x = q_.xMuro(), da = q_.yTesta - 3.6 * q_.em, a = q_.yTesta - 2;
        freccia(t > 0 ? std::vector<Punto>{{x, da}, {x, a}} : std::vector<Punto>{{x, a}, {x, da}});
        scrivi("N " + conUnita(t, project::unita::forzaAlMetro),
               {{{x + 0.4 * q_.em, da - 0.3 * q_.em}, Ancora::sinistra},
                {{x - 0.4 * q_.em, da - 0.3 * q_.em}, Ancora::destra}});
    }

    // Turns the head towards the excavation, clockwise.
    void momento(double tm) {
        const double r = 1.25 * q_.em, yc = q_.yTesta - 1.3 * q_.em, verso = tm > 0 ? 1 : -1;
        std::vector<Punto> arco;
        constexpr int n = 16;
        for (int i = 0; i <= n; ++i) {
            const double a = (-120 + 240.0 * i / n) * analysis::pi / 180 * verso;
            arco.push_back({q_.xMuro() + r * std::sin(a), yc - r * std::cos(a)});
        }
        freccia(std::move(arco));
        const double x = q_.xMuro() + r + 0.5 * q_.em, y = yc - 0.6 * q_.em;
        std::vector<Posto> posti{{{x, y}, Ancora::sinistra}};
        // Below the head, where the other two loads leave no room beside them.
        for (const double giu : {0.8, 2.2})
            posti.push_back({{q_.xSezione - 0.35 * q_.em, q_.yTesta + giu * q_.em},
                             Ancora::destra,
                             fondoValle(m_, q_, q_.yTesta + giu * q_.em)});
        posti.push_back({{q_.xMuro() - r - 0.5 * q_.em, y}, Ancora::destra});
        scrivi("M " + conUnita(tm, project::unita::momentoAlMetro), std::move(posti));
    }

 private:
    void freccia(std::vector<Punto> punti) {
        tela_.disegna(Elemento::caricoTesta, 0,
                      Freccia{std::move(punti), {Ruolo::carico}, 2, 0.65 * q_.em});
    }
    void scrivi(std::string testo, std::vector<Posto> posti) {
        tela_.scrivi({.grado = Grado::carico,
                      .elemento = Elemento::caricoTesta,
                      .testo = std::move(testo),
                      .tinta = {Ruolo::carico},
                      .corpo = q_.stretta ? 0.85 * q_.em : q_.em,
                      .posti = std::move(posti)});
    }

    const Mostrata& m_;
    const Inquadratura& q_;
    Tela& tela_;
};

}  // namespace

void disegnaCarichiTesta(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    if (m.lunghezza == 0) return;
    const auto& d = m.dati();
    Testa testa(m, q, tela);
    if (agisce(d.momentoTesta)) testa.momento(d.momentoTesta);
    if (agisce(d.sforzoNormale)) testa.assiale(d.sforzoNormale);
    if (agisce(d.forzaTesta)) testa.forza(d.forzaTesta);
}

}  // namespace korven::scene
