#include "plot/plot_print.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/pointer_guard.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "plot/device_pixels.hpp"
#include "plot/line_clip.hpp"
#include "plot/page_layout.hpp"
#include "plot/plot_engine.hpp"
#include "plot/text_extent.hpp"

namespace korven::plot {

namespace {

constexpr double twipPerCentimetro = 567;
constexpr double millimetriPerCentimetro = 10;
constexpr const char* fileSovrapposizione = "overlap.cfg";

// A printer in centimetres.
struct Periferica {
    explicit Periferica(const MisureStampante& m)
        : foglio{m.larghezzaMm / millimetriPerCentimetro, m.altezzaMm / millimetriPerCentimetro},
          pixelCmX(m.larghezzaPixel / foglio.larghezza),
          pixelCmY(m.altezzaPixel / foglio.altezza),
          pixelPerSpessore(twipPerCentimetro / m.twipPerPixel),
          // A line may begin up to a centimetre outside, so that none ends short of the edge.
          ritaglio{-1, -1, m.paginaLarghezzaTwip / twipPerCentimetro + 1,
                   m.paginaAltezzaTwip / twipPerCentimetro + 1},
          colori(m.pianiColore >= 2 || base::esisteFile(base::fileProgramma("forcecol"))) {}

    [[nodiscard]] PuntoPagina pixel(Punto carta) const {
        return {pixelInteri(carta.x * pixelCmX), pixelInteri(carta.y * pixelCmY)};
    }
    [[nodiscard]] int spessore(double centimetri) const {
        return std::max(1, pixelInteri(centimetri * pixelPerSpessore));
    }
    [[nodiscard]] Colore colore(Colore voluto) const { return colori ? voluto : nero; }

    Foglio foglio;
    double pixelCmX;
    double pixelCmY;
    double pixelPerSpessore;
    Riquadro ritaglio;
    bool colori;
};

// Prints the stored drawing on one page.
class Pagina {
 public:
    Pagina(Stampante& stampante, const Periferica& periferica, const Disposizione& disposizione)
        : stampante_(stampante), periferica_(periferica), disposizione_(disposizione) {}

    void stampa(const ArchivioDisegno& archivio) {
        stampante_.iniziaPagina();
        for (const PoligonoPlot& poligono : archivio.poligoni()) riempi(poligono);
        archivio.perOgniLinea([this](const Segmento& linea) {
            controllaInterruzione();
            traccia(linea);
        });
        for (const TestoPlot& testo : archivio.testi()) scrivi(testo);
        stampante_.finePagina();
    }

 private:
    void riempi(const PoligonoPlot& poligono) {
        std::array<PuntoPagina, PoligonoPlot::massimoVertici> vertici;
        for (std::size_t i = 0; i < vertici.size(); ++i)
            vertici[i] = periferica_.pixel(disposizione_.sullaCarta(poligono.vertici[i]));
        stampante_.poligono({vertici.data(), static_cast<std::size_t>(poligono.nVertici)},
                            periferica_.colore(poligono.colore));
    }

    void traccia(const Segmento& linea) {
        if (!disegnabile(linea)) return;
        const auto visibile = ritagliaTratto({disposizione_.sullaCarta({linea.x1, linea.y1}),
                                              disposizione_.sullaCarta({linea.x2, linea.y2})},
                                             periferica_.ritaglio);
        if (!visibile) return;
        const Colore colore = periferica_.colore(linea.colore);
        const int spessore = periferica_.spessore(disposizione_.scala * linea.spessore);
        if (colorePenna_ != colore || spessorePenna_ != spessore) {
            stampante_.penna(colore, spessore);
            colorePenna_ = colore;
            spessorePenna_ = spessore;
        }
        stampante_.linea(periferica_.pixel(visibile->da), periferica_.pixel(visibile->a));
    }

    void scrivi(const TestoPlot& testo) {
        if (!disegnabile(testo)) return;
        if (ultimo_ == nullptr || ultimo_->carattere != testo.carattere ||
            ultimo_->altezza != testo.altezza || ultimo_->angolo != testo.angolo)
            scegliCarattere(testo);
        ultimo_ = &testo;
        stampante_.testo(periferica_.pixel(disposizione_.sullaCarta({testo.x, testo.y})),
                         testo.testo, testo.conteggio == conteggioCentrato,
                         periferica_.colore(testo.colore));
    }

    void scegliCarattere(const TestoPlot& testo) {
        constexpr double rigaPerAltezza = 5.0 / 3.0;
        stampante_.carattere(
            {rigaPerAltezza * periferica_.pixelCmY * disposizione_.scala * testo.altezza,
             decimiDiGrado(testo.angolo), testo.carattere});
    }

    Stampante& stampante_;
    const Periferica& periferica_;
    const Disposizione disposizione_;
    std::optional<Colore> colorePenna_;
    int spessorePenna_ = 0;
    const TestoPlot* ultimo_ = nullptr;
};

void stampaIntera(Stampante& stampante, const Periferica& periferica) {
    const Riquadro& disegno = statoPlot.estensione;
    const double sovrapposizione = sovrapposizioneFogli();
    if (!(sovrapposizione < std::min(periferica.foglio.larghezza, periferica.foglio.altezza)))
        throw base::ErroreFile(
            base::fileProgramma(fileSovrapposizione), 1,
            base::traduttore("la sovrapposizione deve essere minore del foglio"));
    const Fogli fogli = fogliPerDisegno(disegno, periferica.foglio, sovrapposizione);
    for (int j = 1; j <= fogli.ny; ++j)
        for (int i = 1; i <= fogli.nx; ++i)
            Pagina(stampante, periferica,
                   disposizioneIntera(disegno, periferica.foglio, sovrapposizione, i, j))
                .stampa(statoPlot.archivio);
}

// An axis unit begins on the sheet and ends beyond it: a page to which the drawing is fitted would
// cut it at its very edge.
Riquadro disegnoConTesti() {
    static const MetricaStimata stimata;
    const MetricaTesto& metrica = statoPlot.metrica != nullptr ? *statoPlot.metrica : stimata;
    return conTesti(statoPlot.estensione, statoPlot.archivio, metrica);
}

}  // namespace

double sovrapposizioneFogli() {
    constexpr double predefinita = 1;
    const std::string percorso = base::fileProgramma(fileSovrapposizione);
    if (!base::esisteFile(percorso)) return predefinita;
    return base::LettoreRighe::apri(percorso,
                                    base::traduttore("cancellare il file per sovrapporre 1 cm"))
        .numero(base::traduttore("sovrapposizione dei fogli in centimetri"));
}

void plotStampa(bool adatta, Stampante& stampante, base::Dialogo& dialogo) {
    const base::GuardiaPuntatore attesa(dialogo);
    const LavoroDisegno lavoro;
    const Periferica periferica(stampante.misure());
    if (adatta)
        Pagina(stampante, periferica, disposizioneAdattata(disegnoConTesti(), periferica.foglio))
            .stampa(statoPlot.archivio);
    else
        stampaIntera(stampante, periferica);
    stampante.fineStampa();
}

}  // namespace korven::plot
