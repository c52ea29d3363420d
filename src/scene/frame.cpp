#include "scene/frame.hpp"

#include <algorithm>
#include <cmath>

#include "analysis/pressure_coefficients.hpp"

namespace korven::scene {

namespace {

constexpr double quotaCurva = 0.37;      // of the width, for the panel of the curve
constexpr double quotaMuro = 0.57;       // of the section's width, from the left to the wall
constexpr double spessoreUsuale = 0.6;   // of a section that is not given [m]
constexpr double spessoreMinimo = 4;     // [px]
constexpr double quotaSpessore = 0.2;    // of the section's width, at most
constexpr double sottoPiede = 0.12;      // ground below the toe, of the depth shown
constexpr double acquaSopra = 0.25;      // water above the ground that is shown, of the depth
constexpr double massimaSalita = 0.26;   // of the ground, of the height
constexpr double profonditaUsuale = 10;  // of a project without a wall [m]

struct Profondita {
    double da = 0, a = 0;
};

Profondita profondita(const Mostrata& m) {
    const auto& d = m.dati();
    double a = m.lunghezza;
    const auto comprendi = [&](double z) {
        if (disegnabile(z)) a = std::max(a, m.lunghezza > 0 ? std::min(z, 1.5 * m.lunghezza) : z);
    };
    for (int k = 1; k <= m.nFasi(); ++k) comprendi(d.profFase[k]);
    if (m.lunghezza == 0 && m.nStrati() > 0) comprendi(d.profStrato[m.nStrati()]);
    if (!(a > 0)) a = profonditaUsuale;
    double da = 0;
    const auto acqua = [&](double z) {
        if (disegnabile(z)) da = std::min(da, std::max(z, -acquaSopra * a));
    };
    acqua(d.faldaMonte);
    if (m.fase > 0) acqua(d.faldaFase[m.fase]);
    return {da, a * (1 + sottoPiede)};
}

bool carichi(const Mostrata& m) {
    const auto& d = m.dati();
    return d.sovraccMonte != 0 || d.forzaTesta != 0 || d.momentoTesta != 0 || d.sforzoNormale != 0;
}

double pendenza(const project::DatiProgetto& dati) {
    constexpr double massima = 80;  // [degrees]
    const double gradi = dati.inclinazioneMonte;
    if (!std::isfinite(gradi)) return 0;
    return std::tan(std::clamp(gradi, -massima, massima) * analysis::pi / 180);
}

}  // namespace

Tinta fondoValle(const Mostrata& m, const Inquadratura& q, double y) {
    const double z = (y - q.yTesta) / q.scala;
    if (z <= m.scavo || y > q.yFondo) return {Ruolo::sfondo};
    return {Ruolo::fondoStrato, coloreTerreno(m, z)};
}

Tinta fondoMonte(const Mostrata& m, const Inquadratura& q, Punto punto) {
    if (punto.y < q.suolo(punto.x) || punto.y > q.yFondo) return {Ruolo::sfondo};
    return {Ruolo::fondoStrato, coloreTerreno(m, (punto.y - q.yTesta) / q.scala)};
}

double corpo(const Misura& misura) {
    return std::clamp(std::min(misura.larghezza / 72, misura.altezza / 46), 10.0, 14.0);
}

Inquadratura inquadratura(const Mostrata& m, const Misura& misura, double cima, bool curva) {
    Inquadratura q;
    q.larghezza = misura.larghezza;
    q.altezza = misura.altezza;
    q.em = corpo(misura);
    q.curva = curva;
    q.pendenza = pendenza(m.dati());
    q.xSezione = q.larghezza * (curva ? 1 - quotaCurva : 1);
    q.xValle = q.xSezione * quotaMuro;
    q.yFondo = q.altezza - 1.9 * q.em;
    const auto [da, a] = profondita(m);
    const double testata = q.em * (carichi(m) ? 5.2 : curva ? 3.4 : 1.4);
    const double salita = std::clamp(q.pendenza * q.xValle, 0.0, massimaSalita * q.altezza);
    const double libera = std::max(q.yFondo - cima - testata - salita, 4 * q.em);
    const double metri = spessore(m.dati().sezione);
    const double s = metri > 0 ? metri : spessoreUsuale;
    q.scala = std::min(libera / (a - da), quotaSpessore * q.xSezione / s);
    q.xMonte = q.xValle - std::max(q.scala * s, spessoreMinimo);
    q.yTesta = q.yFondo - libera - q.scala * da;
    return q;
}

}  // namespace korven::scene
