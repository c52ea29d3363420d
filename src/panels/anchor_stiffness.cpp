#include "panels/anchor_stiffness.hpp"

#include <cmath>
#include <numbers>

#include "project/units.hpp"

namespace korven::panels {

double coseno(double gradi) { return std::cos(gradi * std::numbers::pi / 180); }

double rigidezzaPerMetro(const Ancoraggio& uno) {
    const double EA = uno.modulo * uno.area / project::newtonKilonewton;  // [kN]
    const double c = coseno(uno.inclinazione);
    return EA * c * c / (uno.lunghezza * uno.interasse);
}

double forzaPerMetro(double forza, double interasse, double inclinazione) {
    return forza * coseno(inclinazione) / interasse;
}

double forzaDiUno(double perMetro, double interasse, double inclinazione) {
    return perMetro * interasse / coseno(inclinazione);
}

double areaBarre(double numero, double diametro) {
    return numero * std::numbers::pi * diametro * diametro / 4;
}

}  // namespace korven::panels
