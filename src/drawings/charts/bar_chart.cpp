#include <algorithm>

#include "base/axis_steps.hpp"
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
constexpr double sopra = 1.1 * riga, sotto = 1.4 * corpoCarta;  // for title and scale
constexpr int decimali = 2;

}  // namespace

double altezzaBarre(std::size_t barre) { return sopra + riga * static_cast<double>(barre) + sotto; }

void disegnaGraficoBarre(scene::Tela& tela, const scene::Riquadro& posto,
                         const GraficoBarre& dati) {
    double nomi = 0;
    for (const auto& barra : dati.barre)
        nomi = std::max(nomi, tela.larghezza(barra.nome, corpoPiccolo));
    // The value beside a bar needs room at both ends.
    const double margine = tela.larghezza("-0.00", corpoPiccolo) + corpoCarta;
    const double da = posto.sinistra + nomi + margine, a = posto.destra - margine;
    const double zero = (da + a) / 2, mezza = (a - da) / 2;
    const auto quante = static_cast<std::size_t>(
        std::max(0.0, (posto.basso - posto.alto - sopra - sotto) / riga + 1e-6));
    const std::size_t n = std::min(dati.barre.size(), quante);
    const double cima = posto.alto + sopra, fondo = cima + riga * static_cast<double>(n);

    scriviNota(tela, dati.titolo, {posto.sinistra, posto.alto + 0.7 * corpoCarta},
               Ancora::sinistra);
    constexpr double passo = 0.5;
    for (const double v : {-1.0, -passo, 0.0, passo, 1.0}) {
        const double x = zero + v * mezza;
        tela.disegna(Elemento::asse, 0,
                     Linea{{{x, cima}, {x, fondo}},
                           {v == 0 ? Ruolo::asse : Ruolo::griglia},
                           v == 0 ? 1.2 : 1});
        scriviNota(tela, base::numeroAsse(v, passo), {x, fondo + 0.8 * corpoCarta}, Ancora::centro,
                   Ruolo::testoTenue);
    }
    for (std::size_t k = 0; k < n; ++k) {
        const auto& barra = dati.barre[k];
        const double y = cima + riga * (static_cast<double>(k) + 0.5);
        scriviNota(tela, barra.nome, {posto.sinistra, y}, Ancora::sinistra);
        const double v = barra.valore.value_or(0), x = zero + v * mezza;
        tela.disegna(Elemento::estremo, 0,
                     scene::Area{scene::rettangolo(std::min(zero, x), y - 0.3 * riga,
                                                   std::max(zero, x), y + 0.3 * riga),
                                 {v < 0 ? Ruolo::terzaSerie : Ruolo::secondaSerie}});
        const double accanto = 0.4 * corpoCarta;
        scriviNota(tela, barra.valore ? base::testoDecimali(v, decimali) : "-",
                   {v < 0 ? x - accanto : x + accanto, y},
                   v < 0 ? Ancora::destra : Ancora::sinistra);
    }
}

}  // namespace korven::drawings
