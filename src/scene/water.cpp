#include <algorithm>
#include <utility>
#include <vector>

#include "scene/parts.hpp"
#include "scene/polygon.hpp"
#include "scene/shown_values.hpp"

namespace korven::scene {

namespace {

// A level as a dashed line.
void linea(const Inquadratura& q, double z, double da, double a, Tela& tela) {
    const double y = q.y(z);
    if (q.visibile(y))
        tela.disegna(Elemento::acqua, 0,
                     Linea{{{da, y}, {a, y}}, {Ruolo::acqua}, 1.2, Tratteggio::linee});
}

// The triangle on a level and two strokes below, at the first of some places with the fewest lines
// through it: an anchor, arrows of a load. Gives where.
double triangolo(const Inquadratura& q, double y, const std::vector<double>& posti, Tela& tela) {
    const Tinta tinta{Ruolo::acqua};
    const double lato = 0.5 * q.em;
    const auto segno = [&](double x) {
        return Riquadro{x - lato, y - 1.5 * lato, x + lato, y + 0.6 * q.em};
    };
    const auto linee = [&](double x) { return tela.attraversamenti(segno(x), Elemento::acqua, 0); };
    const double x = *std::min_element(posti.begin(), posti.end(), [&](double uno, double altro) {
        return linee(uno) < linee(altro);
    });
    tela.disegna(Elemento::acqua, 0,
                 Area{{{x - lato, y - 1.5 * lato}, {x + lato, y - 1.5 * lato}, {x, y}}, tinta});
    for (const double giu : {0.3, 0.55})
        tela.disegna(
            Elemento::acqua, 0,
            Linea{{{x - lato * (1 - giu), y + giu * q.em}, {x + lato * (1 - giu), y + giu * q.em}},
                  tinta});
    tela.occupa(segno(x));
    return x;
}

// A level by its triangle, the depth beside that.
void livello(const Mostrata& m, const Inquadratura& q, double z, double da, double a,
             const std::vector<double>& parti, Tela& tela) {
    const double y = q.y(z);
    if (!q.visibile(y)) return;
    std::vector<double> segni;
    for (const double parte : parti) segni.push_back(da + parte * (a - da));
    const double xSegno = triangolo(q, y, segni, tela), lato = 0.5 * q.em;
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
                 .tinta = {Ruolo::acqua},
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
        linea(q, z, 0, q.xMonte, tela);
    }
    if (m.fase == 0) return;
    if (const double z = m.dati().faldaFase[m.fase]; disegnabile(z)) {
        if (z < m.scavo)
            tela.disegna(Elemento::acqua, m.fase,
                         Area{rettangolo(q.xValle, std::max(q.y(z), 0.0), q.larghezza,
                                         std::min(q.y(m.scavo), q.yFondo)),
                              specchio});
        linea(q, z, q.xValle, q.xSezione, tela);
    }
}

void segnaAcque(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    if (const double z = m.dati().faldaMonte; disegnabile(z))
        livello(m, q, z, 0, q.xMonte, {0.78, 0.9, 0.3, 0.2, 0.5}, tela);
    if (m.fase == 0) return;
    if (const double z = m.dati().faldaFase[m.fase]; disegnabile(z))
        livello(m, q, z, q.xValle, q.xSezione, {0.14, 0.5, 0.7}, tela);
}

}  // namespace korven::scene
