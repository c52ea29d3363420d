#include "plot/plot_dxf.hpp"

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/program_folder.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "plot/dxf_writer.hpp"
#include "plot/plot_engine.hpp"

namespace korven::plot {

namespace {

constexpr std::string_view stilePredefinito = "MONOTXT";

}  // namespace

std::string nomeDxf(std::string_view progetto) {
    const std::size_t cartella = progetto.find_last_of("/\\");
    if (cartella != std::string_view::npos) progetto.remove_prefix(cartella + 1);
    return std::string(progetto.substr(0, progetto.rfind('.'))).append(".DXF");
}

std::string leggiStileTesti() {
    const std::string percorso = base::fileProgramma("dxf.cfg");
    if (!base::esisteFile(percorso))
        base::scriviFile(percorso, std::string(stilePredefinito).append("\r\n"));
    auto file = base::LettoreRighe::apri(percorso,
                                         base::traduttore("cancellare il file per usare MONOTXT"));
    const std::string riga = file.riga(base::traduttore("nome dello stile dei testi"));
    const std::string_view nome = base::senzaSpaziEsterni(riga);
    return std::string(nome.empty() ? stilePredefinito : nome);
}

std::string testoDxf(std::string_view stile) {
    ScrittoreDxf dxf(statoPlot.estensione, stile);
    statoPlot.archivio.perOgniLinea([&dxf](const Segmento& linea) {
        dxf.colore(linea.colore);
        dxf.muovi(linea.x1, linea.y1, pennaSu);
        dxf.muovi(linea.x2, linea.y2, pennaGiu);
    });
    for (const TestoPlot& testo : statoPlot.archivio.testi()) {
        dxf.colore(testo.colore);
        dxf.testo(testo.x, testo.y, testo.altezza, testo.testo, testo.angolo, testo.conteggio);
    }
    dxf.muovi(0, 0, fineDisegno);
    return dxf.contenuto();
}

void plotDxf(const std::string& percorso) {
    if (statoPlot.stileTesti.empty()) statoPlot.stileTesti = leggiStileTesti();
    base::scriviFile(percorso, base::inCp1252(testoDxf(statoPlot.stileTesti)));
}

}  // namespace korven::plot
