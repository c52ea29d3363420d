#include "drawings/annex/depth_panels.hpp"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "base/axis_steps.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "drawings/annex/curve_peaks.hpp"
#include "drawings/annex/panel_scale.hpp"
#include "drawings/annex/paper.hpp"
#include "scene/polygon.hpp"
#include "scene/text_fitting.hpp"

namespace korven::drawings {

namespace {

using base::traduttore;
using scene::accorciato;
using scene::Ancora;
using scene::Area;
using scene::Elemento;
using scene::Freccia;
using scene::Grado;
using scene::inRighe;
using scene::Linea;
using scene::Primitiva;
using scene::Punto;
using scene::Riquadro;
using scene::Ruolo;
using scene::Tela;
using scene::Testo;
using scene::Tratteggio;

constexpr double em = corpoCarta, corpo = corpoPiccolo;
constexpr double riga = 1.25 * em;
constexpr int righeTitolo = 3;
constexpr double sopraNumeri = 1.1 * em;  // of the numbers of an axis, above it
// The first key below the toe: room for a row of values above it, or for two.
constexpr double sottoPiede = 1.9 * em, sottoPiedeLibero = 3.1 * em;
constexpr double rigaChiave = 1.15 * em;
constexpr int righeChiave = 3;
constexpr double quotaRumore = 0.005;  // of a peak beside the largest value

}  // namespace

Pannelli::Pannelli(const AsseProfondita& asse, std::vector<double> linee, double basso, Tela& tela)
    : asse_(asse),
      linee_(std::move(linee)),
      yChiave_(std::clamp(basso - (righeChiave - 0.4) * rigaChiave, asse.piede() + sottoPiede,
                          asse.piede() + sottoPiedeLibero)),
      tela_(tela) {}

double Pannelli::testata() { return sopraNumeri + righeTitolo * riga + 0.6 * em; }
double Pannelli::piede() { return sottoPiede + righeChiave * rigaChiave; }

double Pannelli::passo() const {
    return base::passoAsse(
        asse_.lunghezza,
        std::max(2, static_cast<int>((asse_.piede() - asse_.yTesta) / (2.6 * em))));
}

void Pannelli::profondita(double x) {
    const double passo = this->passo();
    for (int i = 0; i * passo <= asse_.lunghezza * (1 + 1e-9); ++i)
        tela_.scrivi({.grado = Grado::asse,
                      .elemento = Elemento::asse,
                      .testo = base::numeroAsse(i * passo, passo) + (i == 0 ? " m" : ""),
                      .tinta = {Ruolo::testoTenue},
                      .corpo = corpo,
                      .posti = {{{x, asse_.y(i * passo)}, Ancora::destra}}});
}

// One panel in the making.
class Pannelli::Pannello {
 public:
    Pannello(Pannelli& tutti, const DatiPannello& dati, double x1, double x2)
        : tutti_(tutti), dati_(dati), asse_(tutti.asse_), tela_(tutti.tela_), scala_(dati, x1, x2) {
        for (const CurvaPannello& curva : dati_.curve)
            for (const double v : curva.valori) grande_ = std::max(grande_, std::fabs(v));
        campo_.posto = {scala_.x1 - 0.5 * em, asse_.yTesta + 1, scala_.x2 + 0.4 * em,
                        tutti_.yChiave_ - 0.55 * em};
    }

    void disegna() {
        griglia();
        titolo();
        if (dati_.curve.empty()) return nulla();
        ascisse();
        if (dati_.fasciaDa >= 0) fascia();
        for (const CurvaPannello& curva : dati_.curve)
            if (curva.fondo) campo(curva);
        linea({{x(0), asse_.yTesta}, {x(0), asse_.piede()}}, Ruolo::asse, 1.4);
        campo_.rette.push_back({{x(0), asse_.yTesta}, {x(0), asse_.piede()}});
        for (const CurvaPannello& curva : dati_.curve) disegna(curva);
        for (const CurvaPannello& curva : dati_.curve)
            for (Picco& picco : picchi(curva, dati_.unita, punti(curva), quotaRumore * grande_))
                campo_.picchi.push_back(std::move(picco));
        chiave();
        tutti_.campi_.push_back(std::move(campo_));
    }

 private:
    [[nodiscard]] double x(double mostrato) const { return scala_.x(mostrato); }
    [[nodiscard]] std::vector<Punto> punti(const CurvaPannello& curva) const {
        std::vector<Punto> tutti;
        for (std::size_t i = 0; i < curva.valori.size(); ++i)
            tutti.push_back(
                {x(project::mostrato(dati_.unita, curva.valori[i])), asse_.y(curva.z[i])});
        return tutti;
    }

    void linea(std::vector<Punto> punti, Ruolo ruolo, double spessore,
               Tratteggio tratteggio = Tratteggio::nessuno) {
        tela_.disegna(Elemento::asse, 0, Linea{std::move(punti), {ruolo}, spessore, tratteggio});
    }
    void scrivi(std::string testo, Punto punto, Ancora ancora, Grado grado = Grado::asse,
                double corpoTesto = corpo) {
        tela_.scrivi({.grado = grado,
                      .elemento = Elemento::asse,
                      .testo = std::move(testo),
                      .tinta = {Ruolo::testo},
                      .corpo = corpoTesto,
                      .posti = {{punto, ancora}}});
    }

