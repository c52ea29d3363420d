#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "base/axis_steps.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/charts/axes.hpp"
#include "drawings/charts/charts.hpp"

namespace korven::drawings {

namespace {

using scene::Elemento;
using scene::Linea;
using scene::Ruolo;

// By Freedman and Diaconis, to whom two heaps far apart are one wide distribution of a few classes:
// not fewer than twice the number that Sturges asks for, since the round step of an axis may halve
// it.
int quanteClassi(const std::vector<double>& ordinati) {
    constexpr double massime = 60;
    const std::size_t n = ordinati.size();
    const double minime = std::max(5.0, std::round(2 * std::log2(static_cast<double>(n))));
    const double ampiezza = ordinati.back() - ordinati.front();
    const double quartili = ordinati[3 * (n - 1) / 4] - ordinati[(n - 1) / 4];
    const double passo = 2 * quartili / std::cbrt(static_cast<double>(n));
    return static_cast<int>(passo > 0 ? std::clamp(ampiezza / passo, minime, massime) : minime);
}

void barra(scene::Tela& tela, const Assi& assi, double da, double a, double alta) {
    const double x1 = assi.x(da), x2 = assi.x(a), basso = assi.y(0), alto = assi.y(alta);
    tela.disegna(
        Elemento::estremo, 0,
        scene::Area{{{x1, basso}, {x1, alto}, {x2, alto}, {x2, basso}}, {Ruolo::fondoCurva}});
    tela.disegna(Elemento::curva, 0,
                 Linea{{{x1, basso}, {x1, alto}, {x2, alto}, {x2, basso}}, {Ruolo::curva}, 1});
}

// Above the field, or in it beside the mark where another one is near.
void nomina(scene::Tela& tela, const Assi& assi, const std::string& nome, double x) {
    const double alto = assi.campo().alto, accanto = 0.3 * corpoCarta;
    std::vector<scene::Posto> posti{{{x, alto - 0.8 * corpoCarta}, scene::Ancora::centro}};
    for (const double giu : {0.9, 2.0, 3.1}) {
        posti.push_back({{x + accanto, alto + giu * corpoCarta}, scene::Ancora::sinistra});
        posti.push_back({{x - accanto, alto + giu * corpoCarta}, scene::Ancora::destra});
    }
    tela.scrivi({.grado = scene::Grado::nota,
                 .elemento = Elemento::estremo,
                 .testo = nome,
                 .tinta = {Ruolo::testo},
                 .corpo = corpoPiccolo,
                 .posti = std::move(posti)});
}

}  // namespace

Classi classi(std::vector<double> valori) {
    std::ranges::sort(valori);
    const double ampiezza = valori.back() - valori.front();
    Classi trovate;
    trovate.passo = base::passoAsse(ampiezza > 0 ? ampiezza : std::max(std::fabs(valori[0]), 1.0),
                                    quanteClassi(valori));
    const double prima = std::floor(valori.front() / trovate.passo);
    trovate.inizio = prima * trovate.passo;
    const double ultima = std::max(prima + 1, std::ceil(valori.back() / trovate.passo));
    trovate.numeri.resize(static_cast<std::size_t>(ultima - prima));
    for (const double v : valori) {
        const double quale = std::floor(v / trovate.passo) - prima;
        ++trovate.numeri[std::min(static_cast<std::size_t>(quale), trovate.numeri.size() - 1)];
    }
    return trovate;
}

void disegnaIstogramma(scene::Tela& tela, const scene::Riquadro& posto, const Istogramma& dati) {
    auto valori = dati.valori;
    std::erase_if(valori, [](double v) { return !std::isfinite(v); });
    if (valori.empty()) return;
    const Classi c = classi(valori);
    const double fine = c.inizio + c.passo * static_cast<double>(c.numeri.size());
    const double piu = static_cast<double>(*std::ranges::max_element(c.numeri));
    Estensione x, y;
    for (const double v : {c.inizio, fine}) x.comprendi(v);
    for (const double v : {0.0, 1.08 * piu}) y.comprendi(v);  // the names of the marks above
    auto campo = posto;
    campo.destra -= corpoCarta;
    const Assi assi(campo, x, y, {.titolo = dati.titoloX},
                    {.titolo = dati.titoloY, .interi = true});
    assi.disegna(tela);
    for (std::size_t k = 0; k < c.numeri.size(); ++k) {
        const double da = c.inizio + c.passo * static_cast<double>(k);
        if (c.numeri[k] > 0) barra(tela, assi, da, da + c.passo, static_cast<double>(c.numeri[k]));
    }
    for (const auto& segno : dati.segni) {
        const double dove = assi.x(segno.x);
        tela.disegna(Elemento::estremo, 0,
                     Linea{{{dove, assi.campo().alto}, {dove, assi.campo().basso}},
                           {Ruolo::testo},
                           1,
                           scene::Tratteggio::linee});
        nomina(tela, assi, segno.nome, dove);
    }
}

}  // namespace korven::drawings
