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

constexpr double corpoLivelli = 0.9;  // of the font size

// In a narrow picture of a stage its own level is the only one.
bool soloQuesta(const Mostrata& m, const Inquadratura& q) { return q.stretta && m.vista.fase > 0; }

// The stages that excavate down to one depth, to the centimetre: they share a line.
struct Livello {
    double z = 0;
    std::vector<int> fasi;
    bool mostrato = false;  // that of the stage of the picture
    std::string testo, breve;
};

// In a narrow place that is too narrow for one of the names the first alone says what they are.
std::vector<Livello> livelli(const Mostrata& m, const Inquadratura& q, const Tela& tela) {
    std::map<double, std::vector<int>> fasi;
    for (int k = 1; k <= m.nFasi(); ++k) {
        const double z = m.dati().profFase[k];
        if (disegnabile(z) && !(soloQuesta(m, q) && k != m.fase))
            fasi[alCentimetro(z)].push_back(k);
    }
    std::vector<Livello> tutti;
    bool interi = true;
    for (auto& [z, sue] : fasi) {
        Livello l{z, std::move(sue), z == alCentimetro(m.scavo), {}, {}};
        l.breve = soloQuesta(m, q) ? quota(z) : numeri(l.fasi) + "  " + quota(z);
        l.testo = soloQuesta(m, q) ? l.breve : nomeFasi(l.fasi) + "  " + quota(z);
        const double posto = fineLivelli(q) - q.xValle - 0.6 * q.em;
        interi =
            interi && (!q.stretta || tela.larghezza(l.testo, corpoLivelli * q.em, true) <= posto);
        tutti.push_back(std::move(l));
    }
    if (!interi)
        for (std::size_t i = 1; i < tutti.size(); ++i) tutti[i].testo = tutti[i].breve;
    return tutti;
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
    const double fine = fineLivelli(q);
    for (Livello& livello : livelli(m, q, tela)) {
        const double y = q.y(livello.z);
        if (!q.visibile(y)) continue;
        const int prima = livello.fasi.front();
        tela.disegna(Elemento::fase, prima,
                     Linea{{{q.xValle, y}, {fine, y}}, {Ruolo::fase}, 1, Tratteggio::linee});
        std::vector<Posto> posti;
        const auto posto = [&](double su) {
            posti.push_back(
                {{fine, y + su * q.em}, Ancora::destra, fondoValle(m, q, y + su * q.em)});
        };
        for (const double su : {-0.8, 0.8}) posto(su);
        if (q.stretta && livello.mostrato && caricoDavanti(m)) posto(-sopraCarico);
        posto(0);
        tela.scrivi({.grado = Grado::fase,
                     .elemento = Elemento::fase,
                     .numero = prima,
                     .testo = std::move(livello.testo),
                     .inBreve = {std::move(livello.breve)},
                     .tinta = {livello.mostrato ? Ruolo::testo : Ruolo::fase},
                     .corpo = corpoLivelli * q.em,
                     .grassetto = livello.mostrato,
                     .posti = std::move(posti)});
    }
}

double inizioLivello(const Mostrata& m, const Inquadratura& q, const Tela& tela) {
    if (soloQuesta(m, q)) return q.xSezione;
    for (const Livello& l : livelli(m, q, tela))
        if (l.mostrato) return fineLivelli(q) - tela.larghezza(l.testo, corpoLivelli * q.em, true);
    return q.xSezione;
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
