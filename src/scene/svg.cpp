#include "scene/svg.hpp"

#include <cmath>
#include <vector>

#include "base/number_text.hpp"
#include "scene/hatch_tiles.hpp"

namespace korven::scene {

namespace {

std::string cifre(double valore) {
    constexpr double centesimi = 128;  // finer than any screen shows
    return base::testoNumero(std::round(valore * centesimi) / centesimi);
}

std::string inXml(std::string_view testo) {
    std::string scritto;
    for (const char c : testo) {
        if (c == '&')
            scritto += "&amp;";
        else if (c == '<')
            scritto += "&lt;";
        else if (c == '>')
            scritto += "&gt;";
        else if (c == '"')
            scritto += "&quot;";
        else if ((c >= '\0' && c < ' ') || c == '\x7F')
            scritto += "\xEF\xBF\xBD";
        else
            scritto += c;
    }
    return scritto;
}

std::string attributo(std::string_view nome, std::string_view valore) {
    return std::string(" ").append(nome).append("=\"").append(valore).append("\"");
}

class Scrittore {
 public:
    Scrittore(Tavolozza tavolozza, std::string_view famiglia)
        : tavolozza_(tavolozza), famiglia_(inXml(famiglia)) {}

    std::string testo;

    void operator()(const Area& area) {
        testo += "<polygon" + attributo("points", punti(area.punti)) +
                 attributo("fill", colore(area.tinta)) + "/>\n";
    }

    void operator()(const Campitura& campitura) {
        const auto strokes = tratti(campitura);
        if (strokes.empty()) return;
        std::string d;
        for (const auto& [da, a] : strokes) d += 'M' + punto(da) + 'L' + punto(a);
        testo += "<path" + attributo("d", d) + attributo("fill", "none") +
                 attributo("stroke", colore(campitura.tinta)) + attributo("stroke-width", "0.9") +
                 attributo("stroke-linecap", "round") + "/>\n";
    }

    void operator()(const Linea& linea) {
        testo += "<polyline" + attributo("points", punti(linea.punti)) + attributo("fill", "none") +
                 attributo("stroke", colore(linea.tinta)) +
                 attributo("stroke-width", cifre(linea.spessore)) +
                 attributo("stroke-linejoin", "round");
        if (linea.tratteggio != Tratteggio::nessuno)
            testo += attributo("stroke-dasharray",
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
            testo += "<rect" + attributo("x", cifre(r.sinistra)) + attributo("y", cifre(r.alto)) +
                     attributo("width", cifre(r.larghezza())) +
                     attributo("height", cifre(r.altezza())) + attributo("rx", "2.5") +
                     attributo("fill", colore(t.fondo)) + "/>\n";
        }
        const std::string x = cifre(t.punto.x), y = cifre(t.punto.y);
        testo += "<text" + attributo("x", x) + attributo("y", y) +
                 attributo("dy", cifre(meta * t.corpo)) +
                 attributo("font-family", famiglia_ + ", sans-serif") +
                 attributo("font-size", cifre(t.corpo)) + attributo("fill", colore(t.tinta));
        if (t.larghezza > 0)
            testo += attributo("textLength", cifre(t.larghezza)) +
                     attributo("lengthAdjust", "spacingAndGlyphs");
        testo += attributo("xml:space", "preserve");
        if (t.grassetto) testo += attributo("font-weight", "bold");
        if (t.ancora != Ancora::sinistra)
            testo += attributo("text-anchor", t.ancora == Ancora::centro ? "middle" : "end");
        if (t.verticale) testo += attributo("transform", "rotate(-90 " + x + ' ' + y + ')');
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
                      attributo("width", larga) + attributo("height", alta) +
                      attributo("viewBox", "0 0 " + larga + ' ' + alta) +
                      " xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\">\n<title>" +
                      inXml(titolo) + "</title>\n<desc>" + inXml(descrizione) + "</desc>\n";
    for (const Primitiva& una : scena.primitive) std::visit(scrittore, una.figura);
    return scrittore.testo + "</svg>\n";
}

}  // namespace korven::scene
