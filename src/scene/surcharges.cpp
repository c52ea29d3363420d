#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "scene/parts.hpp"
#include "scene/shown_values.hpp"
#include "scene/stage_groups.hpp"

namespace korven::scene {

namespace {

constexpr double altezza = 1.7, passo = 1.5;  // of the arrows, in font sizes
constexpr double minimo = 2;                  // width of a load on the excavation, too

// A row of arrows that stand on the ground from x1 to x2, which rises by `pendenza`; a load below 0
// pulls.
// @param quando  in which stages, told behind its name where there is room; empty: always
// @param prima  where its name had better stand
void carico(const Inquadratura& q, double t, double x1, double x2, double y1, double y2, int fase,
            const std::string& quando, std::vector<Posto> prima, Tela& tela) {
    const Tinta tinta{Ruolo::carico};
    const double h = altezza * q.em;
    const int n = std::clamp(static_cast<int>((x2 - x1) / (passo * q.em)), 2, 60);
    for (int i = 0; i <= n; ++i) {
        const double x = x1 + (x2 - x1) * i / n, y = y1 + (y2 - y1) * i / n;
        const Punto alto{x, y - h}, basso{x, y - 1.5};
        tela.disegna(Elemento::sovraccarico, fase,
                     Freccia{t > 0 ? std::vector{alto, basso} : std::vector{basso, alto}, tinta, 1,
                             0.45 * q.em});
    }
    tela.disegna(Elemento::sovraccarico, fase, Linea{{{x1, y1 - h}, {x2, y2 - h}}, tinta, 1.2});
    const double xm = (x1 + x2) / 2, ym = std::min((y1 + y2) / 2, (y1 + y2) / 2) - h;
    const std::string testo = "q " + breve(t, project::unita::pressione);
    // Clear of a line that rises along the text.
    const double salita =
        std::fabs(y2 - y1) / std::max(x2 - x1, 1.0) * tela.larghezza(testo, q.em) / 2;
    std::vector<Posto> posti = std::move(prima);
    posti.push_back({{xm, ym - 0.85 * q.em - salita}, Ancora::centro});
    posti.push_back({{x1, y1 - h - 0.85 * q.em}, Ancora::sinistra});
    posti.push_back({{xm, ym + h / 2}, Ancora::centro});
    tela.scrivi({.grado = Grado::carico,
                 .elemento = Elemento::sovraccarico,
                 .numero = fase,
                 .testo = quando.empty() ? testo : testo + " (" + quando + ")",
                 .inBreve = quando.empty() ? std::vector<std::string>() : std::vector{testo},
                 .tinta = tinta,
                 .corpo = q.em,
                 .posti = std::move(posti)});
}

// Whether the level of another stage has its name where that of a load on the excavation would be:
// the ground below has room for it then.
bool livelloSopra(const Mostrata& m, const Inquadratura& q, double y) {
    constexpr double nomi = 2.5;                      // above the arrows, in font sizes
    if (q.stretta && m.vista.fase > 0) return false;  // no other level is drawn
    for (int k = 1; k <= m.nFasi(); ++k) {
        const double su = y - q.y(m.dati().profFase[k]);
        if (su > 1 && su < (altezza + nomi) * q.em) return true;
    }
    return false;
}

// In a picture of all stages: those with the load that is drawn; empty where it is of all.
std::string quando(const Mostrata& m) {
    if (m.vista.fase > 0) return {};
    std::vector<int> fasi;
    for (int k = 1; k <= m.nFasi(); ++k)
        if (m.dati().sovraccFase[k] == m.dati().sovraccFase[m.fase]) fasi.push_back(k);
    return static_cast<int>(fasi.size()) == m.nFasi() ? std::string() : nomeFasi(fasi);
}

// The constant pressure: arrows on the uphill face of the wall.
void spinta(const Mostrata& m, const Inquadratura& q, double t, Tela& tela) {
    const Tinta tinta{Ruolo::carico};
    const double da = q.xMonte - 1.9 * q.em, a = q.xMonte - 1;
    const double y1 = q.y(0), y2 = q.y(m.lunghezza);
    constexpr int n = 6;
    for (int i = 0; i <= n; ++i) {
        const double y = y1 + (y2 - y1) * (i + 0.5) / (n + 1);
        tela.disegna(Elemento::sovraccarico, 0,
                     Freccia{t > 0 ? std::vector<Punto>{{da, y}, {a, y}}
                                   : std::vector<Punto>{{a, y}, {da, y}},
                             tinta, 1, 0.45 * q.em});
    }
    tela.disegna(Elemento::sovraccarico, 0, Linea{{{da, y1 + 2}, {da, y2 - 2}}, tinta});
    std::vector<Posto> posti;
    for (double y = y2 - q.em; y > y1 + q.em; y -= 1.5 * q.em)
        posti.push_back({{da - 0.4 * q.em, y}, Ancora::destra});
    tela.scrivi({.grado = Grado::carico,
                 .elemento = Elemento::sovraccarico,
                 .testo = "p " + breve(t, project::unita::pressione),
                 .tinta = tinta,
                 .corpo = 0.92 * q.em,
                 .posti = posti});
}

}  // namespace

void disegnaSovraccarichi(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    const auto& d = m.dati();
    if (const double t = d.sovraccMonte; disegnabile(t) && t != 0) {
        const bool testa = d.momentoTesta != 0 || d.sforzoNormale != 0;
        const double x1 = 0.16 * q.xMonte, x2 = q.xMonte - (testa ? 2.6 : 0.7) * q.em;
        carico(q, t, x1, x2, q.suolo(x1), q.suolo(x2), 0, {}, {}, tela);
    }
    if (const double t = d.pressioneOrizz; disegnabile(t) && t != 0 && m.lunghezza > 0)
        spinta(m, q, t, tela);
    if (m.fase == 0) return;
    if (const double t = d.sovraccFase[m.fase]; disegnabile(t) && t != 0) {
        const double y = q.y(m.scavo), x1 = q.xValle + 0.8 * q.em;
        std::vector<Posto> sotto;
        if (livelloSopra(m, q, y))
            for (const double giu : {2.1, 3.3})
                sotto.push_back(
                    {{x1, y + giu * q.em}, Ancora::sinistra, fondoValle(m, q, y + giu * q.em)});
        const double x2 = std::max(
            x1 + minimo * q.em,
            std::min(x1 + 0.45 * (q.xSezione - x1), inizioLivello(m, q, tela) - 0.6 * q.em));
        if (q.visibile(y)) carico(q, t, x1, x2, y, y, m.fase, quando(m), std::move(sotto), tela);
    }
}

}  // namespace korven::scene
