#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "plot/drawing_surface.hpp"
#include "plot/printer.hpp"
#include "support/plot_text.hpp"

namespace korven::test {

/// Writes down what is drawn on it, an event a line.
class SuperficieRegistrata : public plot::SuperficieDisegno {
 public:
    explicit SuperficieRegistrata(plot::SpazioDisegno spazio) : spazio_(spazio) {}

    plot::SpazioDisegno spazio() override { return spazio_; }
    void prepara(const plot::Riquadro& m, double larghezza, double altezza) override {
        eventi.push_back("prepare " + punto(m.xmin, m.ymin) + ' ' + punto(m.xmax, m.ymax) + " on " +
                         punto(larghezza, altezza, 0));
    }
    void marcaFoglio(const plot::Riquadro& f, plot::Colore colore) override {
        eventi.push_back("sheet " + punto(f.xmin, f.ymin) + ' ' + punto(f.xmax, f.ymax) +
                         " colour " + std::to_string(colore));
    }
    void spessore(int pixel) override { eventi.push_back("width " + std::to_string(pixel)); }
    void poligono(const plot::PoligonoPlot& p) override {
        eventi.push_back("polygon of " + std::to_string(p.nVertici));
    }
    void linea(const plot::Tratto& t, plot::Colore colore) override {
        eventi.push_back("line " + punto(t.da.x, t.da.y) + ' ' + punto(t.a.x, t.a.y) + " colour " +
                         std::to_string(colore));
    }
    void testo(const plot::TestoSuperficie& t) override {
        eventi.push_back("text " + punto(t.punto.x, t.punto.y) + " font " +
                         std::to_string(t.carattereAlto) + " turn " +
                         std::to_string(t.decimiDiGrado) + (t.centrato ? " centred" : "") +
                         " colour " + std::to_string(t.colore) + ' ' + std::string(t.carattere) +
                         " \"" + std::string(t.testo) + '"');
    }
    void aggiorna() override { eventi.emplace_back("show"); }

    std::vector<std::string> eventi;

 private:
    plot::SpazioDisegno spazio_;
};

/// Writes down what is printed on it, an event a line.
class StampanteRegistrata : public plot::Stampante {
 public:
    explicit StampanteRegistrata(plot::MisureStampante misure) : misure_(misure) {}

    plot::MisureStampante misure() override { return misure_; }
    void iniziaPagina() override { eventi.emplace_back("page"); }
    void poligono(std::span<const plot::PuntoPagina> vertici, plot::Colore colore) override {
        std::string evento = "polygon";
        for (const auto v : vertici) evento += ' ' + pixel(v);
        eventi.push_back(evento + " colour " + std::to_string(colore));
    }
    void penna(plot::Colore colore, int spessore) override {
        eventi.push_back("pen " + std::to_string(colore) + " width " + std::to_string(spessore));
    }
    void linea(plot::PuntoPagina da, plot::PuntoPagina a) override {
        eventi.push_back("line " + pixel(da) + ' ' + pixel(a));
    }
    void carattere(const plot::CaratterePagina& c) override {
        eventi.push_back("font " + cifre(c.altezzaRiga) + " turn " +
                         std::to_string(c.decimiDiGrado) + ' ' + std::string(c.carattere));
    }
    void testo(plot::PuntoPagina p, std::string_view testo, bool centrato,
               plot::Colore colore) override {
        eventi.push_back("text " + pixel(p) + (centrato ? " centred" : "") + " colour " +
                         std::to_string(colore) + " \"" + std::string(testo) + '"');
    }
    void finePagina() override { eventi.emplace_back("page end"); }
    void fineStampa() override { eventi.emplace_back("end"); }

    std::vector<std::string> eventi;

 private:
    static std::string pixel(plot::PuntoPagina p) {
        return std::to_string(p.x) + ' ' + std::to_string(p.y);
    }

    plot::MisureStampante misure_;
};

}  // namespace korven::test
