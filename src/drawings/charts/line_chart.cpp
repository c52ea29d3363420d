#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "drawings/annex/paper.hpp"
#include "drawings/charts/axes.hpp"
#include "drawings/charts/charts.hpp"

namespace korven::drawings {

namespace {

using scene::Elemento;
using scene::Linea;
using scene::Punto;
using scene::Ruolo;
using scene::Tratteggio;

// Curves that lie together are told apart without colours too.
constexpr Tratteggio tratteggi[] = {Tratteggio::nessuno, Tratteggio::linee, Tratteggio::punti};
constexpr Ruolo ruoli[] = {Ruolo::curva, Ruolo::acqua, Ruolo::carico, Ruolo::testo};

Linea linea(std::size_t numero, std::vector<Punto> punti) {
    constexpr double spessore = 1.6;
    return {std::move(punti),
            {ruoli[numero % std::size(ruoli)]},
            spessore,
            tratteggi[numero / std::size(ruoli) % std::size(tratteggi)]};
}

// A dot marks a value that stands alone between gaps.
void tratto(scene::Tela& tela, std::size_t numero, std::vector<Punto> punti) {
    constexpr double mezzo = 1.5;
    if (punti.empty()) return;
    if (punti.size() == 1) {
        const Punto p = punti.front();
        punti = {{p.x - mezzo, p.y}, {p.x + mezzo, p.y}};
    }
    tela.disegna(Elemento::curva, 0, linea(numero, std::move(punti)));
}

void curva(scene::Tela& tela, const Assi& assi, const CurvaGrafico& dati, std::size_t numero) {
    std::vector<Punto> punti;
    for (std::size_t i = 0; i < dati.x.size(); ++i) {
        if (std::isfinite(dati.y[i])) {
            punti.push_back(assi.punto(dati.x[i], dati.y[i]));
            continue;
        }
        tratto(tela, numero, std::exchange(punti, {}));
    }
    tratto(tela, numero, std::move(punti));
}

// Short strokes on the axis, and once what they mean.
void segnaMancanti(scene::Tela& tela, const Assi& assi, const CurvaGrafico& dati,
                   const std::string& parole) {
    const double basso = assi.campo().basso;
    bool uno = false;
    for (std::size_t i = 0; i < dati.x.size(); ++i) {
        if (std::isfinite(dati.y[i])) continue;
        const double x = assi.x(dati.x[i]);
        tela.disegna(Elemento::estremo, 0,
                     Linea{{{x, basso}, {x, basso - 0.6 * corpoCarta}}, {Ruolo::meccanismo}, 2});
        uno = true;
    }
    if (uno)
        scriviNota(tela, parole, {assi.campo().sinistra, basso + 2.1 * corpoCarta},
                   scene::Ancora::sinistra, Ruolo::meccanismo);
}

// Names stand in a column at the right, each as high as its curve ends, or below the one above it.
struct Nome {
    double y;
    std::size_t numero;
};

void nomi(scene::Tela& tela, const Assi& assi, const std::vector<CurvaGrafico>& curve) {
    constexpr double riga = 1.3 * corpoPiccolo;
    std::vector<Nome> tutti;
    for (std::size_t k = 0; k < curve.size(); ++k)
        for (std::size_t i = curve[k].y.size(); i-- > 0;)
            if (std::isfinite(curve[k].y[i])) {
                tutti.push_back({assi.y(curve[k].y[i]), k});
                break;
            }
    std::ranges::stable_sort(tutti, {}, &Nome::y);
    double libero = assi.campo().alto;
    for (auto& nome : tutti) {
        nome.y = std::max(nome.y, libero);
        libero = nome.y + riga;
    }
    double fondo = assi.campo().basso;
    for (auto nome = tutti.rbegin(); nome != tutti.rend(); ++nome) {
        nome->y = std::min(nome->y, fondo);
        fondo = nome->y - riga;
    }
    const double x = assi.campo().destra;
    for (const auto& [y, numero] : tutti) {
        tela.disegna(Elemento::curva, 0,
                     linea(numero, {{x + 0.3 * corpoCarta, y}, {x + 1.8 * corpoCarta, y}}));
        scriviNota(tela, curve[numero].nome, {x + 2.1 * corpoCarta, y}, scene::Ancora::sinistra);
    }
}

// What the names need at the right.
double largoNomi(const scene::Tela& tela, const std::vector<CurvaGrafico>& curve) {
    if (curve.size() < 2) return 0;
    double largo = 0;
    for (const auto& curva : curve)
        largo = std::max(largo, tela.larghezza(curva.nome, corpoPiccolo));
    return largo + 2.5 * corpoCarta;
}

}  // namespace

void disegnaCurve(scene::Tela& tela, const scene::Riquadro& posto, const GraficoCurve& dati) {
    Estensione x, y;
    for (const auto& curva : dati.curve) {
        for (const double v : curva.x) x.comprendi(v);
        for (const double v : curva.y) y.comprendi(v);
    }
    auto campo = posto;
    campo.destra -= std::max(largoNomi(tela, dati.curve), corpoCarta);
    const Assi assi(campo, x.conAria(), y.conAria(), dati.titoloX, dati.titoloY);
    assi.disegna(tela);
    for (std::size_t k = 0; k < dati.curve.size(); ++k) curva(tela, assi, dati.curve[k], k);
    if (dati.curve.size() == 1)
        segnaMancanti(tela, assi, dati.curve.front(), dati.mancanti);
    else
        nomi(tela, assi, dati.curve);
}

}  // namespace korven::drawings
