#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>

#include "drawings/log/label_spreading.hpp"
#include "drawings/log/layer_description.hpp"
#include "project/codes.hpp"
#include "scene/parts.hpp"
#include "scene/polygon.hpp"
#include "scene/text_fitting.hpp"

namespace korven::scene {

namespace {

using drawings::DescrizioneStrato;

// A layer as it is drawn: nothing of the one above lies below its top.
struct StratoMostrato {
    int numero = 0;  // 0: ground of no layer, below the last
    double tetto = 0, letto = 0;
    DescrizioneStrato descrizione;
};

StratoMostrato ignoto(double tetto, double letto) {
    StratoMostrato s{0, tetto, letto, {}};
    s.descrizione.colore = 0;
    return s;
}

std::vector<StratoMostrato> stratiMostrati(const Mostrata& m, double fondo) {
    std::vector<StratoMostrato> strati;
    double tetto = 0;
    for (int i = 1; i <= m.nStrati() && tetto < fondo; ++i) {
        const double letto = m.dati().profStrato[i];
        if (!disegnabile(letto) || letto <= tetto) continue;
        strati.push_back({i, tetto, std::min(letto, fondo),
                          drawings::leggiDescrizione(m.dati().descrStrato[i])});
        tetto = letto;
    }
    if (tetto < fondo) strati.push_back(ignoto(tetto, fondo));
    return strati;
}

// The head of the description up to its first stop: "Sabbia limosa da fine a media".
std::string nomeCorto(const DescrizioneStrato& descrizione) {
    const std::string& testo = descrizione.testo;
    return testo.substr(0, testo.find_first_of(",;.|("));
}

class Terreno {
 public:
    Terreno(const Mostrata& m, const Inquadratura& q, Tela& tela)
        : m_(m), q_(q), tela_(tela), strati_(stratiMostrati(m, (q.yFondo - q.yTesta) / q.scala)) {}

    void strati() {
        for (const StratoMostrato& s : strati_) {
            const double y1 = q_.y(s.tetto), y2 = q_.y(s.letto);
            // What rises above the head is of the first layer.
            const double sopra = s.tetto == 0 ? std::min(y1, 0.0) : y1;
            stendi(s,
                   sotto(rettangolo(0, sopra, q_.xValle, y2), {0, q_.suolo(0)},
                         {q_.xMonte, q_.yTesta}),
                   true);
            const double scavo = std::max(y1, q_.y(m_.scavo));
            if (scavo >= y2) continue;
            stendi(s, rettangolo(q_.xValle, scavo, q_.xSezione, y2), true);
            if (q_.curva) stendi(s, rettangolo(q_.xSezione, scavo, q_.larghezza, y2), false);
        }
        confini();
    }

    void nomi() {
        const double riga = 1.36 * q_.em;
        const double alto = std::max(q_.suolo(0), q_.yTesta), basso = q_.yFondo;
        std::vector<const StratoMostrato*> nominati;
        for (const StratoMostrato& s : strati_)
            if (s.numero > 0 && !nomeCorto(s.descrizione).empty() && q_.y(s.letto) > alto)
                nominati.push_back(&s);
        diradaA(nominati, static_cast<std::size_t>(std::max(0.0, (basso - alto) / riga)));
        std::vector<double> centri;
        for (const auto* s : nominati) centri.push_back(-centro(*s, alto));
        centri = drawings::separaEtichette(std::move(centri), riga, -alto, -basso);
        for (std::size_t i = 0; i < nominati.size(); ++i) nome(*nominati[i], -centri[i], alto);
    }

 private:
    void stendi(const StratoMostrato& s, std::vector<Punto> poligono, bool campita) {
        if (poligono.size() < 3) return;
        tela_.disegna(Elemento::strato, s.numero,
                      Area{poligono, {Ruolo::fondoStrato, s.descrizione.colore}});
        if (campita && s.descrizione.campitura > 0)
            tela_.disegna(Elemento::strato, s.numero,
                          Campitura{std::move(poligono),
                                    s.descrizione.campitura,
                                    {Ruolo::strato, s.descrizione.colore}});
    }

