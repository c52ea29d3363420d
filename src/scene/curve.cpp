#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "base/axis_steps.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "scene/curve_data.hpp"
#include "scene/parts.hpp"
#include "scene/polygon.hpp"
#include "scene/shown_values.hpp"

namespace korven::scene {

namespace {

using base::traduttore;

// The panel at the right: the wall once more as a line, depths at the scale of the section.
class Pannello {
 public:
    Pannello(const Mostrata& m, const Inquadratura& q, Tela& tela)
        : m_(m),
          q_(q),
          tela_(tela),
          dati_(datiCurva(m.parete, m.vista.fase, m.vista.curva)),
          x1_(q.xSezione + 3.2 * q.em),
          x2_(q.larghezza - 1.2 * q.em),
          y1_(q.yTesta),
          y2_(q.y(m.lunghezza)) {
        for (const Serie& serie : dati_.serie)
            for (const double v : serie.valori) {
                minimo_ = std::min(minimo_, mostrato(v));
                massimo_ = std::max(massimo_, mostrato(v));
            }
        if (minimo_ == massimo_) massimo_ = 1;
        // Room for the values at the peaks.
        const double respiro = 0.06 * (massimo_ - minimo_);
        if (minimo_ < 0) minimo_ -= respiro;
        if (massimo_ > 0) massimo_ += respiro;
    }

    void disegna() {
        profondita();
        titolo();
        if (dati_.serie.empty()) {
            nulla();
            linea({{(x1_ + x2_) / 2, y1_}, {(x1_ + x2_) / 2, y2_}}, Ruolo::asse, 1.4);
            return;
        }
        ascisse();
        if (dati_.versoScavo) verso();
        if (dati_.fascia)
            fascia(dati_.serie[0], dati_.serie[1]);
        else
            for (const Serie& serie : dati_.serie) campo(serie);
        for (const Serie& serie : dati_.serie) curva(serie);
        linea({{x(0), y1_}, {x(0), y2_}}, Ruolo::asse, 1.6);
        estremi();
    }

 private:
    [[nodiscard]] double mostrato(double v) const { return project::mostrato(dati_.unita, v); }
    [[nodiscard]] double x(double valore) const {
        return x1_ + (x2_ - x1_) * (valore - minimo_) / (massimo_ - minimo_);
    }
    [[nodiscard]] Punto punto(const Serie& serie, std::size_t i) const {
        return {x(mostrato(serie.valori[i])), q_.y(serie.z[i])};
    }

    void linea(std::vector<Punto> punti, Ruolo ruolo, double spessore,
               Elemento elemento = Elemento::asse, Tratteggio tratti = Tratteggio::nessuno) {
        tela_.disegna(elemento, 0, Linea{std::move(punti), {ruolo}, spessore, tratti});
    }

    void numero(std::string testo, Posto posto) {
        posto.fondo = fondoValle(m_, q_, posto.punto.y);
        tela_.scrivi({.grado = Grado::asse,
                      .elemento = Elemento::asse,
                      .testo = std::move(testo),
                      .tinta = {Ruolo::testoTenue},
                      .corpo = 0.85 * q_.em,
                      .posti = {posto}});
    }

    void profondita() {
        const double passo = base::passoAsse(
            m_.lunghezza, std::max(2, static_cast<int>((y2_ - y1_) / (3.2 * q_.em))));
        for (int i = 0; i * passo <= m_.lunghezza * (1 + 1e-9); ++i) {
            const double z = i * passo, y = q_.y(z);
            linea({{x1_, y}, {x2_, y}}, Ruolo::griglia, 1);
            std::string testo = base::testoNumero(std::round(z / passo) * passo);
            if (passo < 1) testo = base::testoDecimali(z, 2);
            numero(testo + (i == 0 ? " m" : ""), {{x1_ - 0.5 * q_.em, y}, Ancora::destra});
        }
    }

    void titolo() {
        std::string testo = traduttore(dati_.titolo);
        testo.append(" ").append(project::traParentesi(dati_.unita));
        tela_.scrivi({.grado = Grado::nota,
                      .elemento = Elemento::asse,
                      .testo = testo,
                      .tinta = {Ruolo::testo},
                      .corpo = q_.em,
                      .grassetto = true,
                      .posti = {{{(x1_ + x2_) / 2, y1_ - 2.6 * q_.em}, Ancora::centro},
                                {{x2_, y1_ - 2.6 * q_.em}, Ancora::destra}}});
    }

    // What could not be drawn is told beside the axis.
    void nulla() {
        tela_.scrivi({.grado = Grado::estremo,
                      .elemento = Elemento::curva,
                      .testo = traduttore("nessuna curva"),
                      .tinta = {Ruolo::testoTenue},
                      .corpo = q_.em,
                      .posti = {{{(x1_ + x2_) / 2, (y1_ + y2_) / 2},
                                 Ancora::centro,
                                 fondoValle(m_, q_, (y1_ + y2_) / 2)}}});
    }

    void ascisse() {
        const double largo = tela_.larghezza("-0000", 0.85 * q_.em) + 1.2 * q_.em;
        const double passo =
            base::passoAsse(massimo_ - minimo_, std::max(2, static_cast<int>((x2_ - x1_) / largo)));
        linea({{x1_, y1_}, {x2_, y1_}}, Ruolo::asse, 1);
        for (double i = std::ceil(minimo_ / passo); i * passo <= massimo_; ++i) {
            const double v = i * passo, xv = x(v);
            linea({{xv, y1_}, {xv, y2_}}, Ruolo::griglia, 1);
            linea({{xv, y1_ - 0.35 * q_.em}, {xv, y1_}}, Ruolo::asse, 1);
            numero(base::numeroAsse(v, passo), {{xv, y1_ - 1.12 * q_.em}, Ancora::centro});
        }
    }

