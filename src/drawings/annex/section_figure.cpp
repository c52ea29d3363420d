#include "drawings/annex/section_figure.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "base/translated_texts.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/annex/section_symbols.hpp"
#include "drawings/section_sketch.hpp"
#include "scene/text_measure.hpp"
#include "structure/section_type.hpp"

namespace korven::drawings {

namespace {

using scene::Ancora;
using scene::Area;
using scene::Elemento;
using scene::Figura;
using scene::Linea;
using scene::MisuraStimata;
using scene::Primitiva;
using scene::Punto;
using scene::Ruolo;
using scene::Scena;
using scene::Testo;
using scene::Tratteggio;
using structure::TipoSezione;

project::Parte parte(TipoSezione tipo) {
    switch (tipo) {
        case TipoSezione::pali:
            return project::Parte::pali;
        case TipoSezione::palancola:
            return project::Parte::palancola;
        case TipoSezione::paliArmati:
            return project::Parte::paliArmati;
        default:
            return project::Parte::diaframma;
    }
}

class Disegno {
 public:
    explicit Disegno(Scena& s) : s_(s), alto_(s.altezza - nota) {
        scala_ = std::min(s.larghezza / larghezzaSchizzo, alto_ / altezzaSchizzo);
    }

    void disegna(const Schizzo& schizzo) {
        for (const LineaSchizzo& linea : schizzo.linee) {
            std::vector<Punto> punti;
            for (const plot::Punto& p : linea.punti) punti.push_back(sul(p));
            figura(std::move(punti), linea.chiusa, linea.segno);
        }
        for (const CerchioSchizzo& cerchio : schizzo.cerchi)
            figura(intorno(cerchio), true, cerchio.segno);
        for (const QuotaSchizzo& quota : schizzo.quote) disegna(quota);
        constexpr double dalBordo = 4;
        lato(dalBordo, "LATO MONTE");
        lato(larghezzaSchizzo - dalBordo, "LATO VALLE");
        scrivi(base::traduttore("Misure in mm"), {s_.larghezza / 2, s_.altezza - nota / 2},
               Ancora::centro, false);
    }

 private:
    [[nodiscard]] Punto sul(const plot::Punto& p) const {
        return {s_.larghezza / 2 + (p.x - larghezzaSchizzo / 2) * scala_,
                alto_ / 2 - (p.y - altezzaSchizzo / 2) * scala_};
    }
    [[nodiscard]] double corpo() const { return std::max(corpoSchizzo * scala_, corpoPiccolo); }

    [[nodiscard]] std::vector<Punto> intorno(const CerchioSchizzo& cerchio) const {
        constexpr int lati = 48;
        std::vector<Punto> punti;
        const Punto c = sul(cerchio.centro);
        for (int i = 0; i < lati; ++i) {
            const double a = 2 * std::numbers::pi * i / lati;
            punti.push_back({c.x + cerchio.raggio * scala_ * std::cos(a),
                             c.y + cerchio.raggio * scala_ * std::sin(a)});
        }
        return punti;
    }

    void aggiungi(Figura una) {
        Primitiva& p = s_.primitive.emplace_back();
        p.elemento = Elemento::quota;  // whose lines no hatch ends at
        p.figura = std::move(una);
    }
    void linea(std::vector<Punto> punti, Ruolo ruolo, double spessore,
               Tratteggio tratteggio = Tratteggio::nessuno) {
        aggiungi(Linea{std::move(punti), {ruolo}, spessore, tratteggio});
    }

    void figura(std::vector<Punto> punti, bool chiusa, Segno segno) {
        if (punti.empty()) return;
        if (chiusa && segno == Segno::calcestruzzo) aggiungi(Area{punti, {Ruolo::fondoCurva}});
        if (chiusa && segno == Segno::acciaio) aggiungi(Area{punti, {Ruolo::limitePassivo}});
        if (chiusa) punti.push_back(punti.front());
        if (segno == Segno::assente)
            linea(std::move(punti), Ruolo::tiranteFuturo, 1, Tratteggio::punti);
        else if (segno == Segno::asse)
            linea(std::move(punti), Ruolo::quota, 0.8, Tratteggio::linee);
        else
            linea(std::move(punti), Ruolo::bordoMuro, segno == Segno::calcestruzzo ? 1.8 : 1);
    }

    void disegna(const QuotaSchizzo& quota) {
        for (const plot::Tratto& t : quota.linee) linea({sul(t.da), sul(t.a)}, Ruolo::quota, 0.7);
        const double mezzo = 1.2 * scala_;
        for (const plot::Punto& estremo : quota.estremi) {
            const Punto p = sul(estremo);
            linea({{p.x - mezzo, p.y + mezzo}, {p.x + mezzo, p.y - mezzo}}, Ruolo::bordoMuro, 1.4);
        }
        // The sketch has its base line, a picture the middle of its capitals.
        Punto p = sul(quota.testo);
        p.y -= altezzaMaiuscole / 2 * corpo();
        scrivi(quota.scritta, p,
               quota.appoggio == Appoggio::inizio   ? Ancora::sinistra
               : quota.appoggio == Appoggio::centro ? Ancora::centro
                                                    : Ancora::destra,
               false);
    }
    void lato(double x, std::string_view nome) {
        scrivi(base::traduttore(nome), sul({x, altezzaSchizzo / 2}), Ancora::centro, true);
    }
    void scrivi(std::string testo, Punto punto, Ancora ancora, bool verticale) {
        Testo t;
        t.punto = punto;
        t.ancora = ancora;
        t.corpo = corpo();
        t.verticale = verticale;
        t.larghezza = MisuraStimata().larghezza(testo, t.corpo, false);
        t.testo = std::move(testo);
        t.piastra = true;
        aggiungi(std::move(t));
    }

    static constexpr double nota = 1.5 * corpoCarta;  // below the sketch

    Scena& s_;
    double alto_;
    double scala_ = 1;
};

}  // namespace

Scena scenaSezione(const project::Sezione& sezione, double larghezza, double altezza) {
    Scena s = scenaCarta(misuraCarta(larghezza, altezza));
    const TipoSezione tipo = structure::tipoSezione(sezione);
    if (tipo != TipoSezione::nessuno)
        Disegno(s).disegna(schizzoSezione(parte(tipo), sezione, simboloFormule));
    return s;
}

}  // namespace korven::drawings
