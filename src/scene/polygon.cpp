#include "scene/polygon.hpp"

#include <algorithm>

namespace korven::scene {

namespace {

// Above 0 for a point to the right of the way from `a` to `b`, which is below it on a screen.
double lato(Punto a, Punto b, Punto p) {
    return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

Punto tra(Punto p, Punto r, double t) { return {p.x + t * (r.x - p.x), p.y + t * (r.y - p.y)}; }

double area(const std::vector<Punto>& p) {
    double doppia = 0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        const Punto &da = p[i], &a = p[(i + 1) % p.size()];
        doppia += da.x * a.y - a.x * da.y;
    }
    return doppia / 2;
}

}  // namespace

std::vector<Punto> sotto(const std::vector<Punto>& poligono, Punto a, Punto b) {
    std::vector<Punto> resto;
    for (std::size_t i = 0; i < poligono.size(); ++i) {
        const Punto &p = poligono[i], &r = poligono[(i + 1) % poligono.size()];
        const double sp = lato(a, b, p), sr = lato(a, b, r);
        if (sp >= 0) resto.push_back(p);
        if ((sp > 0 && sr < 0) || (sp < 0 && sr > 0)) {
            resto.push_back(tra(p, r, sp / (sp - sr)));
            if (a.y == b.y) resto.back().y = a.y;  // a level line cuts at its height, to the digit
        }
    }
    return resto;
}

std::optional<std::pair<Punto, Punto>> dentro(const std::vector<Punto>& poligono, Punto da,
                                              Punto a) {
    const double verso = area(poligono) >= 0 ? 1 : -1;
    double primo = 0, ultimo = 1;
    for (std::size_t i = 0; i < poligono.size(); ++i) {
        const Punto &p = poligono[i], &r = poligono[(i + 1) % poligono.size()];
        const double inizio = verso * lato(p, r, da), fine = verso * lato(p, r, a);
        if (inizio < 0 && fine < 0) return {};
        if (inizio < 0) primo = std::max(primo, inizio / (inizio - fine));
        if (fine < 0) ultimo = std::min(ultimo, inizio / (inizio - fine));
    }
    if (primo > ultimo) return {};
    return std::pair(tra(da, a, primo), tra(da, a, ultimo));
}

std::vector<Punto> rettangolo(double x1, double y1, double x2, double y2) {
    return {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}};
}

Riquadro intorno(const std::vector<Punto>& punti) {
    Riquadro r{punti.at(0).x, punti.at(0).y, punti.at(0).x, punti.at(0).y};
    for (const Punto& p : punti)
        r = {std::min(r.sinistra, p.x), std::min(r.alto, p.y), std::max(r.destra, p.x),
             std::max(r.basso, p.y)};
    return r;
}

}  // namespace korven::scene
