#include "drawings/annex/wall_view.hpp"

#include <algorithm>

#include "drawings/annex/paper.hpp"

namespace korven::drawings {

namespace {

using scene::Elemento;
using scene::Misura;
using scene::MisuraTesti;
using scene::Primitiva;
using scene::Punto;
using scene::Riquadro;
using scene::Scena;
using scene::scena;
using scene::Testo;

constexpr double larghezzaQuote = 24 * corpoCarta;

class Sposta {
 public:
    Sposta(double dx, double dy) : dx_(dx), dy_(dy) {}
    void operator()(Testo& testo) const { sposta(testo.punto); }
    template <class F>
    void operator()(F& figura) const {
        for (Punto& p : figura.punti) sposta(p);
    }

 private:
    void sposta(Punto& p) const {
        p.x += dx_;
        p.y += dy_;
    }
    double dx_, dy_;
};

Scena sezione(const live::PareteViva& parete, int fase, bool stretta, Misura misura,
              const MisuraTesti& testi) {
    return scena(parete, {fase, live::Curva::momento}, misura, testi,
                 {.curva = false, .stretta = stretta, .parole = false});
}

// What is left of the name of a layer where it has hardly any room: "Ri…".
bool mozzicone(const Primitiva& una) {
    constexpr std::size_t lettere = 4, puntini = 3;
    const auto* testo = std::get_if<Testo>(&una.figura);
    return testo != nullptr && una.elemento == Elemento::strato &&
           testo->testo.ends_with("\u2026") && testo->testo.size() < lettere + puntini;
}

}  // namespace

std::vector<Primitiva> spostate(std::vector<Primitiva> primitive, double dx, double dy) {
    for (Primitiva& una : primitive) std::visit(Sposta(dx, dy), una.figura);
    return primitive;
}

VedutaMuro vedutaMuro(const live::PareteViva& parete, int fase, const Riquadro& posto,
                      double testata, double piede, const MisuraTesti& testi) {
    // Wide enough for its dimensions and the line at the foot.
    const bool stretta = posto.larghezza() < larghezzaQuote;
    Scena s = sezione(parete, fase, stretta, {posto.larghezza(), posto.altezza()}, testi);
    // With loads, water or a slope above its head it has room enough already, and with ground below
    // its toe there.
    const double giu = std::max(0.0, testata - s.yTesta);
    const double su = std::max(0.0, piede - (posto.altezza() - s.yTesta - s.scala * s.paratia));
    if (giu + su > 0)
        s = sezione(parete, fase, stretta, {posto.larghezza(), posto.altezza() - giu - su}, testi);
    std::erase_if(s.primitive, [&](const Primitiva& una) {
        return una.elemento == Elemento::sfondo || mozzicone(una) ||
               (una.elemento == Elemento::nota && stretta);
    });
    return {spostate(std::move(s.primitive), posto.sinistra, posto.alto + giu),
            {posto.alto + giu + s.yTesta, s.scala, s.paratia},
            posto.alto + giu + s.altezza};
}

}  // namespace korven::drawings
