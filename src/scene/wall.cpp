#include <algorithm>
#include <cmath>

#include "analysis/run_arrays.hpp"
#include "base/translated_texts.hpp"
#include "scene/parts.hpp"
#include "scene/polygon.hpp"

namespace korven::scene {

namespace {

constexpr double moto = 3.2;  // of a mechanism as it is drawn, at most [font sizes]

void vincoli(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    const analysis::Vincoli vincolo = analysis::vincoli(m.dati());
    const Tinta tinta{Ruolo::bordoMuro};
    const double lato = 0.7 * q.em, piede = q.y(m.lunghezza);
    const auto cerniera = [&](double y, double verso) {
        tela.disegna(Elemento::vincolo, 0,
                     Area{{{q.xMuro(), y},
                           {q.xMuro() + lato, y + verso * 1.4 * lato},
                           {q.xMuro() - lato, y + verso * 1.4 * lato}},
                          tinta});
    };
    if (vincolo.cernieraTesta) cerniera(q.yTesta, -1);
    if (vincolo.bloccoPiede && !vincolo.incastroPiede) cerniera(piede, 1);
    if (!vincolo.incastroPiede) return;
    const double mezza = (q.xValle - q.xMonte) / 2 + 1.2 * q.em;
    tela.disegna(Elemento::vincolo, 0,
                 Linea{{{q.xMuro() - mezza, piede}, {q.xMuro() + mezza, piede}}, tinta, 2.4});
    for (double x = -mezza + 0.5 * q.em; x <= mezza; x += 0.55 * q.em)
        tela.disegna(
            Elemento::vincolo, 0,
            Linea{{{q.xMuro() + x, piede}, {q.xMuro() + x - 0.5 * q.em, piede + 0.6 * q.em}},
                  tinta});
}

void contorno(std::vector<Punto> punti, Elemento elemento, Tinta tinta, double spessore,
              Tratteggio tratteggio, Tela& tela) {
    punti.push_back(punti.front());
    tela.disegna(elemento, 0, Linea{std::move(punti), tinta, spessore, tratteggio});
}

// A strip along a face of the wall where the soil of that side is at a limit, with its name.
void limite(const std::vector<equilibrium::Tratto>& tratti, bool attivo, bool monte,
            const Mostrata& m, const Inquadratura& q, Tela& tela) {
    const double largo = 0.5 * q.em, lato = monte ? -1 : 1;
    const double x1 = monte ? q.xMonte - largo : q.xValle, x2 = x1 + largo;
    for (const equilibrium::Tratto& t : tratti) {
        tela.disegna(Elemento::meccanismo, 0,
                     Area{rettangolo(x1, q.y(t.da) - 1.5, x2, q.y(t.a) + 1.5),
                          {attivo ? Ruolo::limiteAttivo : Ruolo::limitePassivo}});
        const Punto p{(monte ? x1 : x2) + lato * 0.5 * q.em, (q.y(t.da) + q.y(t.a)) / 2};
        tela.scrivi({.grado = Grado::quota,
                     .elemento = Elemento::meccanismo,
                     .testo = base::traduttore(attivo ? "attivo" : "passivo"),
                     .tinta = {Ruolo::testo},
                     .corpo = 0.9 * q.em,
                     .posti = {{p, monte ? Ancora::destra : Ancora::sinistra,
                                monte ? fondoMonte(m, q, p) : fondoValle(m, q, p.y)}}});
    }
}

void limiti(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    const equilibrium::PartiAlLimite& parti = m.parete.perche->parti;
    limite(parti.monteAttivo, true, true, m, q, tela);
    limite(parti.montePassivo, false, true, m, q, tela);
    limite(parti.valleAttivo, true, false, m, q, tela);
    limite(parti.vallePassivo, false, false, m, q, tela);
}

void meccanismo(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    const auto& perche = *m.parete.perche;
    const double testa = perche.moto->spostamento(0), piede = perche.moto->spostamento(m.lunghezza);
    const double massimo = std::max(std::fabs(testa), std::fabs(piede));
    if (!(massimo > 0) || !std::isfinite(massimo)) return;
    const double k = moto * q.em / massimo;
    const double y1 = q.yTesta, y2 = q.y(m.lunghezza);
    const std::vector<Punto> mosso{{q.xMonte + k * testa, y1},
                                   {q.xValle + k * testa, y1},
                                   {q.xValle + k * piede, y2},
                                   {q.xMonte + k * piede, y2}};
    tela.disegna(Elemento::meccanismo, 0, Area{mosso, {Ruolo::fondoMeccanismo}});
    contorno(mosso, Elemento::meccanismo, {Ruolo::meccanismo}, 2.2, Tratteggio::nessuno, tela);
    // Which way it goes, at the end that moves most.
    const bool daTesta = std::fabs(testa) >= std::fabs(piede);
    const double y = daTesta ? y1 : y2, verso = (daTesta ? testa : piede) > 0 ? 1 : -1;
    const double x = (verso > 0 ? q.xValle : q.xMonte) + verso * moto * q.em;
    tela.disegna(
        Elemento::meccanismo, 0,
        Freccia{{{x, y}, {x + verso * 1.8 * q.em, y}}, {Ruolo::meccanismo}, 2.2, 0.7 * q.em});
}

}  // namespace

void disegnaMuro(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    if (m.lunghezza == 0) return;
    const auto pianta = rettangolo(q.xMonte, q.yTesta, q.xValle, q.y(m.lunghezza));
    const bool cade = m.cade && m.parete.perche && m.parete.perche->moto;
    tela.disegna(Elemento::muro, 0, Area{pianta, {Ruolo::muro}});
    contorno(pianta, Elemento::muro, {Ruolo::bordoMuro}, 1.3,
             cade ? Tratteggio::linee : Tratteggio::nessuno, tela);
    vincoli(m, q, tela);
    if (!cade) return;
    meccanismo(m, q, tela);
    limiti(m, q, tela);
}

}  // namespace korven::scene
