#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

#include "drawings/annex/paper.hpp"
#include "drawings/charts/axes.hpp"
#include "drawings/charts/charts.hpp"
#include "drawings/charts/series_style.hpp"

namespace korven::drawings {

namespace {

using scene::Elemento;
using scene::Punto;

std::vector<SenzaNumero> mancanti(const CurvaGrafico& curva) {
    std::vector<SenzaNumero> tutti;
    for (const auto& p : curva.punti)
        if (!std::isfinite(p.y)) tutti.push_back({p.x, p.perche});
    return tutti;
}

void curva(scene::Tela& tela, const Assi& assi, const CurvaGrafico& dati, std::size_t numero,
           bool linee) {
    constexpr std::size_t pochi = 40;
    const bool segni = !linee || dati.punti.size() <= pochi;
    std::vector<Punto> tratto;
    const auto chiudi = [&] {
        if (linee && tratto.size() > 1)
            tela.disegna(Elemento::curva, 0, lineaSerie(numero, tratto));
        // A value alone between gaps has no line to be seen by.
        if (segni || tratto.size() == 1)
            for (const Punto& p : tratto) segnaSerie(tela, numero, p);
        tratto.clear();
    };
    for (const auto& p : dati.punti) {
        if (std::isfinite(p.y) && !p.senzaPiede())
            tratto.push_back(assi.punto(p.x, p.y));
        else
            chiudi();
        if (p.senzaPiede()) segnaSenzaPiede(tela, assi.punto(p.x, p.y));
    }
    chiudi();
}

// Names stand in a column at the right, each as high as its curve ends, or below the one above it.
struct Nome {
    double y;
    std::size_t numero;
};

std::vector<Nome> postiNomi(const Assi& assi, const std::vector<CurvaGrafico>& curve) {
    constexpr double riga = 1.3 * corpoPiccolo;
    std::vector<Nome> tutti;
    for (std::size_t k = 0; k < curve.size(); ++k) {
        const auto& punti = curve[k].punti;
        const auto ultimo = std::find_if(punti.rbegin(), punti.rend(),
                                         [](const auto& p) { return std::isfinite(p.y); });
        if (ultimo != punti.rend()) tutti.push_back({assi.y(ultimo->y), k});
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
    return tutti;
}

void scriviNome(scene::Tela& tela, const Assi& assi, const CurvaGrafico& curva, const Nome& nome,
                bool linee) {
    const double x = assi.campo().destra, da = x + 0.3 * corpoCarta, a = x + 1.8 * corpoCarta;
    if (linee)
        tela.disegna(Elemento::curva, 0, lineaSerie(nome.numero, {{da, nome.y}, {a, nome.y}}));
    segnaSerie(tela, nome.numero, {(da + a) / 2, nome.y});
    scriviNota(tela, curva.nome, {a + 0.3 * corpoCarta, nome.y}, scene::Ancora::sinistra);
}

// What the names need at the right.
double largoNomi(const scene::Tela& tela, const std::vector<CurvaGrafico>& curve) {
    if (curve.size() < 2) return 0;
    double largo = 0;
    for (const auto& curva : curve)
        largo = std::max(largo, tela.larghezza(curva.nome, corpoPiccolo));
    return largo + 2.5 * corpoCarta;
}

// The rows below the field: one for each curve that has any, or one for all where they have the
// same.
struct RigaMancanti {
    std::vector<SenzaNumero> mancanti;
    std::optional<std::size_t> curva;  // that it is named after
};

std::vector<RigaMancanti> righeMancanti(const std::vector<CurvaGrafico>& curve) {
    std::vector<RigaMancanti> righe;
    for (std::size_t k = 0; k < curve.size(); ++k) righe.push_back({mancanti(curve[k]), k});
    const bool uguali = std::ranges::all_of(
        righe, [&](const auto& riga) { return riga.mancanti == righe.front().mancanti; });
    if (uguali && !righe.empty()) {
        righe.resize(1);
        righe.front().curva.reset();
    }
    std::erase_if(righe, [](const auto& riga) { return riga.mancanti.empty(); });
    return righe;
}

void segnaTutte(scene::Tela& tela, const Assi& assi, const GraficoCurve& dati,
                const std::vector<RigaMancanti>& righe) {
    std::vector<SenzaNumero> tutti;
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const auto& [suoi, curva] = righe[i];
        segnaMancanze(tela, assi, i, suoi);
        if (curva)
            scriviNome(tela, assi, dati.curve[*curva], {yMancanze(assi, i), *curva},
                       !dati.x.interi);
        tutti.insert(tutti.end(), suoi.begin(), suoi.end());
    }
    for (const auto& curva : dati.curve)
        for (const auto& p : curva.punti)
            if (p.senzaPiede()) tutti.push_back({p.x, p.perche});
    spiegaMancanze(tela, assi, tutti, dati.mancanze);
}

}  // namespace

void disegnaCurve(scene::Tela& tela, const scene::Riquadro& posto, const GraficoCurve& dati) {
    Estensione x, y;
    for (const auto& curva : dati.curve)
        for (const auto& p : curva.punti) {
            x.comprendi(p.x);
            y.comprendi(p.y);
        }
    auto campo = posto;
    campo.destra -= std::max(largoNomi(tela, dati.curve), corpoCarta);
    if (!dati.titoloCurve.empty()) {
        scriviNota(tela, dati.titoloCurve, {posto.destra, posto.alto + 0.7 * corpoCarta},
                   scene::Ancora::destra);
        campo.alto += 1.5 * corpoCarta;
    }
    const auto righe = righeMancanti(dati.curve);
    const Assi assi(campo, x.conAria(), y.conAria(), dati.x, {.titolo = dati.titoloY},
                    altezzaMancanze(righe.size()));
    assi.disegna(tela);
    const bool linee = !dati.x.interi;
    for (std::size_t k = 0; k < dati.curve.size(); ++k) curva(tela, assi, dati.curve[k], k, linee);
    if (dati.curve.size() > 1)
        for (const Nome& nome : postiNomi(assi, dati.curve))
            scriviNome(tela, assi, dati.curve[nome.numero], nome, linee);
    segnaTutte(tela, assi, dati, righe);
}

}  // namespace korven::drawings
