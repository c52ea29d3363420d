#include <utility>

#include "scene/parts.hpp"
#include "scene/polygon.hpp"
#include "scene/shown_values.hpp"

namespace korven::scene {

namespace {

// A level: a dashed line, the triangle on it, the depth beside that.
void livello(const Mostrata& m, const Inquadratura& q, double z, double da, double a, double xSegno,
             Tela& tela) {
    const double y = q.y(z);
    if (!q.visibile(y)) return;
    const Tinta tinta{Ruolo::acqua};
    const double lato = 0.5 * q.em;
    tela.disegna(Elemento::acqua, 0, Linea{{{da, y}, {a, y}}, tinta, 1.2, Tratteggio::linee});
    tela.disegna(
        Elemento::acqua, 0,
        Area{{{xSegno - lato, y - 1.5 * lato}, {xSegno + lato, y - 1.5 * lato}, {xSegno, y}},
             tinta});
    for (const double giu : {0.3, 0.55})
        tela.disegna(Elemento::acqua, 0,
                     Linea{{{xSegno - lato * (1 - giu), y + giu * q.em},
                            {xSegno + lato * (1 - giu), y + giu * q.em}},
                           tinta});
    const double corpo = 0.9 * q.em, largo = tela.larghezza(quota(z), corpo) + 0.5 * q.em;
    std::vector<Posto> posti;
    for (const auto& [via, su] :
         {std::pair{0.0, -0.85}, {0.0, 0.85}, {3.0, -0.85}, {3.0, 0.85}, {6.0, -0.85}, {6.0, 0.85}})
        for (const bool destra : {true, false}) {
            const Punto p{xSegno + (destra ? 1 : -1) * (1.2 * lato + 2 + via * q.em),
                          y + su * q.em};
            // On the side of the wall whose level it is.
            if (destra ? p.x + largo > a : p.x - largo < da) continue;
            posti.push_back({p, destra ? Ancora::sinistra : Ancora::destra,
                             xSegno > q.xValle ? fondoValle(m, q, p.y) : fondoMonte(m, q, p)});
        }
    tela.scrivi({.grado = Grado::acqua,
                 .elemento = Elemento::acqua,
                 .testo = quota(z),
                 .tinta = tinta,
                 .corpo = corpo,
                 .posti = std::move(posti)});
}

}  // namespace

void disegnaAcque(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    const Tinta specchio{Ruolo::fondoAcqua};
    if (const double z = m.dati().faldaMonte; disegnabile(z)) {
        // Open water lies on the ground: what is above both is its polygon turned upside down.
        const double y = std::max(q.y(z), 0.0);
        if (y < std::max(q.suolo(0), q.yTesta)) {
            const double fondo = std::max(q.suolo(0), q.yTesta);
            auto area =
                sotto(rettangolo(0, y, q.xMonte, fondo), {q.xMonte, q.yTesta}, {0, q.suolo(0)});
            if (area.size() > 2) tela.disegna(Elemento::acqua, 0, Area{std::move(area), specchio});
        }
        livello(m, q, z, 0, q.xMonte, 0.78 * q.xMonte, tela);
    }
    if (m.fase == 0) return;
    if (const double z = m.dati().faldaFase[m.fase]; disegnabile(z)) {
        if (z < m.scavo)
            tela.disegna(Elemento::acqua, m.fase,
                         Area{rettangolo(q.xValle, std::max(q.y(z), 0.0), q.larghezza,
                                         std::min(q.y(m.scavo), q.yFondo)),
                              specchio});
        livello(m, q, z, q.xValle, q.xSezione, q.xValle + 0.14 * (q.xSezione - q.xValle), tela);
    }
}

}  // namespace korven::scene