    void confini() {
        for (std::size_t i = 0; i + 1 < strati_.size(); ++i) {
            const StratoMostrato& s = strati_[i];
            if (!s.descrizione.lineaAlPiede) continue;
            const double y = q_.y(s.letto);
            const Tinta tinta{Ruolo::strato, s.descrizione.colore};
            if (y > q_.suolo(0))
                tela_.disegna(Elemento::strato, s.numero, Linea{{{0, y}, {q_.xMonte, y}}, tinta});
            if (s.letto > m_.scavo)
                tela_.disegna(Elemento::strato, s.numero,
                              Linea{{{q_.xValle, y}, {q_.xSezione, y}}, tinta});
        }
    }

    [[nodiscard]] double centro(const StratoMostrato& s, double alto) const {
        return (std::max(q_.y(s.tetto), alto) + q_.y(s.letto)) / 2;
    }

    // Leaves the thickest, as many as have room.
    static void diradaA(std::vector<const StratoMostrato*>& strati, std::size_t posti) {
        while (strati.size() > posti)
            strati.erase(std::min_element(strati.begin(), strati.end(), [](auto* a, auto* b) {
                return a->letto - a->tetto < b->letto - b->tetto;
            }));
    }

    // Whether an anchor runs through the row of a name.
    [[nodiscard]] bool tirantiVicini(double y) const {
        for (int j = 1; j <= m_.nTiranti(); ++j) {
            const double testa = q_.y(m_.dati().profTirante[j]);
            if (m_.dati().tipoTirante[j] != project::TipoTirante::trazioneCompressione &&
                y > testa - q_.em && y < testa + caduta * q_.xMonte + q_.em)
                return true;
        }
        return false;
    }

    void nome(const StratoMostrato& s, double y, double alto) {
        const double x = 0.6 * q_.em, corpo = 0.92 * q_.em;
        const bool fuori = y < q_.y(s.tetto) || y > q_.y(s.letto);
        const auto nome = [&](double larga) {
            return accorciato(nomeCorto(s.descrizione), larga - x, corpo, false, tela_.misura());
        };
        const double stretta = larghezzaNomi * q_.xMonte;
        const bool libera = !fuori && !tirantiVicini(y);
        const std::string breve = nome(stretta);
        const double fine = x + tela_.larghezza(breve, corpo) + 0.3 * q_.em;
        if (fuori && !breve.empty())
            tela_.disegna(Elemento::strato, s.numero,
                          Linea{{{fine, y}, {stretta + 0.6 * q_.em, centro(s, alto)}},
                                {Ruolo::testoTenue},
                                0.8});
        tela_.scrivi(
            {.grado = Grado::strato,
             .elemento = Elemento::strato,
             .numero = s.numero,
             .testo = libera ? nome(larghezzaLibera * q_.xMonte) : breve,
             .inBreve = breve,
             .tinta = {Ruolo::testo},
             .corpo = corpo,
             .posti = {{{x, y}, Ancora::sinistra, {Ruolo::fondoStrato, s.descrizione.colore}}}});
    }

    static constexpr double larghezzaNomi = 0.34, larghezzaLibera = 0.7;  // of the uphill side
    static constexpr double caduta = 0.11;  // of an anchor from its head to its end, of the same
    const Mostrata& m_;
    const Inquadratura& q_;
    Tela& tela_;
    std::vector<StratoMostrato> strati_;
};

}  // namespace

void disegnaTerreno(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    Terreno terreno(m, q, tela);
    terreno.strati();
    terreno.nomi();
}

void disegnaProfili(const Mostrata& m, const Inquadratura& q, Tela& tela) {
    constexpr double spessore = 1.8;
    const Tinta tinta{Ruolo::terreno};
    tela.disegna(Elemento::terreno, 0,
                 Linea{{{0, q.suolo(0)}, {q.xMonte, q.yTesta}}, tinta, spessore});
    const double y = q.y(m.scavo);
    if (!q.visibile(y)) return;
    tela.disegna(Elemento::terreno, m.fase,
                 Linea{{{q.xValle, y}, {q.larghezza, y}}, tinta, spessore});
}

}  // namespace korven::scene