    void griglia() {
        const double passo = tutti_.passo();
        for (int i = 0; i * passo <= asse_.lunghezza * (1 + 1e-9); ++i)
            linea({{scala_.x1, asse_.y(i * passo)}, {scala_.x2, asse_.y(i * passo)}},
                  Ruolo::griglia, 1);
        for (const double z : tutti_.linee_)
            linea({{scala_.x1, asse_.y(z)}, {scala_.x2, asse_.y(z)}}, Ruolo::fase, 0.8,
                  Tratteggio::linee);
        linea({{scala_.x1, asse_.yTesta}, {scala_.x2, asse_.yTesta}}, Ruolo::asse, 0.8);
    }

    // In rows that end above the numbers, the unit in the last.
    void titolo() {
        auto righe = inRighe(dati_.titolo, scala_.x2 - scala_.x1 + 0.4 * em, em, righeTitolo - 1,
                             tela_.misura());
        righe.push_back(traParentesi(dati_.unita));
        double y = asse_.yTesta - sopraNumeri - 1.2 * em - riga * static_cast<double>(righe.size());
        for (std::string& una : righe)
            scrivi(std::move(una), {(scala_.x1 + scala_.x2) / 2, y += riga}, Ancora::centro,
                   Grado::nota, em);
    }

    void nulla() {
        const double xm = (scala_.x1 + scala_.x2) / 2;
        linea({{xm, asse_.yTesta}, {xm, asse_.piede()}}, Ruolo::asse, 1.4);
        scrivi(traduttore("nessuna curva"), {xm, (asse_.yTesta + asse_.piede()) / 2},
               Ancora::centro);
    }

    void ascisse() {
        for (NumeroAscissa& n : numeriAscisse(scala_, tela_.misura())) {
            linea({{n.tacca, asse_.yTesta}, {n.tacca, asse_.piede()}}, Ruolo::griglia, 1);
            linea({{n.tacca, asse_.yTesta - 0.3 * em}, {n.tacca, asse_.yTesta}}, Ruolo::asse, 0.8);
            scrivi(std::move(n.testo), {n.x, asse_.yTesta - sopraNumeri}, Ancora::centro);
        }
    }

    void campo(const CurvaPannello& curva) {
        std::vector<Punto> bordo{{x(0), asse_.yTesta}};
        for (const Punto& p : punti(curva)) bordo.push_back(p);
        bordo.push_back({x(0), bordo.back().y});
        tela_.disegna(Elemento::curva, 0, Area{std::move(bordo), {*curva.fondo}});
    }
    void fascia() {
        auto bordo = punti(dati_.curve[static_cast<std::size_t>(dati_.fasciaDa)]);
        const auto altro = punti(dati_.curve[static_cast<std::size_t>(dati_.fasciaA)]);
        bordo.insert(bordo.end(), altro.rbegin(), altro.rend());
        tela_.disegna(Elemento::curva, 0, Area{std::move(bordo), {Ruolo::fondoCurva}});
    }
    void disegna(const CurvaPannello& curva) {
        auto tutti = punti(curva);
        const bool sottile = !curva.massimo && !curva.minimo;  // of many, behind the others
        (sottile ? campo_.sottili : campo_.curve).push_back(tutti);
        tela_.disegna(Elemento::curva, 0,
                      Linea{std::move(tutti), {curva.linea}, curva.spessore, curva.tratteggio});
    }

    // Below the toe: the lines by their names, and which way positive values point.
    void chiave() {
        double y = tutti_.yChiave_;
        if (dati_.versoScavo) {
            const double xm = (scala_.x1 + scala_.x2) / 2, mezza = 0.9 * em;
            tela_.disegna(Elemento::asse, 0,
                          Freccia{{{xm - mezza, y}, {xm + mezza, y}}, {Ruolo::asse}, 1, 0.5 * em});
            // In rows of its own where the panel is narrow: a panel with it has no other key.
            y += 1.1 * em - rigaChiave;
            for (std::string& una :
                 inRighe(traduttore("+ verso lo scavo"), scala_.x2 - scala_.x1 + 0.6 * em, corpo,
                         righeChiave - 1, tela_.misura()))
                scrivi(std::move(una), {xm, y += rigaChiave}, Ancora::centro);
            y += 1.25 * em;
        }
        for (const CurvaPannello& curva : dati_.curve) {
            if (curva.nome.empty()) continue;
            const double lunga = 1.7 * em;
            linea({{scala_.x1, y}, {scala_.x1 + lunga, y}}, curva.linea, curva.spessore,
                  curva.tratteggio);
            scrivi(
                accorciato(curva.nome, scala_.x2 - scala_.x1 - lunga, corpo, false, tela_.misura()),
                {scala_.x1 + lunga + 0.4 * em, y}, Ancora::sinistra);
            y += rigaChiave;
        }
    }

    Pannelli& tutti_;
    const DatiPannello& dati_;
    const AsseProfondita& asse_;
    Tela& tela_;
    ScalaPannello scala_;
    double grande_ = 0;  // largest of all values, stored
    CampoPicchi campo_;
};

void Pannelli::disegna(const DatiPannello& dati, double x1, double x2) {
    Pannello(*this, dati, x1, x2).disegna();
}

std::vector<Primitiva> Pannelli::concludi() {
    std::vector<Primitiva> tutte = tela_.concludi();
    std::vector<Riquadro> occupati;
    for (const Primitiva& una : tutte)
        if (const auto* testo = std::get_if<Testo>(&una.figura))
            occupati.push_back(testo->riquadro());
    auto picchi = etichettePicchi(campi_, std::move(occupati), tela_.misura());
    std::move(picchi.begin(), picchi.end(), std::back_inserter(tutte));
    return tutte;
}

}  // namespace korven::drawings
