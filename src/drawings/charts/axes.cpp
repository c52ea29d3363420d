#include "drawings/charts/axes.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/axis_steps.hpp"
#include "drawings/annex/paper.hpp"

namespace korven::drawings {

namespace {

using scene::Ancora;
using scene::Elemento;
using scene::Grado;
using scene::Linea;
using scene::Ruolo;

constexpr double rigaTesto = 1.5 * corpoCarta;
constexpr double postoNumeri = 5 * corpoPiccolo;  // at the left of the field

void linea(scene::Tela& tela, scene::Punto da, scene::Punto a, Ruolo ruolo, double spessore) {
    tela.disegna(Elemento::asse, 0, Linea{{da, a}, {ruolo}, spessore});
}

// Numbers of an axis between two places, as many as stand clear of each other; a few at least.
std::vector<NomeAsse> numeri(const Estensione& e, const TestiAsse& testi, double lungo,
                             double ciascuno) {
    if (!testi.nomi.empty()) return testi.nomi;
    constexpr int pochi = 4;
    double passo =
        base::passoAsse(e.massimo - e.minimo, std::max(pochi, static_cast<int>(lungo / ciascuno)));
    if (testi.interi) passo = std::max(passo, 1.0);
    std::vector<NomeAsse> tutti;
    for (double i = std::ceil(e.minimo / passo); i * passo <= e.massimo; ++i)
        tutti.push_back({i * passo, base::numeroAsse(i * passo, passo)});
    return tutti;
}

}  // namespace

void Estensione::comprendi(double v) {
    if (!std::isfinite(v)) return;
    minimo = vuota ? v : std::min(minimo, v);
    massimo = vuota ? v : std::max(massimo, v);
    vuota = false;
}

Estensione Estensione::conAria() const {
    constexpr double quota = 0.04;
    const double lungo = massimo - minimo;
    const double aria = lungo > 0 ? quota * lungo : std::max(quota * std::fabs(massimo), quota);
    return {minimo - aria, massimo + aria, false};
}

Assi::Assi(const scene::Riquadro& posto, const Estensione& x, const Estensione& y, TestiAsse testiX,
           TestiAsse testiY, double fascia)
    : campo_{posto.sinistra + postoNumeri, posto.alto + rigaTesto, posto.destra,
             posto.basso - 2 * rigaTesto - fascia},
      sinistra_(posto.sinistra),
      x_(x),
      y_(y),
      testiX_(std::move(testiX)),
      testiY_(std::move(testiY)),
      fascia_(fascia) {}

double Assi::yTitoloX() const { return campo_.basso + fascia_ + 2.1 * corpoCarta; }

double Assi::x(double v) const {
    return campo_.sinistra + campo_.larghezza() * (v - x_.minimo) / (x_.massimo - x_.minimo);
}

double Assi::y(double v) const {
    return campo_.basso - campo_.altezza() * (v - y_.minimo) / (y_.massimo - y_.minimo);
}

void Assi::verticali(scene::Tela& tela) const {
    const double basso = campo_.basso + fascia_;
    for (auto& [v, testo] : numeri(x_, testiX_, campo_.larghezza(), 6 * corpoPiccolo)) {
        linea(tela, {x(v), campo_.alto}, {x(v), basso}, Ruolo::griglia, 1);
        scriviNota(tela, std::move(testo), {x(v), basso + 0.8 * corpoCarta}, Ancora::centro,
                   Ruolo::testoTenue);
    }
}

void Assi::orizzontali(scene::Tela& tela) const {
    for (auto& [v, testo] : numeri(y_, testiY_, campo_.altezza(), 2.5 * corpoPiccolo)) {
        linea(tela, {campo_.sinistra, y(v)}, {campo_.destra, y(v)}, Ruolo::griglia, 1);
        scriviNota(tela, std::move(testo), {campo_.sinistra - 0.4 * corpoCarta, y(v)},
                   Ancora::destra, Ruolo::testoTenue);
    }
}

void Assi::disegna(scene::Tela& tela) const {
    verticali(tela);
    orizzontali(tela);
    const auto& c = campo_;
    tela.disegna(Elemento::asse, 0,
                 Linea{{{c.sinistra, c.alto}, {c.sinistra, c.basso}, {c.destra, c.basso}},
                       {Ruolo::asse},
                       1.2});
    scriviNota(tela, testiX_.titolo, {c.destra, yTitoloX()}, Ancora::destra);
    scriviNota(tela, testiY_.titolo, {sinistra_, c.alto - 0.8 * corpoCarta}, Ancora::sinistra);
}

void scriviNota(scene::Tela& tela, std::string testo, scene::Punto punto, Ancora ancora,
                Ruolo ruolo, bool grassetto) {
    tela.scrivi({.grado = ruolo == Ruolo::testoTenue ? Grado::asse : Grado::nota,
                 .elemento = Elemento::asse,
                 .testo = std::move(testo),
                 .tinta = {ruolo},
                 .piastra = false,
                 .corpo = corpoPiccolo,
                 .grassetto = grassetto,
                 .posti = {{punto, ancora}}});
}

}  // namespace korven::drawings
