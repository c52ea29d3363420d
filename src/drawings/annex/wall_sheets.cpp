#include "drawings/annex/wall_sheets.hpp"

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

#include "base/translated_texts.hpp"
#include "drawings/annex/depth_panels.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/annex/wall_curves.hpp"
#include "drawings/annex/wall_view.hpp"
#include "project/anchor_names.hpp"
#include "project/units.hpp"
#include "scene/shown_values.hpp"
#include "scene/shown_wall.hpp"
#include "scene/text_fitting.hpp"

namespace korven::drawings {

namespace {

using scene::accorciato;
using scene::Ancora;
using scene::conUnita;
using scene::Misura;
using scene::MisuraStimata;
using scene::MisuraTesti;
using scene::mostrata;
using scene::Primitiva;
using scene::Ruolo;
using scene::Scena;
using scene::Tela;

constexpr double em = corpoCarta;
constexpr double sezioneMinima = 13 * em;  // width of the wall in section
constexpr double sezioneConMomento =
    16.6 * em;                                // with the moment at the head beside the other loads
constexpr double sezioneConNomi = 21.5 * em;  // with the names of layers and stages whole
constexpr double quotaSezione = 0.28;         // of the whole width
constexpr double piedeVeduta = 1.8 * em;      // below the ground of the view
constexpr double numeri = 2.6 * em;           // for the depths
constexpr double distanza = 1.1 * em;         // of panels

void unisci(Scena& scena, std::vector<Primitiva> altre) {
    std::move(altre.begin(), altre.end(), std::back_inserter(scena.primitive));
}

// Panels from x1 to x2, as wide as their weights.
void disponi(Pannelli& pannelli, const std::vector<DatiPannello>& dati,
             const std::vector<double>& pesi, double x1, double x2) {
    const double tutti = std::accumulate(pesi.begin(), pesi.end(), 0.0);
    const double libera = x2 - x1 - distanza * static_cast<double>(dati.size() - 1);
    double x = x1;
    for (std::size_t i = 0; i < dati.size(); ++i) {
        const double largo = libera * pesi[i] / tutti;
        pannelli.disegna(dati[i], x, x + largo);
        x += largo + distanza;
    }
}

// Anchors in place with their forces, in rows below the wall, and what those are that are not.
class ElencoTiranti {
 public:
    // @param fase  0: the largest of all stages
    ElencoTiranti(const live::PareteViva& parete, int fase, double largo,
                  const MisuraTesti& testi) {
        const auto m = mostrata(parete, {fase, live::Curva::momento});
        double massimo = 0;
        for (int j = 1; j <= m.tirantiInOpera(); ++j)
            if (const double* t = m.tiro(j)) {
                // The name of a strut says what its letter in the picture is.
                testi_.push_back((project::puntone(parete.dati, j)
                                      ? project::nomeTirante(parete.dati, j)
                                      : project::siglaTirante(parete.dati, j)) +
                                 "  " + conUnita(*t, project::unita::forzaAlMetro));
                massimo = std::max(massimo, testi.larghezza(testi_.back(), corpoPiccolo, false));
            }
        colonne_ = massimo + 0.8 * em < largo / 2 ? 2 : 1;
        colonna_ = largo / static_cast<double>(colonne_);
        if (fase > 0 && m.tirantiInOpera() < m.nTiranti())
            futuri_ = base::traduttore("in grigio: non ancora in opera");
    }
    [[nodiscard]] double altezza() const {
        return riga * static_cast<double>(righe() + (futuri_.empty() ? 0 : 1));
    }
    void scrivi(double y, Tela& tela) const {
        const auto testo = [&](const std::string& parole, Ruolo ruolo, double x,
                               std::size_t sopra) {
            tela.scrivi({.testo = parole,
                         .tinta = {ruolo},
                         .corpo = corpoPiccolo,
                         .posti = {{{0.4 * em + x, y + riga * (static_cast<double>(sopra) + 0.5)},
                                    Ancora::sinistra}}});
        };
        for (std::size_t i = 0; i < testi_.size(); ++i)
            testo(testi_[i], Ruolo::tirante, colonna_ * static_cast<double>(i % colonne_),
                  i / colonne_);
        if (!futuri_.empty()) testo(futuri_, Ruolo::testoTenue, 0, righe());
    }

 private:
    [[nodiscard]] std::size_t righe() const { return (testi_.size() + colonne_ - 1) / colonne_; }

