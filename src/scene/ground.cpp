#include <algorithm>
#include <cmath>
#include <string>

#include "base/translated_texts.hpp"
#include "drawings/log/label_spreading.hpp"
#include "drawings/log/layer_name.hpp"
#include "scene/parts.hpp"
#include "scene/polygon.hpp"
#include "scene/text_fitting.hpp"

namespace korven::scene {

namespace {

using drawings::DescrizioneStrato;

// Where two grounds meet one lies over the other: two soft edges side by side would let the paper
// through.
constexpr double sormonto = 1;  // [px]

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
        if (!disegnabile(m.dati().profStrato[i])) continue;
        const double letto = lettoMostrato(m, i);
        if (letto <= tetto) continue;
        strati.push_back({i, tetto, std::min(letto, fondo),
                          drawings::descrizioneMostrata(m.dati().descrStrato[i])});
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
            stendi(s, rettangolo(q_.xValle - sormonto, scavo, q_.xSezione, y2), true);
            if (q_.curva)
                stendi(s, rettangolo(q_.xSezione - sormonto, scavo, q_.larghezza, y2), false);
        }
        confini();
    }

    void nomi() {
        const double alto = std::max(q_.suolo(0), q_.yTesta);
        std::vector<const StratoMostrato*> nominati;
        for (const StratoMostrato& s : strati_)
            if (s.numero > 0 && !nomeCorto(s.descrizione).empty() && q_.y(s.letto) > alto)
                nominati.push_back(&s);
        constexpr double lontano = 2.5, vicino = 0.6;  // of a name from its layer [rows]
        if (spostamento(nominati, alto) > lontano * riga())
            nominati = diradati(nominati, alto, vicino * riga());
        const std::vector<double> y = righe(nominati, alto);
        // Names of some layers among numbers of others would look like two kinds of things.
        soloNumeri_ = false;
        for (std::size_t i = 0; q_.stretta && i < nominati.size(); ++i)
            soloNumeri_ = soloNumeri_ || fuori(*nominati[i], y[i], alto) || !intero(*nominati[i]);
        for (std::size_t i = 0; i < nominati.size(); ++i) nome(*nominati[i], y[i], alto);
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
            const bool ultimo = strati_[i + 1].numero == 0;  // nothing that it could run into
            if (!s.descrizione.lineaAlPiede && !ultimo) continue;
            const double y = q_.y(s.letto);
            const Tinta tinta{Ruolo::strato, s.descrizione.colore};
            if (y > q_.suolo(0))
                tela_.disegna(Elemento::strato, s.numero, Linea{{{0, y}, {q_.xMonte, y}}, tinta});
            if (s.letto > m_.scavo)
                tela_.disegna(
                    Elemento::strato, s.numero,
                    Linea{{{s.letto < m_.lunghezza ? q_.xValle : q_.xMonte, y}, {q_.xSezione, y}},
                          tinta});
        }
    }

    [[nodiscard]] double centro(const StratoMostrato& s, double alto) const {
        return (std::max(q_.y(s.tetto), alto) + q_.y(s.letto)) / 2;
    }

    [[nodiscard]] double riga() const { return 1.36 * q_.em; }

    // Heights of the names of layers, a row apart.
    [[nodiscard]] std::vector<double> righe(const std::vector<const StratoMostrato*>& strati,
                                            double alto) const {
        std::vector<double> y;
        y.reserve(strati.size());
        for (const auto* s : strati) y.push_back(-centro(*s, alto));
        y = drawings::separaEtichette(std::move(y), riga(), -alto, -q_.yFondo);
        for (double& una : y) una = -una;
        return y;
    }

    // The largest distance of a name from the middle of its layer; of names that have no room at
    // all the height of the picture.
    [[nodiscard]] double spostamento(const std::vector<const StratoMostrato*>& strati,
                                     double alto) const {
        if (static_cast<double>(strati.size()) * riga() > q_.yFondo - alto) return q_.altezza;
        const std::vector<double> y = righe(strati, alto);
        double massimo = 0;
        for (std::size_t i = 0; i < y.size(); ++i)
            massimo = std::max(massimo, std::fabs(y[i] - centro(*strati[i], alto)));
        return massimo;
    }

    // The thickest first, each that leaves all names near their layers; from the top down again.
    [[nodiscard]] std::vector<const StratoMostrato*> diradati(
        std::vector<const StratoMostrato*> strati, double alto, double vicino) const {
        std::stable_sort(strati.begin(), strati.end(), [](const auto* a, const auto* b) {
            return a->letto - a->tetto > b->letto - b->tetto;
        });
        std::vector<const StratoMostrato*> tenuti;
        for (const auto* s : strati) {
            auto prova = tenuti;
            prova.insert(std::find_if(prova.begin(), prova.end(),
                                      [&](const auto* altro) { return altro->tetto > s->tetto; }),
                         s);
            if (spostamento(prova, alto) <= vicino) tenuti = std::move(prova);
        }
        return tenuti;
    }

    [[nodiscard]] bool fuori(const StratoMostrato& s, double y, double alto) const {
        return y < std::max(q_.y(s.tetto), alto) || y > std::min(q_.y(s.letto), q_.yFondo);
    }

    // Whether the whole name has room in the width.
    [[nodiscard]] bool intero(const StratoMostrato& s) const {
        return tela_.larghezza(nomeCorto(s.descrizione), corpoNomi * q_.em) <=
               larghezzaLibera * q_.xMonte - inizioNomi * q_.em;
    }

    void nome(const StratoMostrato& s, double y, double alto) {
        const double x = inizioNomi * q_.em, corpo = corpoNomi * q_.em;
        const double tetto = std::max(q_.y(s.tetto), alto);
        const double letto = std::min(q_.y(s.letto), q_.yFondo);
        const Tinta fondo{Ruolo::fondoStrato, s.descrizione.colore};
        Scritta scritta{.grado = Grado::strato,
                        .elemento = Elemento::strato,
                        .numero = s.numero,
                        .testo = {},
                        .tinta = {Ruolo::testo},
                        .corpo = corpo,
                        .posti = {{{x, y}, Ancora::sinistra, fondo}}};
        const bool accanto = fuori(s, y, alto);
        const auto nomi = formeNome(s, accanto, x, corpo);
        scritta.testo = nomi.front();
        scritta.inBreve.assign(nomi.begin() + 1, nomi.end());
        if (accanto) {
            const double fine = x + tela_.larghezza(scritta.testo, corpo) + 0.3 * q_.em;
            scritta.richiamo =
                Linea{{{fine, y}, {larghezzaNomi * q_.xMonte + 0.6 * q_.em, centro(s, alto)}},
                      {Ruolo::testoTenue},
                      0.8};
        } else {
            // Elsewhere in the layer.
            for (double d = 0.7 * q_.em; d < letto - tetto; d += 0.7 * q_.em)
                for (const double dove : {y - d, y + d})
                    if (dove > tetto + 0.6 * q_.em && dove < letto - 0.6 * q_.em)
                        scritta.posti.push_back({{x, dove}, Ancora::sinistra, fondo});
            scritta.posti.push_back({{q_.xMonte - q_.em, y}, Ancora::destra, fondo});
        }
        tela_.scrivi(std::move(scritta));
    }

    // The name of a layer, as long as there is room for. In a narrow place little would be left of
    // it: its number there.
    [[nodiscard]] std::vector<std::string> formeNome(const StratoMostrato& s, bool fuori, double x,
                                                     double corpo) const {
        const std::string intero = nomeCorto(s.descrizione);
        const auto entro = [&](double parte) {
            return accorciato(intero, parte * q_.xMonte - x, corpo, false, tela_.misura());
        };
        if (q_.stretta) {
            const std::string numero = base::traduttore("strato") + " " + std::to_string(s.numero);
            if (soloNumeri_) return {numero};
            return {intero, numero};
        }
        if (fuori) return {entro(larghezzaNomi)};
        std::vector<std::string> forme{entro(larghezzaLibera)};
        for (const double parte : {larghezzaMedia, larghezzaNomi})
            if (std::string breve = entro(parte); breve != forme.front())
                forme.push_back(std::move(breve));
        return forme;
    }

    static constexpr double inizioNomi = 0.6, corpoNomi = 0.92;  // [em]
    // Of the uphill side.
    static constexpr double larghezzaNomi = 0.34, larghezzaMedia = 0.6, larghezzaLibera = 0.95;
    const Mostrata& m_;
    const Inquadratura& q_;
    Tela& tela_;
    std::vector<StratoMostrato> strati_;
    bool soloNumeri_ = false;
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
    tela.disegna(
        Elemento::terreno, m.fase,
        Linea{{{m.lunghezza > 0 ? q.xValle : q.xMonte, y}, {q.larghezza, y}}, tinta, spessore});
}

}  // namespace korven::scene
