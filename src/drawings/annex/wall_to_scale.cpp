#include "drawings/annex/wall_to_scale.hpp"

#include <algorithm>
#include <iterator>

#include "base/axis_steps.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/annex/wall_view.hpp"
#include "project/codes.hpp"
#include "scene/canvas.hpp"
#include "scene/polygon.hpp"
#include "scene/text_fitting.hpp"

namespace korven::drawings {

namespace {

using scene::accorciato;
using scene::Ancora;
using scene::Area;
using scene::Elemento;
using scene::Grado;
using scene::Linea;
using scene::Misura;
using scene::MisuraStimata;
using scene::rettangolo;
using scene::Ruolo;
using scene::Scena;
using scene::Tela;
using scene::Tinta;

constexpr double em = corpoCarta;
constexpr double striscia = 2.2 * em;  // below the wall, for the bar

// Halves of black and white with three numbers; ends at the right edge.
double barra(const AsseProfondita& asse, const Misura& misura, Tela& tela) {
    constexpr double lunghezzaVoluta = 3 * pixelCarta;
    const double metri = base::passoAsse(lunghezzaVoluta / asse.scala, 1);
    const double largo = metri * asse.scala, x2 = misura.larghezza - 2.4 * em, x1 = x2 - largo;
    const double y2 = misura.altezza - 0.3 * em, y1 = y2 - 0.45 * em;
    const double xm = (x1 + x2) / 2;
    const Tinta tinta{Ruolo::bordoMuro};
    tela.disegna(Elemento::quota, 0, Area{rettangolo(x1, y1, xm, y2), tinta});
    auto contorno = rettangolo(x1, y1, x2, y2);
    contorno.push_back(contorno.front());
    tela.disegna(Elemento::quota, 0, Linea{std::move(contorno), tinta, 1});
    for (int i = 0; i <= 2; ++i)
        tela.scrivi({.grado = Grado::asse,
                     .elemento = Elemento::quota,
                     .testo = base::testoNumero(metri * i / 2) + (i == 2 ? " m" : ""),
                     .tinta = tinta,
                     .corpo = corpoPiccolo,
                     .posti = {{{x1 + i * largo / 2, y1 - 0.8 * em}, Ancora::centro}}});
    return x1;
}

bool haTiranti(const project::DatiProgetto& dati) {
    const int n = std::clamp(dati.nTiranti, 0, project::massimoTiranti);
    for (int j = 1; j <= n; ++j)
        if (dati.tipoTirante[j] != project::TipoTirante::trazioneCompressione) return true;
    return false;
}

}  // namespace

Scena scenaParete(const live::PareteViva& parete, double larghezza, double altezza) {
    const Misura misura = misuraCarta(larghezza, altezza);
    const MisuraStimata testi;
    Scena s = scenaCarta(misura);
    VedutaMuro muro =
        vedutaMuro(parete, 0, {0, 0, misura.larghezza, misura.altezza - striscia}, 0, 0, testi);
    s.primitive = std::move(muro.primitive);
    s.yTesta = muro.asse.yTesta;
    s.scala = muro.asse.scala;
    s.paratia = muro.asse.lunghezza;
    Tela tela(misura.larghezza, misura.altezza, testi);
    const double libera = barra(muro.asse, misura, tela) - 2 * em;
    if (haTiranti(parete.dati))
        tela.scrivi({.testo = accorciato(base::traduttore("Tiranti disegnati a 15°, indicativi: il "
                                                          "progetto non ne ha l'inclinazione"),
                                         libera, corpoPiccolo, false, testi),
                     .tinta = {Ruolo::testoTenue},
                     .corpo = corpoPiccolo,
                     .posti = {{{0.8 * em, misura.altezza - 0.9 * em}, Ancora::sinistra}}});
    auto altre = tela.concludi();
    std::move(altre.begin(), altre.end(), std::back_inserter(s.primitive));
    return s;
}

}  // namespace korven::drawings