    static constexpr double riga = 1.25 * em;
    std::vector<std::string> testi_;
    std::string futuri_;
    std::size_t colonne_ = 1;
    double colonna_ = 0;
};

// The wall at the left, beside it the panels.
// @param minima  width of the wall at least
Scena conPannelli(const live::PareteViva& parete, int fase, const std::vector<double>& scavi,
                  const std::vector<DatiPannello>& dati, const std::vector<double>& pesi,
                  const Misura& misura, double minima = sezioneMinima) {
    const MisuraStimata testi;
    Scena s = scenaCarta(misura);
    const double larga = std::max(minima, quotaSezione * misura.larghezza);
    const ElencoTiranti tiranti(parete, fase, larga, testi);
    // The view has no line at its foot, but the room for it.
    const double sottoMuro = std::max(0.0, tiranti.altezza() - piedeVeduta);
    const VedutaMuro muro = vedutaMuro(parete, fase, {0, 0, larga, misura.altezza - sottoMuro},
                                       Pannelli::testata(), Pannelli::piede() - sottoMuro, testi);
    unisci(s, muro.primitive);
    s.yTesta = muro.asse.yTesta;
    s.scala = muro.asse.scala;
    s.paratia = muro.asse.lunghezza;
    Tela tela(misura.larghezza, misura.altezza, testi);
    tiranti.scrivi(misura.altezza - tiranti.altezza() - 0.12 * em, tela);
    if (muro.asse.lunghezza == 0) {
        unisci(s, tela.concludi());
        return s;
    }
    Pannelli pannelli(muro.asse, scavi, misura.altezza, tela);
    pannelli.profondita(larga + numeri - 0.5 * em);
    disponi(pannelli, dati, pesi, larga + numeri, misura.larghezza - 0.5 * em);
    unisci(s, pannelli.concludi());
    return s;
}

std::vector<double> scaviDi(const project::DatiProgetto& dati, int da, int a) {
    std::vector<double> scavi;
    for (int k = std::max(da, 1); k <= std::min(a, project::massimoFasi); ++k) {
        const double z = dati.profFase[k];
        if (z > 0 && z < dati.lunghezzaParatia &&
            std::find(scavi.begin(), scavi.end(), z) == scavi.end())
            scavi.push_back(z);
    }
    return scavi;
}

}  // namespace

Scena scenaFase(const live::PareteViva& parete, int fase, double larghezza, double altezza) {
    constexpr double largaPressioni = 9.5, larga = 8;  // weights
    return conPannelli(parete, fase, scaviDi(parete.dati, fase, fase), pannelliFase(parete, fase),
                       {largaPressioni, larga, larga, larga}, misuraCarta(larghezza, altezza),
                       parete.dati.momentoTesta != 0 ? sezioneConMomento : sezioneMinima);
}

Scena scenaMeccanismo(const live::PareteViva& parete, int fase, const PressioniLimite& pressioni,
                      double larghezza, double altezza) {
    constexpr double larga = 0.8;  // of the place of four panels: one scale is enough
    DatiPannello p{.titolo = base::traduttore("Pressioni al limite"),
                   .unita = project::unita::pressione,
                   .curve = {}};
    const auto curva = [&](const std::vector<double>& valori, Ruolo linea, const char* nome) {
        CurvaPannello c;
        c.valori = valori;
        for (std::size_t i = 0; i < valori.size(); ++i)
            c.z.push_back(static_cast<double>(i) * parete.h);
        c.linea = linea;
        c.nome = base::traduttore(nome);
        p.curve.push_back(std::move(c));
    };
    curva(pressioni.monte, Ruolo::curva, "monte");
    curva(pressioni.valle, Ruolo::curvaValle, "valle");
    p.curve.back().tratteggio = scene::Tratteggio::linee;
    if (std::any_of(pressioni.acqua.begin(), pressioni.acqua.end(),
                    [](double v) { return v != 0; }))
        curva(pressioni.acqua, Ruolo::acqua, "acqua");
    return conPannelli(parete, fase, scaviDi(parete.dati, fase, fase), {std::move(p)}, {1},
                       misuraCarta(larga * larghezza, altezza), sezioneConNomi);
}

Scena scenaInviluppi(const live::PareteViva& parete, double larghezza, double altezza) {
    return conPannelli(parete, 0, scaviDi(parete.dati, 1, parete.dati.nFasi),
                       pannelliInviluppo(parete), {1, 1, 1}, misuraCarta(larghezza, altezza),
                       sezioneConNomi);
}

Scena scenaConfronto(const MuroDetto& a, const MuroDetto& b, double larghezza, double altezza) {
    // Above the panels, or in a wide picture at their left.
    constexpr double quotaMuri = 0.42, quotaMuro = 0.17;  // of the height, of the width
    const Misura misura = misuraCarta(larghezza, altezza);
    const bool accanto = larghezza > altezza;
    const MisuraStimata testi;
    Scena s = scenaCarta(misura);
    Tela tela(misura.larghezza, misura.altezza, testi);
    const double larga =
        accanto ? std::max(sezioneMinima, quotaMuro * misura.larghezza) : misura.larghezza / 2 - em;
    const double basso = accanto ? misura.altezza : quotaMuri * misura.altezza;
    AsseProfondita asse{0, 1, 0};
    std::array<std::string, 2> nomi;
    double x = 0;
    for (const MuroDetto* muro : {&a, &b}) {
        std::string& nome = nomi[muro == &a ? 0 : 1];
        nome = (muro == &a ? "A  " : "B  ") + muro->nome;
        tela.scrivi({.testo = accorciato(nome, larga - em, em, false, testi),
                     .tinta = {Ruolo::testo},
                     .corpo = em,
                     .posti = {{{x + 0.5 * em, 0.8 * em}, Ancora::sinistra}}});
        VedutaMuro veduta =
            vedutaMuro(muro->parete, 0, {x, 1.6 * em, x + larga, basso}, 0, 0, testi);
        asse.lunghezza = std::max(asse.lunghezza, veduta.asse.lunghezza);
        unisci(s, std::move(veduta.primitive));
        x += larga + 2 * em;
    }
    if (asse.lunghezza > 0) {
        const double sinistra = (accanto ? x : 0) + numeri;
        asse.yTesta = (accanto ? 0 : basso) + Pannelli::testata();
        asse.scala = (misura.altezza - Pannelli::piede() - asse.yTesta) / asse.lunghezza;
        Pannelli pannelli(asse, {}, misura.altezza, tela);
        pannelli.profondita(sinistra - 0.5 * em);
        disponi(pannelli, pannelliConfronto(a.parete, b.parete, nomi), {1, 1, 1}, sinistra,
                misura.larghezza - 0.5 * em);
        unisci(s, pannelli.concludi());
    } else {
        unisci(s, tela.concludi());
    }
    return s;
}

}  // namespace korven::drawings
