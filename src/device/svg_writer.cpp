#include "device/svg_writer.hpp"

#include <algorithm>
#include <cmath>

#include "base/number_text.hpp"
#include "base/xml_text.hpp"
#include "device/drawing_fonts.hpp"
#include "plot/drawing_watch.hpp"

namespace korven::device {

namespace {

using base::attributoXml;
using base::inXml;

constexpr double unita = 1000;       // to the centimetre
constexpr int lineeTracciato = 500;  // a longer path would make programs slow
constexpr std::size_t bytePezzo = 1 << 16;

std::string cifre(double valore) {
    // Tenths: a micrometre. The formatter would write a leading point without its 0.
    return base::testoNumero(std::round(valore * 10) / 10);
}

std::string colore(plot::Colore colore) {
    constexpr char esadecimali[] = "0123456789abcdef";
    std::string testo = "#";
    for (const int parte : {plot::rosso(colore), plot::verde(colore), plot::blu(colore)}) {
        testo += esadecimali[parte / 16];
        testo += esadecimali[parte % 16];
    }
    return testo;
}

}  // namespace

ScrittoreSvg::ScrittoreSvg(const std::string& percorso, const plot::Riquadro& vista,
                           double pennaMinima, const base::Disco& disco)
    : file_(percorso, disco), vista_(vista), pennaMinima_(pennaMinima) {
    inizio();
}

void ScrittoreSvg::inizio() {
    const auto millimetri = [](double cm) { return cifre(10 * cm) + "mm"; };
    pezzo_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg" +
             attributoXml("width", millimetri(vista_.larghezza())) +
             attributoXml("height", millimetri(vista_.altezza())) +
             attributoXml("viewBox", "0 0 " + cifre(vista_.larghezza() * unita) + ' ' +
                                         cifre(vista_.altezza() * unita)) +
             " xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\">\n"
             "<title>KORVEN 32</title>\n"
             "<g stroke-linecap=\"round\" stroke-linejoin=\"round\">\n";
}

void ScrittoreSvg::scrivi(const plot::ArchivioDisegno& archivio) {
    for (const plot::PoligonoPlot& uno : archivio.poligoni()) poligono(uno);
    archivio.perOgniLinea([this](const plot::Segmento& una) {
        plot::controllaInterruzione();
        linea(una);
    });
    chiudiTracciato();
    for (const plot::TestoPlot& uno : archivio.testi()) testo(uno);
    pezzo_ += "</g>\n</svg>\n";
    scarica(0);
    file_.concludi();
}

void ScrittoreSvg::scarica(std::size_t oltre) {
    if (pezzo_.size() <= oltre) return;
    file_.scrivi(pezzo_);
    pezzo_.clear();
}

std::string ScrittoreSvg::punto(double x, double y) const {
    return cifre((x - vista_.xmin) * unita) + ' ' + cifre((vista_.ymax - y) * unita);
}

void ScrittoreSvg::poligono(const plot::PoligonoPlot& poligono) {
    std::string punti;
    for (int i = 0; i < poligono.nVertici; ++i) {
        const plot::Punto& v = poligono.vertici[static_cast<std::size_t>(i)];
        punti += (i > 0 ? " " : "") + punto(v.x, v.y);
    }
    pezzo_ += "<polygon" + attributoXml("points", punti) +
              attributoXml("fill", colore(poligono.colore)) +
              attributoXml("stroke", colore(poligono.colore)) + "/>\n";
    scarica(bytePezzo);
}

void ScrittoreSvg::linea(const plot::Segmento& linea) {
    if (!plot::disegnabile(linea)) return;
    const bool stessaPenna = linee_ > 0 && linee_ < lineeTracciato &&
                             linea.colore == ultima_.colore && linea.spessore == ultima_.spessore;
    if (!stessaPenna) {
        chiudiTracciato();
        pezzo_ +=
            "<path fill=\"none\"" + attributoXml("stroke", colore(linea.colore)) +
            attributoXml("stroke-width", cifre(std::max(linea.spessore, pennaMinima_) * unita)) +
            " d=\"";
    }
    const bool prosegue = stessaPenna && linea.x1 == ultima_.x2 && linea.y1 == ultima_.y2;
    if (!prosegue) pezzo_ += 'M' + punto(linea.x1, linea.y1);
    pezzo_ += 'L' + punto(linea.x2, linea.y2);
    ultima_ = linea;
    ++linee_;
    scarica(bytePezzo);
}

void ScrittoreSvg::chiudiTracciato() {
    if (linee_ > 0) pezzo_ += "\"/>\n";
    linee_ = 0;
}

void ScrittoreSvg::testo(const plot::TestoPlot& testo) {
    const double larghezza = MetricaQt().larghezza(testo.carattere, testo.altezza, testo.testo);
    if (!(larghezza > 0) || !plot::disegnabile(testo)) return;
    const QFont font = fontDisegno(testo.carattere);
    const std::string x = cifre((testo.x - vista_.xmin) * unita);
    const std::string y = cifre((vista_.ymax - testo.y) * unita);
    pezzo_ += "<text" + attributoXml("x", x) + attributoXml("y", y) +
              attributoXml("font-family", inXml(testo.carattere) + ", " +
                                              inXml(font.family().toStdString()) + ", sans-serif") +
              attributoXml("font-size",
                           cifre(corpoPerRiga(font, rigaPerAltezza * testo.altezza * unita))) +
              attributoXml("fill", colore(testo.colore)) +
              attributoXml("textLength", cifre(larghezza * unita)) +
              " lengthAdjust=\"spacingAndGlyphs\" xml:space=\"preserve\"";
    if (testo.conteggio == plot::conteggioCentrato) pezzo_ += " text-anchor=\"middle\"";
    if (testo.angolo != 0)
        pezzo_ +=
            attributoXml("transform", "rotate(" + cifre(-testo.angolo) + ' ' + x + ' ' + y + ')');
    pezzo_ += '>' + inXml(testo.testo) + "</text>\n";
    scarica(bytePezzo);
}

}  // namespace korven::device
