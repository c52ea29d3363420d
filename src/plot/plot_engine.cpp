#include "plot/plot_engine.hpp"

#include <algorithm>
#include <cassert>
#include <string>
#include <utility>

#include "base/code_page.hpp"
#include "base/language.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "plot/device_pixels.hpp"
#include "plot/drawing_stop.hpp"
#include "plot/markers.hpp"
#include "plot/plot_configuration.hpp"
#include "plot/plotted_number.hpp"
#include "plot/surface_layout.hpp"

namespace korven::plot {

StatoPlot statoPlot;

namespace {

void nuovoDisegno(Riquadro foglio) {
    const auto configurazione =
        leggiConfigurazione(fileConfigurazione(base::siglaLingua(base::linguaCorrente())));
    statoPlot.archivio.svuota();
    statoPlot.nome.clear();
    statoPlot.penne = pennePlot(configurazione);
    statoPlot.scostamentoX = configurazione.margineSinistro;
    statoPlot.scostamentoY = configurazione.margineSuperiore;
    // A zoom belongs to the drawing that the user looked at; the viewer of that one is closed.
    statoPlot.zoom = false;
    foglio.ymin -= statoPlot.scostamentoY;
    foglio.xmax += statoPlot.scostamentoX;
    statoPlot.finestra = foglio;
}

void marcaFoglio(SuperficieDisegno& superficie) {
    const Foglio& foglio = statoPlot.foglioStampante;
    constexpr Colore grigioChiaro = daRgb(220, 220, 220);
    if (foglio.larghezza > 0 && foglio.altezza > 0)
        superficie.marcaFoglio({0, 0, foglio.larghezza, foglio.altezza}, grigioChiaro);
}

void preparaSuperficie(SuperficieDisegno& superficie) {
    const auto disposta = disponiSuperficie(statoPlot.finestra, superficie.spazio());
    statoPlot.finestra = disposta.finestra;
    statoPlot.scalaX = disposta.scalaX;
    statoPlot.scalaY = disposta.scalaY;
    statoPlot.spessoreSuperficie = -1;
    superficie.prepara(disposta.finestra, disposta.larghezza, disposta.altezza);
    marcaFoglio(superficie);
}

Colore coloreDisegnato(Colore colore) { return colore == bianco ? nero : colore; }

// Where a point of the caller lies on the sheet: beyond the origin, shifted right and down.
Punto sulFoglio(double x, double y) {
    return {x + statoPlot.origine.x + statoPlot.scostamentoX,
            y + statoPlot.origine.y - statoPlot.scostamentoY};
}

void mostra(SuperficieDisegno& superficie, const Segmento& linea) {
    if (!disegnabile(linea)) return;
    if (linea.spessore != statoPlot.spessoreSuperficie) {
        statoPlot.spessoreSuperficie = linea.spessore;
        superficie.spessore(spessoreSuperficie(linea.spessore, statoPlot.scalaX, statoPlot.scalaY));
    }
    superficie.linea({{linea.x1, linea.y1}, {linea.x2, linea.y2}}, linea.colore);
}

void mostra(SuperficieDisegno& superficie, const TestoPlot& testo) {
    if (!disegnabile(testo)) return;
    superficie.testo({{testo.x, testo.y},
                      carattereSuperficie(testo.altezza, statoPlot.scalaX, statoPlot.scalaY),
                      decimiDiGrado(testo.angolo),
                      testo.conteggio == conteggioCentrato,
                      testo.colore,
                      testo.carattere,
                      testo.testo});
}

void mostra(SuperficieDisegno& superficie, const PoligonoPlot& poligono) {
    superficie.poligono(poligono);
}

// A stroke, area or text goes to the surface and, unless this is a replay, into the store.
template <class Elemento>
void disegna(Elemento elemento) {
    if (statoPlot.superficie != nullptr) mostra(*statoPlot.superficie, elemento);
    if (!statoPlot.replay) statoPlot.archivio.aggiungi(std::move(elemento));
}

void lineaFino(double x, double y) {
    controllaInterruzione();
    if (statoPlot.penna.colore == nonDisegnato) return;
    const Punto da = sulFoglio(statoPlot.posizione.x, statoPlot.posizione.y);
    const Punto a = sulFoglio(x, y);
    disegna(Segmento{da.x, da.y, a.x, a.y, coloreDisegnato(statoPlot.penna.colore),
                     statoPlot.penna.spessore});
}

void chiudiDisegno() {
    statoPlot.zoom = false;
    statoPlot.archivio.chiudi();
    if (statoPlot.superficie != nullptr) statoPlot.superficie->aggiorna();
}

void simbolo(double x, double y, double altezza, double codice, double angolo) {
    const auto tratti = trattiSimbolo(codice, angolo);
    if (tratti.empty()) return;
    plotMuovi(x, y, pennaSu);
    for (const auto& passo : tratti)
        plotMuovi(x + passo.dx * altezza, y + passo.dy * altezza, passo.codice);
    plotMuovi(x, y, pennaSu);
}

}  // namespace

void plotApri(double xmin, double ymin, double xmax, double ymax, int replay) {
    const Riquadro finestra{xmin, ymin, xmax, ymax};
    if (replay == 0)
        nuovoDisegno(finestra);
    else
        statoPlot.finestra = finestra;
    statoPlot.replay = replay != 0;
    if (!statoPlot.zoom) statoPlot.estensione = statoPlot.finestra;
    statoPlot.penna = nessunaPenna;
    statoPlot.origine = {};
    statoPlot.posizione = {};
    if (statoPlot.superficie != nullptr) preparaSuperficie(*statoPlot.superficie);
}

void plotPenna(int n) { statoPlot.penna = statoPlot.penne[std::min(n, numeroPenne)]; }

void plotPennaRgb(int n, Colore colore) {
    plotPenna(n);
    statoPlot.penna.colore = colore;
}

void plotPenna(const PennaPlot& penna) { statoPlot.penna = penna; }

void plotPoligono(std::span<const Punto> vertici, Colore colore) {
    assert(vertici.size() >= 3 && vertici.size() <= PoligonoPlot::massimoVertici);
    PoligonoPlot poligono;
    poligono.nVertici = static_cast<int>(vertici.size());
    std::transform(vertici.begin(), vertici.end(), poligono.vertici.begin(),
                   [](const Punto& p) { return sulFoglio(p.x, p.y); });
    poligono.colore = colore;
    disegna(poligono);
}

void plotMuovi(double x, double y, int codice) {
    if (codice == fineDisegno) {
        chiudiDisegno();
        return;
    }
    if (codice == pennaGiu || codice == pennaGiuOrigine) lineaFino(x, y);
    statoPlot.posizione = {x, y};
    if (codice < 0) {
        statoPlot.origine.x += x;
        statoPlot.origine.y += y;
        statoPlot.posizione = {};
    }
}

void plotSimbolo(double x, double y, double altezza, std::string_view testo, double angolo,
                 int conteggio) {
    if (conteggio == conteggioSimbolo) {
        simbolo(x, y, altezza, base::leggiNumero(testo).value_or(0), angolo);
        return;
    }
    if (statoPlot.penna.colore == nonDisegnato) return;
    const Punto punto = sulFoglio(x, y);
    disegna(TestoPlot{punto.x, punto.y, altezza, angolo, conteggio, std::string(testo),
                      coloreDisegnato(statoPlot.penna.colore), statoPlot.penna.carattere});
}

void plotNumero(double x, double y, double altezza, double valore, double angolo, int decimali) {
    const std::string testo = testoPlotNumero(valore, decimali);
    plotSimbolo(x, y, altezza, testo, angolo, static_cast<int>(base::numeroCaratteri(testo)));
}

double larghezzaTesto(double altezza, std::string_view testo) {
    static const MetricaStimata stimata;
    const MetricaTesto& metrica = statoPlot.metrica != nullptr ? *statoPlot.metrica : stimata;
    return metrica.larghezza(statoPlot.penna.carattere, altezza, testo);
}

void plotZoom(double x1, double y1, double x2, double y2) {
    statoPlot.zoom = true;
    statoPlot.rettangoloZoom = {x1, y1, x2, y2};
    plotApri(x1, y1, x2, y2, 1);
    plotRifai();
}

void plotTutto() {
    statoPlot.zoom = false;
    const Riquadro tutto = statoPlot.estensione;
    plotApri(tutto.xmin, tutto.ymin, tutto.xmax, tutto.ymax, 1);
    plotRifai();
}

namespace {

void mostraTutto(SuperficieDisegno& superficie) {
    for (const PoligonoPlot& poligono : statoPlot.archivio.poligoni())
        superficie.poligono(poligono);
    statoPlot.archivio.perOgniLinea([&superficie](const Segmento& linea) {
        controllaInterruzione();
        mostra(superficie, linea);
    });
    for (const TestoPlot& testo : statoPlot.archivio.testi()) mostra(superficie, testo);
}

}  // namespace

void plotRifai() {
    if (statoPlot.superficie == nullptr) return;
    const LavoroDisegno lavoro;
    SuperficieDisegno& superficie = *statoPlot.superficie;
    try {
        mostraTutto(superficie);
    } catch (const DisegnoInterrotto&) {
        superficie.aggiorna();
        throw;
    }
    superficie.aggiorna();
}

}  // namespace korven::plot
