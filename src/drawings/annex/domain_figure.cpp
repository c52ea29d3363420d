#include "drawings/annex/domain_figure.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <utility>

#include "drawings/annex/paper.hpp"
#include "drawings/annex/peak_labels.hpp"
#include "scene/domain.hpp"
#include "scene/stage_groups.hpp"
#include "scene/text_measure.hpp"

namespace korven::drawings {

namespace {

using scene::Elemento;
using scene::Linea;
using scene::Primitiva;
using scene::Punto;
using scene::Riquadro;
using scene::Scena;
using scene::Testo;

// The stroke of a stage remains; its marks and its number are made anew.
bool daRifare(const Primitiva& una) {
    return una.elemento == Elemento::fase && !std::holds_alternative<Linea>(una.figura);
}

// The mark in the middle of a heap has the numbers of all its stages.
void nomina(const scene::GruppoFasi& gruppo, std::vector<Picco>& segni) {
    const Punto& meta = gruppo.punti.front();
    const auto quanto = [&](const Picco& p) {
        return std::hypot(p.punto.x - meta.x, p.punto.y - meta.y);
    };
    Picco* vicino = nullptr;
    for (Picco& p : segni)
        if (p.forme.empty() && p.ruolo == gruppo.tinta.ruolo &&
            (vicino == nullptr || quanto(p) < quanto(*vicino)))
            vicino = &p;
    if (vicino != nullptr) vicino->forme = {{scene::nomeFasi(gruppo.fasi)}};
}

CampoPicchi campo(const Scena& s) {
    constexpr double vicini = 1.1 * corpoPiccolo;  // numbers of these would lie on one another
    CampoPicchi campo;
    std::vector<scene::SegniFase> segni;
    campo.posto = {0, 0, s.larghezza, s.altezza};
    for (const Primitiva& una : s.primitive) {
        const auto* linea = std::get_if<Linea>(&una.figura);
        if (linea == nullptr) continue;
        const auto& punti = linea->punti;
        if (una.elemento == Elemento::curva)
            for (std::size_t i = 0; i + 1 < punti.size(); ++i) {
                const auto [alto, basso] =
                    std::minmax(punti[i], punti[i + 1],
                                [](const Punto& a, const Punto& b) { return a.y < b.y; });
                campo.curve.push_back({alto, basso});
            }
        if (una.elemento != Elemento::fase) continue;
        campo.rette.emplace_back(punti.front(), punti.back());
        for (const Punto& punto : {punti.front(), punti.back()}) {
            segni.push_back({una.numero, {punto}, linea->tinta});
            campo.picchi.push_back({punto, linea->tinta.ruolo, {}});
        }
    }
    for (const scene::GruppoFasi& gruppo : scene::gruppiFasi(std::move(segni), vicini))
        nomina(gruppo, campo.picchi);
    return campo;
}

}  // namespace

Scena scenaDominioCarta(const std::vector<structure::PuntoDominio>& dominio,
                        const std::vector<live::FaseNelDominio>& fasi, double larghezza,
                        double altezza) {
    const scene::MisuraStimata testi;
    Scena s = scene::scenaDominio(dominio, fasi, misuraCarta(larghezza, altezza), testi, {});
    std::erase_if(s.primitive, daRifare);
    std::vector<Riquadro> occupati;
    for (const Primitiva& una : s.primitive)
        if (const auto* testo = std::get_if<Testo>(&una.figura))
            occupati.push_back(testo->riquadro());
    auto picchi = etichettePicchi({campo(s)}, std::move(occupati), testi);
    std::move(picchi.begin(), picchi.end(), std::back_inserter(s.primitive));
    return s;
}

}  // namespace korven::drawings
