#include "scene/svg.hpp"

#include <cmath>
#include <vector>

#include "base/number_text.hpp"
#include "base/xml_text.hpp"
#include "scene/hatch_tiles.hpp"

namespace korven::scene {

namespace {

using base::attributoXml;
using base::inXml;

std::string cifre(double valore) {
    constexpr double centesimi = 128;  // finer than any screen shows
    return base::testoNumero(std::round(valore * centesimi) / centesimi);
}

class Scrittore {
 public:
    Scrittore(Tavolozza tavolozza, std::string_view famiglia)
        : tavolozza_(tavolozza), famiglia_(inXml(famiglia)) {}

    std::string testo;

    void operator()(const Area& area) {
        testo += "<polygon" + attributoXml("points", punti(area.punti)) +
                 attributoXml("fill", colore(area.tinta)) + "/>\n";
    }

    void operator()(const Campitura& campitura) {
        const auto strokes = tratti(campitura);
        if (strokes.empty()) return;
        std::string d;
        for (const auto& [da, a] : strokes) d += 'M' + punto(da) + 'L' + punto(a);
        testo += "<path" + attributoXml("d", d) + attributoXml("fill", "none") +
                 attributoXml("stroke", colore(campitura.tinta)) +
                 attributoXml("stroke-width", "0.9") + attributoXml("stroke-linecap", "round") +
                 "/>\n";
    }

    void operator()(const Linea& linea) {
        testo += "<polyline" + attributoXml("points", punti(linea.punti)) +
                 attributoXml("fill", "none") + attributoXml("stroke", colore(linea.tinta)) +
                 attributoXml("stroke-width", cifre(linea.spessore)) +
                 attributoXml("stroke-linejoin", "round");
        if (linea.tratteggio != Tratteggio::nessuno)
            testo += attributoXml("stroke-dasharray",
                                  linea.tratteggio == Tratteggio::linee ? "7 4" : "2 3");
        testo += "/>\n";
    }

    void operator()(const Freccia& freccia) {
        (*this)(Linea{freccia.punti, freccia.tinta, freccia.spessore, Tratteggio::nessuno});
        if (const auto punta = puntaFreccia(freccia); !punta.empty())
            (*this)(Area{punta, freccia.tinta});
    }

    void operator()(const Testo& t) {
        if (t.piastra) {
            const Riquadro r = t.riquadro();
            testo += "<rect" + attributoXml("x", cifre(r.sinistra)) +
                     attributoXml("y", cifre(r.alto)) +
                     attributoXml("width", cifre(r.larghezza())) +
                     attributoXml("height", cifre(r.altezza())) + attributoXml("rx", "2.5") +
                     attributoXml("fill", colore(t.fondo)) + "/>\n";
        }
        const std::string x = cifre(t.punto.x), y = cifre(t.punto.y);
        testo += "<text" + attributoXml("x", x) + attributoXml("y", y) +
                 attributoXml("dy", cifre(meta * t.corpo)) +
                 attributoXml("font-family", famiglia_ + ", sans-serif") +
                 attributoXml("font-size", cifre(t.corpo)) + attributoXml("fill", colore(t.tinta));
        if (t.larghezza > 0)
            testo += attributoXml("textLength", cifre(t.larghezza)) +
                     attributoXml("lengthAdjust", "spacingAndGlyphs");
        testo += attributoXml("xml:space", "preserve");
        if (t.grassetto) testo += attributoXml("font-weight", "bold");
        if (t.ancora != Ancora::sinistra)
            testo += attributoXml("text-anchor", t.ancora == Ancora::centro ? "middle" : "end");
        if (t.verticale) testo += attributoXml("transform", "rotate(-90 " + x + ' ' + y + ')');
        testo += '>' + inXml(t.testo) + "</text>\n";
    }

 private:
    static constexpr double meta = 0.3575;  // of the height of capitals

    static std::string punto(const Punto& p) { return cifre(p.x) + ' ' + cifre(p.y); }
    static std::string punti(const std::vector<Punto>& tutti) {
        std::string scritti;
        for (const Punto& p : tutti) scritti.append(scritti.empty() ? "" : " ").append(punto(p));
        return scritti;
    }
    [[nodiscard]] std::string colore(Tinta tinta) const {
        constexpr char esadecimali[] = "0123456789abcdef";
        const Rgb c = scene::colore(tinta, tavolozza_);
        std::string scritto = "#";
        for (const int parte : {c.r, c.g, c.b}) {
            scritto += esadecimali[parte / 16];
            scritto += esadecimali[parte % 16];
        }
        return scritto;
    }

    Tavolozza tavolozza_;
    std::string famiglia_;
};

}  // namespace

std::string svg(const Scena& scena, Tavolozza tavolozza, std::string_view famiglia,
                std::string_view titolo, std::string_view descrizione) {
    const std::string larga = cifre(scena.larghezza), alta = cifre(scena.altezza);
    Scrittore scrittore(tavolozza, famiglia);
    scrittore.testo = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg" +
                      attributoXml("width", larga) + attributoXml("height", alta) +
                      attributoXml("viewBox", "0 0 " + larga + ' ' + alta) +
                      " xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\">\n<title>" +
                      inXml(titolo) + "</title>\n<desc>" + inXml(descrizione) + "</desc>\n";
    for (const Primitiva& una : scena.primitive) std::visit(scrittore, una.figura);
    return scrittore.testo + "</svg>\n";
}

}  // namespace korven::scene
