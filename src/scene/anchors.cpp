#include <algorithm>
#include <cmath>
#include <utility>

#include "analysis/pressure_coefficients.hpp"
#include "project/anchor_names.hpp"
#include "scene/parts.hpp"
#include "scene/polygon.hpp"
#include "scene/shown_values.hpp"

namespace korven::scene {

namespace {

const double inclinazione = 15 * analysis::pi / 180;  // usual; the project has none
constexpr double quotaLunghezza = 0.4;                // of the uphill side
constexpr double quotaBulbo = 0.4;                    // of the length
constexpr double quotaPuntone = 0.34;                 // of the excavated side

class Tiranti {
 public:
    Tiranti(const Mostrata& m, const Inquadratura& q, Tela& tela) : m_(m), q_(q), tela_(tela) {}

    void disegna(int j) {
        const double z = m_.dati().profTirante[j];
        if (!disegnabile(z) || !q_.visibile(q_.y(z))) return;
        const bool inOpera = j <= m_.tirantiInOpera();
        if (project::puntone(m_.dati(), j))
            puntone(j, q_.y(z), inOpera);
        else
            tirante(j, q_.y(z), inOpera);
    }

 private:
    void tirante(int j, double y, bool inOpera) {
        const Tinta tinta{inOpera ? Ruolo::tirante : Ruolo::tiranteFuturo};
        const double lungo = quotaLunghezza * q_.xMonte;
        const auto lungoAsse = [&](double l) {
            return Punto{q_.xMonte - l * std::cos(inclinazione), y + l * std::sin(inclinazione)};
        };
        const Punto fine = lungoAsse(lungo);
        const Tratteggio tratti = inOpera ? Tratteggio::nessuno : Tratteggio::linee;
        tela_.disegna(Elemento::tirante, j,
                      Linea{{{q_.xValle, y}, fine}, tinta, inOpera ? 1.6 : 1, tratti});
        if (inOpera) {
            tela_.disegna(Elemento::tirante, j,
                          Linea{{lungoAsse((1 - quotaBulbo) * lungo), fine}, tinta, 0.42 * q_.em});
            testa(j, y, tinta);
        }
        const double x = fine.x - 0.5 * q_.em;
        std::vector<Posto> posti;
        for (const double dy : {0.0, -0.7, 0.7, -1.3, 1.3})
            posti.push_back({{x, fine.y + dy * q_.em}, Ancora::destra});
        for (const double dy : {1.2, -1.2, 1.9, -1.9})
            posti.push_back({{fine.x + 0.4 * q_.em, fine.y + dy * q_.em}, Ancora::sinistra});
        for (Posto& posto : posti) posto.fondo = fondoMonte(m_, q_, posto.punto);
        scrivi(j, inOpera, posti);
    }

    // The plate at the head, on the excavated side.
    void testa(int j, double y, Tinta tinta) {
        const double h = 0.55 * q_.em;
        tela_.disegna(Elemento::tirante, j,
                      Area{{{q_.xValle, y - h},
                            {q_.xValle + 0.5 * q_.em, y - 0.4 * h},
                            {q_.xValle + 0.5 * q_.em, y + 0.5 * h},
                            {q_.xValle, y + h}},
                           tinta});
    }

    void puntone(int j, double y, bool inOpera) {
        const Tinta tinta{inOpera ? Ruolo::tirante : Ruolo::tiranteFuturo};
        const double fine = q_.xValle + quotaPuntone * (q_.xSezione - q_.xValle);
        const double h = 0.34 * q_.em;
        if (inOpera) {
            tela_.disegna(Elemento::tirante, j,
                          Area{rettangolo(q_.xValle, y - h / 2, fine, y + h / 2), tinta});
            testa(j, y, tinta);
        } else {
            tela_.disegna(Elemento::tirante, j,
                          Linea{{{q_.xValle, y}, {fine, y}}, tinta, 1, Tratteggio::linee});
        }
        // It goes on to the other side of the excavation.
        tela_.disegna(Elemento::tirante, j,
                      Linea{{{fine - h, y - 2.2 * h}, {fine, y}, {fine - h, y + 2.2 * h}}, tinta});
        std::vector<Posto> posti;
        for (const double dy : {-1.0, 1.0, -1.6, 1.6}) {
            const double yTesto = y + dy * q_.em;
            posti.push_back(
                {{q_.xValle + 0.8 * q_.em, yTesto}, Ancora::sinistra, fondoValle(m_, q_, yTesto)});
        }
        scrivi(j, inOpera, posti);
    }

    // Number, depth and force; as much of it as there is room for.
    void scrivi(int j, bool inOpera, const std::vector<Posto>& posti) {
        const std::string nome = project::siglaTirante(m_.dati(), j);
        const std::string dove = "  " + quota(m_.dati().profTirante[j]);
        const double* t = q_.stretta ? nullptr : m_.tiro(j);
        const std::string forza = t != nullptr && inOpera
                                      ? "  " + conUnita(*t, project::unita::forzaAlMetro)
                                      : std::string();
        const Tinta tinta{inOpera ? Ruolo::tirante : Ruolo::testoTenue};
        const double stretto = 15 * q_.em;
        const std::string tutto =
            nome + (0.66 * q_.xMonte > stretto ? dove : std::string()) + forza;
        std::vector<std::string> inBreve;
        for (const std::string& meno : {nome + forza, nome})
            if (meno != tutto) inBreve.push_back(meno);
        tela_.scrivi({.grado = Grado::tirante,
                      .elemento = Elemento::tirante,
                      .numero = j,
                      .testo = tutto,
                      .inBreve = std::move(inBreve),
                      .tinta = tinta,
                      .corpo = 0.92 * q_.em,
                      .grassetto = inOpera,
                      .posti = posti});
    }

    const Mostrata& m_;
    const Inquadratura& q_;
    Tela& tela_;
};

}  // namespace

void disegnaTiranti(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    Tiranti tiranti(m, q, tela);
    for (int j = 1; j <= m.nTiranti(); ++j) tiranti.disegna(j);
}

}  // namespace korven::scene