    // Which way positive values point: below the toe, where no curve is.
    void verso() {
        const double lunga = 1.8 * q_.em, y = y2_ + q_.em;
        if (!q_.visibile(y)) return;
        tela_.disegna(Elemento::asse, 0,
                      Freccia{{{x2_ - lunga, y}, {x2_, y}}, {Ruolo::testoTenue}, 1, 0.5 * q_.em});
        numero(traduttore("+ verso lo scavo"), {{x2_ - lunga - 0.5 * q_.em, y}, Ancora::destra});
    }

    void campo(const Serie& serie) {
        if (!serie.riempita) return;
        std::vector<Punto> punti{{x(0), y1_}};
        for (std::size_t i = 0; i < serie.valori.size(); ++i) punti.push_back(punto(serie, i));
        punti.push_back({x(0), y2_});
        tela_.disegna(Elemento::curva, 0, Area{std::move(punti), {serie.fondo}});
    }

    void fascia(const Serie& minimo, const Serie& massimo) {
        std::vector<Punto> punti;
        for (std::size_t i = 0; i < minimo.valori.size(); ++i) punti.push_back(punto(minimo, i));
        for (std::size_t i = massimo.valori.size(); i-- > 0;) punti.push_back(punto(massimo, i));
        tela_.disegna(Elemento::curva, 0, Area{std::move(punti), {minimo.fondo}});
    }

    void curva(const Serie& serie) {
        std::vector<Punto> punti;
        for (std::size_t i = 0; i < serie.valori.size(); ++i) punti.push_back(punto(serie, i));
        linea(std::move(punti), serie.linea, 1.8, Elemento::curva,
              serie.riempita ? Tratteggio::nessuno : Tratteggio::linee);
    }

    // A peak that is nothing beside the others is the noise of a hinge or of the toe.
    void estremi() {
        double massimo = 0;
        for (const Serie& serie : dati_.serie)
            for (const double v : serie.valori) massimo = std::max(massimo, std::fabs(v));
        const double trascurabile = 0.005 * massimo;
        for (const Serie& serie : dati_.serie) {
            const auto [minore, maggiore] =
                std::minmax_element(serie.valori.begin(), serie.valori.end());
            const bool primo = &serie == &dati_.serie.front();
            const bool ultimo = &serie == &dati_.serie.back();
            if (*maggiore > trascurabile && (!dati_.fascia || ultimo)) estremo(serie, maggiore);
            if (*minore < -trascurabile && (!dati_.fascia || primo)) estremo(serie, minore);
        }
    }

    // The value and its depth at the peak: outside the curve where there is room.
    void estremo(const Serie& serie, std::vector<double>::const_iterator dove) {
        const auto i = static_cast<std::size_t>(dove - serie.valori.begin());
        const Punto p = punto(serie, i);
        const double r = 0.26 * q_.em, d = 0.6 * q_.em;
        tela_.disegna(Elemento::estremo, 0,
                      Area{rettangolo(p.x - r, p.y - r, p.x + r, p.y + r), {serie.linea}});
        std::string testo = serie.nome.empty() ? std::string() : traduttore(serie.nome) + " ";
        testo += conUnita(*dove, dati_.unita) + "  " + quota(serie.z[i]);
        const bool destra = p.x >= x(0);
        std::vector<Posto> posti;
        for (const double dy : {0.0, 1.3, -1.3, 2.6, -2.6, 3.9, -3.9}) {
            const double y = p.y + dy * q_.em;
            posti.push_back(
                {{destra ? p.x + d : p.x - d, y}, destra ? Ancora::sinistra : Ancora::destra});
            posti.push_back(
                {{destra ? p.x - d : p.x + d, y}, destra ? Ancora::destra : Ancora::sinistra});
            posti.push_back({{x2_, y}, Ancora::destra});
            posti.push_back({{x1_, y}, Ancora::sinistra});
        }
        for (Posto& posto : posti) posto.fondo = {serie.fondo};
        // Not outside the panel, where the section is.
        const double largo = tela_.larghezza(testo, 0.92 * q_.em, true) + 0.5 * q_.em;
        std::erase_if(posti, [&](const Posto& posto) {
            const double da =
                posto.ancora == Ancora::destra ? posto.punto.x - largo : posto.punto.x;
            return da < x1_ - q_.em || da + largo > q_.larghezza;
        });
        tela_.scrivi({.grado = Grado::estremo,
                      .elemento = Elemento::estremo,
                      .testo = testo,
                      .tinta = {serie.linea},
                      .corpo = 0.92 * q_.em,
                      .grassetto = true,
                      .posti = std::move(posti)});
    }

    const Mostrata& m_;
    const Inquadratura& q_;
    Tela& tela_;
    DatiCurva dati_;
    double x1_, x2_, y1_, y2_;
    double minimo_ = 0, massimo_ = 0;  // shown, of all series, 0 among them
};

}  // namespace

void disegnaCurva(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    if (m.lunghezza > 0) Pannello(m, q, tela).disegna();
}

}  // namespace korven::scene
