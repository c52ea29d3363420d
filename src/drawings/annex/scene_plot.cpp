#include "drawings/annex/scene_plot.hpp"

#include <string>
#include <vector>

#include "drawings/annex/inks.hpp"
#include "drawings/annex/paper.hpp"
#include "drawings/annex/plot_strokes.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"
#include "scene/hatch_tiles.hpp"
#include "scene/polygon.hpp"

namespace korven::drawings {

namespace {

using scene::Punto;
using scene::Riquadro;

constexpr double tratto = 5, spazio = 3, puntino = 1, spazioPuntini = 2.5;  // of dashes [px]
constexpr double distanzaTratti = 3;  // of dashes from texts [px]

// Height of a text of the plotter over the size of a font.
constexpr double altezzaPerCorpo = 1.117 * 3 / 5;

class Plotter {
 public:
    explicit Plotter(const scene::Scena& scena)
        : alto_(scena.altezza), tutto_{0, 0, scena.larghezza, scena.altezza} {
        for (const auto& una : scena.primitive) {
            if (const auto* testo = std::get_if<scene::Testo>(&una.figura);
                testo != nullptr && testo->piastra)
                testi_.push_back(testo->riquadro());
            if (const auto* area = std::get_if<scene::Area>(&una.figura);
                area != nullptr && una.elemento == scene::Elemento::muro)
                muri_.push_back(intorno(area->punti));
            else if (area != nullptr && una.elemento == scene::Elemento::estremo)
                segni_.push_back(intorno(area->punti));
        }
    }

    void operator()(const scene::Area& area) const {
        const plot::Colore colore = inchiostro(area.tinta);
        if (colore != plot::bianco) riempi(area.punti, colore);
    }

    void operator()(const scene::Campitura& campitura) const {
        penna(campitura.tinta, 1);
        std::vector<Riquadro> liberi = testi_;
        liberi.insert(liberi.end(), muri_.begin(), muri_.end());
        for (const auto& [da, a] : scene::tratti(campitura)) traccia(da, a, liberi);
    }

    void operator()(const scene::Linea& linea) const {
        penna(linea.tinta, linea.spessore);
        // The plotter's areas lie below all its lines: the grid leaves the marks of peaks alone.
        std::vector<Riquadro> liberi = testi_;
        if (linea.tinta.ruolo == scene::Ruolo::griglia)
            liberi.insert(liberi.end(), segni_.begin(), segni_.end());
        switch (linea.tratteggio) {
            case scene::Tratteggio::nessuno:
                return catena(linea.punti, liberi);
            case scene::Tratteggio::linee:
                return tratti(aTratti(linea.punti, tratto, spazio), discosti(liberi));
            case scene::Tratteggio::punti:
                return tratti(aTratti(linea.punti, puntino, spazioPuntini), discosti(liberi));
        }
    }

    void operator()(const scene::Freccia& freccia) const {
        (*this)(scene::Linea{freccia.punti, freccia.tinta, freccia.spessore});
        if (const auto punta = puntaFreccia(freccia); !punta.empty())
            riempi(punta, inchiostro(freccia.tinta));
    }

    void operator()(const scene::Testo& t) const {
        if (t.piastra) {
            const Riquadro r = t.riquadro();
            riempi(scene::rettangolo(r.sinistra, r.alto, r.destra, r.basso), plot::bianco);
        }
        penna(t.tinta, 1);
        const double indietro = t.ancora == scene::Ancora::sinistra ? 0
                                : t.ancora == scene::Ancora::centro ? t.larghezza / 2
                                                                    : t.larghezza;
        const double giu = altezzaMaiuscole / 2 * t.corpo;
        const plot::Punto p = t.verticale ? carta({t.punto.x + giu, t.punto.y + indietro})
                                          : carta({t.punto.x - indietro, t.punto.y + giu});
        plot::testoDa(p.x, p.y, altezzaPerCorpo * t.corpo / pixelCarta, t.testo,
                      t.verticale ? 90 : 0);
    }

 private:
    [[nodiscard]] plot::Punto carta(const Punto& p) const {
        return {p.x / pixelCarta, (alto_ - p.y) / pixelCarta};
    }

    // A dash that ends just before a number would read as its sign.
    static std::vector<Riquadro> discosti(std::vector<Riquadro> liberi) {
        for (Riquadro& r : liberi) {
            r.sinistra -= distanzaTratti;
            r.destra += distanzaTratti;
        }
        return liberi;
    }

    static void penna(scene::Tinta tinta, double spessore) {
        // A pen of no colour leaves no trace, a white one draws black.
        const plot::Colore colore = inchiostro(tinta);
        plot::plotPenna({colore == plot::nero ? plot::bianco : colore,
                         spessoreCarta(tinta.ruolo, spessore),
                         std::string(plot::carattereConsegnato)});
    }

    void riempi(const std::vector<Punto>& punti, plot::Colore colore) const {
        std::vector<plot::Punto> vertici;
        for (const auto& pezzo : inFasce(punti)) {
            vertici.clear();
            for (const Punto& p : pezzo) vertici.push_back(carta(p));
            plot::plotPoligono(vertici, colore);
        }
    }

    void traccia(const Punto& da, const Punto& a, const std::vector<Riquadro>& liberi) const {
        const auto visibile = dentro(da, a, tutto_);
        if (!visibile) return;
        for (const auto& [inizio, fine] : fuori(visibile->first, visibile->second, liberi)) {
            const plot::Punto p = carta(inizio), q = carta(fine);
            plot::linea(p.x, p.y, q.x, q.y);
        }
    }
    void catena(const std::vector<Punto>& punti, const std::vector<Riquadro>& liberi) const {
        for (std::size_t i = 0; i + 1 < punti.size(); ++i) traccia(punti[i], punti[i + 1], liberi);
    }
    void tratti(const std::vector<TrattoScena>& tutti, const std::vector<Riquadro>& liberi) const {
        for (const auto& [da, a] : tutti) traccia(da, a, liberi);
    }

    double alto_;
    Riquadro tutto_;
    std::vector<Riquadro> testi_, muri_, segni_;
};

}  // namespace

void disegnaScena(const scene::Scena& scena) {
    const Plotter plotter(scena);
    for (const auto& una : scena.primitive) std::visit(plotter, una.figura);
}

}  // namespace korven::drawings
