#include <algorithm>

#include "base/number_text.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/charts/axes.hpp"
#include "drawings/charts/charts.hpp"
#include "scene/polygon.hpp"

namespace korven::drawings {

namespace {

using scene::Ancora;
using scene::Elemento;
using scene::Linea;
using scene::Ruolo;

constexpr double riga = 1.7 * corpoCarta;
constexpr int decimali = 2;

}  // namespace

void disegnaGraficoBarre(scene::Tela& tela, const scene::Riquadro& posto,
                         const GraficoBarre& dati) {
    double nomi = 0;
    for (const auto& barra : dati.barre)
        nomi = std::max(nomi, tela.larghezza(barra.nome, corpoPiccolo));
    // The value beside a bar needs room at both ends.
    const double margine = tela.larghezza("-0.00", corpoPiccolo) + corpoCarta;
    const double da = posto.sinistra + nomi + margine, a = posto.destra - margine;
    const double zero = (da + a) / 2, mezza = (a - da) / 2;

    scriviNota(tela, dati.titolo, {posto.sinistra, posto.alto + 0.7 * corpoCarta},
               Ancora::sinistra);
    double y = posto.alto + 1.6 * riga;
    const double cima = y - riga / 2;
    for (const auto& barra : dati.barre) {
        if (y + riga / 2 > posto.basso) break;
        scriviNota(tela, barra.nome, {posto.sinistra, y}, Ancora::sinistra);
        const double v = barra.valore.value_or(0), x = zero + v * mezza;
        tela.disegna(Elemento::curva, 0,
                     scene::Area{scene::rettangolo(std::min(zero, x), y - 0.3 * riga,
                                                   std::max(zero, x), y + 0.3 * riga),
                                 {v < 0 ? Ruolo::curvaMonte : Ruolo::curva}});
        const double accanto = 0.4 * corpoCarta;
        scriviNota(tela, barra.valore ? base::testoDecimali(v, decimali) : "-",
                   {v < 0 ? x - accanto : x + accanto, y},
                   v < 0 ? Ancora::destra : Ancora::sinistra);
        y += riga;
    }
    tela.disegna(Elemento::asse, 0,
                 Linea{{{zero, cima}, {zero, y - riga / 2}}, {Ruolo::asse}, 1.2});
}

}  // namespace korven::drawings
