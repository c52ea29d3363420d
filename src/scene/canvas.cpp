#include "scene/canvas.hpp"

#include <algorithm>
#include <iterator>

namespace korven::scene {

namespace {

// Whether a text over lines of it is harder to read.
bool disturba(Elemento elemento) {
    switch (elemento) {
        case Elemento::terreno:
        case Elemento::sovraccarico:
        case Elemento::acqua:
        case Elemento::muro:
        case Elemento::vincolo:
        case Elemento::caricoTesta:
        case Elemento::tirante:
        case Elemento::fase:
        case Elemento::quota:
        case Elemento::meccanismo:
            return true;
        default:
            return false;
    }
}

bool attraversa(const Punto& da, const Punto& a, const Riquadro& r) {
    if (std::max(da.x, a.x) <= r.sinistra || std::min(da.x, a.x) >= r.destra ||
        std::max(da.y, a.y) <= r.alto || std::min(da.y, a.y) >= r.basso)
        return false;
    // Corners on both sides of the line.
    const double dx = a.x - da.x, dy = a.y - da.y;
    const auto lato = [&](double x, double y) { return dx * (y - da.y) - dy * (x - da.x); };
    const auto [minimo, massimo] =
        std::minmax({lato(r.sinistra, r.alto), lato(r.destra, r.alto), lato(r.sinistra, r.basso),
                     lato(r.destra, r.basso)});
    return minimo < 0 && massimo > 0;
}

}  // namespace

void Tela::segnaTratti(Elemento elemento, int numero, const std::vector<Punto>& punti) {
    for (std::size_t i = 0; i + 1 < punti.size(); ++i)
        tratti_.push_back({punti[i], punti[i + 1], elemento, numero});
}

void Tela::disegna(Elemento elemento, int numero, Figura figura) {
    if (disturba(elemento)) {
        if (const auto* linea = std::get_if<Linea>(&figura))
            segnaTratti(elemento, numero, linea->punti);
        if (const auto* freccia = std::get_if<Freccia>(&figura))
            segnaTratti(elemento, numero, freccia->punti);
    }
    Primitiva& una = figure_.emplace_back();
    una.elemento = elemento;
    una.numero = numero;
    una.figura = std::move(figura);
}

bool Tela::libero(const Riquadro& posto) const {
    return posto.sinistra >= tutto_.sinistra && posto.destra <= tutto_.destra &&
           posto.alto >= tutto_.alto && posto.basso <= tutto_.basso &&
           std::none_of(occupati_.begin(), occupati_.end(),
                        [&](const Riquadro& uno) { return uno.tocca(posto); });
}

std::ptrdiff_t Tela::attraversamenti(const Riquadro& posto, Elemento elemento, int numero) const {
    return std::count_if(tratti_.begin(), tratti_.end(), [&](const Tratto& t) {
        return (t.elemento != elemento || t.numero != numero) && attraversa(t.da, t.a, posto);
    });
}

bool Tela::colloca(const Scritta& s, const std::string& parole, bool libera) {
    if (parole.empty()) return false;
    Testo testo{.punto = {},
                .corpo = s.corpo,
                .grassetto = s.grassetto,
                .verticale = s.verticale,
                .testo = parole,
                .tinta = s.tinta,
                .piastra = s.piastra,
                .larghezza = larghezza(parole, s.corpo, s.grassetto)};
    for (const Posto& posto : s.posti) {
        testo.punto = posto.punto;
        testo.ancora = posto.ancora;
        testo.fondo = posto.fondo;
        const Riquadro r = testo.riquadro();
        if (!libero(r) || (libera && attraversamenti(r, s.elemento, s.numero) > 0)) continue;
        occupa(r);
        if (s.richiamo) disegna(s.elemento, s.numero, *s.richiamo);
        collocate_.push_back({s.elemento, s.numero, std::move(testo)});
        return true;
    }
    return false;
}

// As many words as are clear of lines; else few of them over a line.
void Tela::colloca(const Scritta& s) {
    std::vector<std::string> parole{s.testo};
    parole.insert(parole.end(), s.inBreve.begin(), s.inBreve.end());
    for (const std::string& una : parole)
        if (colloca(s, una, true)) return;
    std::reverse(parole.begin(), parole.end());
    for (const std::string& una : parole)
        if (colloca(s, una, false)) return;
}

std::vector<Primitiva> Tela::concludi() {
    std::stable_sort(scritte_.begin(), scritte_.end(),
                     [](const Scritta& a, const Scritta& b) { return a.grado < b.grado; });
    for (const Scritta& s : scritte_) colloca(s);
    scritte_.clear();
    std::move(collocate_.begin(), collocate_.end(), std::back_inserter(figure_));
    collocate_.clear();
    return std::move(figure_);
}

}  // namespace korven::scene
