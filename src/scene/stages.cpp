#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "base/translated_texts.hpp"
#include "scene/parts.hpp"
#include "scene/shown_values.hpp"
#include "scene/stage_groups.hpp"

namespace korven::scene {

namespace {

constexpr double quotaUno = 3.0, quotaDue = 1.2;  // of the two dimension lines from the right [em]

constexpr double sopraCarico = 3.9;  // a row above the arrows of a load and what it is called [em]

double alCentimetro(double z) { return std::round(project::inCentimetri(z)) / project::centimetri; }

double fineLivelli(const Inquadratura& q) {
    return q.xSezione - (q.stretta ? 0.3 : quotaUno + 0.9) * q.em;
}

bool caricoDavanti(const Mostrata& m) {
    const double t = m.fase > 0 ? m.dati().sovraccFase[m.fase] : 0;
    return disegnabile(t) && t != 0;
}

std::string numeri(const std::vector<int>& fasi) {
    std::string testo;
    for (const int k : fasi) testo += (testo.empty() ? "" : ", ") + std::to_string(k);
    return testo;
}

std::string intero(const std::vector<int>& fasi, double z) {
    return nomeFasi(fasi) + "  " + quota(z);
}

// In a narrow place all levels say that they are stages, or none does.
bool perIntero(const std::map<double, std::vector<int>>& livelli, const Inquadratura& q,
               double corpo, const Tela& tela) {
    const double posto = fineLivelli(q) - q.xValle - 0.6 * q.em;
    return !q.stretta || std::all_of(livelli.begin(), livelli.end(), [&](const auto& livello) {
        return tela.larghezza(intero(livello.second, livello.first), corpo, true) <= posto;
    });
}

// A dimension between two depths, its length written along it.
void dimensione(const Mostrata& m, const Inquadratura& q, double da, double a, double dalBordo,
                Tela& tela) {
    const double x = q.xSezione - dalBordo * q.em;
    const double y1 = q.y(da), y2 = std::min(q.y(a), q.yFondo);
    if (!(a > da) || y2 - y1 < 3) return;
    const Tinta tinta{Ruolo::quota};
    tela.disegna(Elemento::quota, 0, Linea{{{x, y1}, {x, y2}}, tinta});
    const double t = 0.32 * q.em;
    for (const double y : {y1, y2})
        tela.disegna(Elemento::quota, 0, Linea{{{x - t, y + t}, {x + t, y - t}}, tinta, 1.3});
    const std::string testo = quota(a - da);
    const double corpo = 0.9 * q.em;
    if (tela.larghezza(testo, corpo) + 0.8 * q.em > y2 - y1) return;
    std::vector<Posto> posti;
    for (const double parte : {0.5, 0.35, 0.65}) {
        const double y = y1 + parte * (y2 - y1);
        posti.push_back({{x, y}, Ancora::centro, fondoValle(m, q, y)});
    }
    tela.scrivi({.grado = Grado::quota,
                 .elemento = Elemento::quota,
                 .testo = testo,
                 .tinta = {Ruolo::testoTenue},
                 .corpo = corpo,
                 .verticale = true,
                 .posti = std::move(posti)});
}

}  // namespace

void disegnaFasi(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    // Stages of one depth, to the centimetre, share a line.
    const bool soloQuesta = q.stretta && m.vista.fase > 0;
    std::map<double, std::vector<int>> livelli;
    for (int k = 1; k <= m.nFasi(); ++k) {
        const double z = m.dati().profFase[k];
        if (disegnabile(z) && !(soloQuesta && k != m.fase)) livelli[alCentimetro(z)].push_back(k);
    }
    const double fine = fineLivelli(q), corpo = 0.9 * q.em;
    const bool interi = perIntero(livelli, q, corpo, tela);
    for (const auto& [z, fasi] : livelli) {
        const double y = q.y(z);
        if (!q.visibile(y)) continue;
        const bool mostrato = z == alCentimetro(m.scavo);
        tela.disegna(Elemento::fase, fasi.front(),
                     Linea{{{q.xValle, y}, {fine, y}}, {Ruolo::fase}, 1, Tratteggio::linee});
        std::vector<Posto> posti;
        const auto posto = [&](double su) {
            posti.push_back(
                {{fine, y + su * q.em}, Ancora::destra, fondoValle(m, q, y + su * q.em)});
        };
        for (const double su : {-0.8, 0.8}) posto(su);
        if (q.stretta && mostrato && caricoDavanti(m)) posto(-sopraCarico);
        posto(0);
        const std::string breve = soloQuesta ? quota(z) : numeri(fasi) + "  " + quota(z);
        tela.scrivi({.grado = Grado::fase,
                     .elemento = Elemento::fase,
                     .numero = fasi.front(),
                     .testo = interi && !soloQuesta ? intero(fasi, z) : breve,
                     .inBreve = {breve},
                     .tinta = {mostrato ? Ruolo::testo : Ruolo::fase},
                     .corpo = corpo,
                     .grassetto = mostrato,
                     .posti = std::move(posti)});
    }
}

void disegnaQuote(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    if (m.lunghezza == 0 || q.stretta) return;
    const double x = q.xSezione - (quotaUno + 0.4) * q.em;
    const double piede = q.y(m.lunghezza);
    for (const double y : {q.yTesta, piede})
        tela.disegna(Elemento::quota, 0,
                     Linea{{{q.xValle + 4, y}, {x + (quotaUno - quotaDue + 0.8) * q.em, y}},
                           {Ruolo::quota},
                           0.7,
                           Tratteggio::punti});
    if (m.fase > 0 && m.scavo > 0 && m.scavo < m.lunghezza) {
        dimensione(m, q, 0, m.scavo, quotaUno, tela);
        dimensione(m, q, m.scavo, m.lunghezza, quotaUno, tela);
    }
    dimensione(m, q, 0, m.lunghezza, quotaDue, tela);
}

}  // namespace korven::scene
