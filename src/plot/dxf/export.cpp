#include "plot/dxf/export.hpp"

#include <functional>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/text_lines.hpp"
#include "base/translated_texts.hpp"
#include "plot/dxf/writer.hpp"
#include "plot/plot_engine.hpp"

namespace korven::plot {

namespace {

constexpr std::string_view stilePredefinito = "MONOTXT";

// The file only makes the style easy to change. An installed program, whose folder nobody may
// write, draws with the default all the same.
std::string stilePredefinitoScritto(const std::string& percorso, const base::Disco& disco) {
    try {
        base::scriviFile(percorso, std::string(stilePredefinito).append("\r\n"), disco);
    } catch (const base::ErroreFile&) {
    }
    return std::string(stilePredefinito);
}

}  // namespace

std::string nomeDxf(std::string_view progetto) {
    const std::size_t cartella = progetto.find_last_of("/\\");
    if (cartella != std::string_view::npos) progetto.remove_prefix(cartella + 1);
    return std::string(progetto.substr(0, progetto.rfind('.'))).append(".DXF");
}

std::string leggiStileTesti(const base::Disco& disco) {
    const std::string percorso = base::fileProgramma("dxf.cfg");
    if (!base::esisteFile(percorso)) return stilePredefinitoScritto(percorso, disco);
    auto file = base::LettoreRighe::apri(percorso,
                                         base::traduttore("cancellare il file per usare MONOTXT"));
    if (file.fine()) return stilePredefinitoScritto(percorso, disco);
    const std::string riga = file.riga(base::traduttore("nome dello stile dei testi"));
    const std::string_view nome = base::senzaSpaziEsterni(riga);
    return std::string(nome.empty() ? stilePredefinito : nome);
}

namespace {

// Hands out the file part by part: a drawing may be longer than memory.
void scriviDxf(std::string_view stile, const std::function<void(const std::string&)>& uso) {
    constexpr std::size_t parte = 1 << 20;
    const LavoroDisegno lavoro;
    ScrittoreDxf dxf(statoPlot.estensione, stile);
    statoPlot.archivio.perOgniLinea([&](const Segmento& linea) {
        controllaInterruzione();
        if (dxf.contenuto().size() > parte) uso(dxf.preleva());
        dxf.colore(linea.colore);
        dxf.muovi(linea.x1, linea.y1, pennaSu);
        dxf.muovi(linea.x2, linea.y2, pennaGiu);
    });
    for (const TestoPlot& testo : statoPlot.archivio.testi()) {
        dxf.colore(testo.colore);
        dxf.testo(testo.x, testo.y, testo.altezza, testo.testo, testo.angolo, testo.conteggio);
    }
    dxf.muovi(0, 0, fineDisegno);
    uso(dxf.preleva());
}

}  // namespace

std::string testoDxf(std::string_view stile) {
    std::string testo;
    scriviDxf(stile, [&testo](const std::string& parte) { testo += parte; });
    return testo;
}

void plotDxf(const std::string& percorso, const base::Disco& disco) {
    if (statoPlot.stileTesti.empty()) statoPlot.stileTesti = leggiStileTesti(disco);
    base::ScrittoreFile file(percorso, disco);
    scriviDxf(statoPlot.stileTesti,
              [&file](const std::string& parte) { file.scrivi(base::inCp1252(parte)); });
    file.concludi();
}

}  // namespace korven::plot
