#include "shell/viewer/export.hpp"

#include "base/code_page.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "device/drawing_files.hpp"
#include "plot/dxf/export.hpp"
#include "plot/plot_engine.hpp"
#include "project/project_data.hpp"

namespace korven::shell {

namespace {

// By the name that the drawing bears, which is the Italian one in every language: what an office
// calls a drawing must not change with the language of the one who prints it. Where it bears none,
// as the DXF file with another extension.
std::string nomeDisegno(std::string_view estensione) {
    const std::string& nome = plot::statoPlot.nome;
    if (!nome.empty() && !project::fileCorrente.empty()) {
        const std::string percorso = base::nomeUscita(project::fileCorrente, nome, estensione);
        return percorso.substr(percorso.rfind('/') + 1);
    }
    const std::string dxf = plot::nomeDxf(project::fileCorrente);
    return dxf.substr(0, dxf.rfind('.') + 1).append(estensione);
}

std::string estensione(const std::string& percorso) {
    return base::minuscolo(percorso.substr(percorso.find_last_of("./") + 1));
}

}  // namespace

TipoFile tipoPdf() { return {"PDF (*.pdf)", "pdf"}; }

FileDaSalvare richiestaDxf() {
    return {base::traduttore("Esportazione dell'immagine in formato DXF"),
            plot::nomeDxf(project::fileCorrente),
            {{"AutoCAD(*.DXF)", "DXF"}}};
}

FileDaSalvare richiestaImmagine() {
    return {base::traduttore("Salvataggio dell'immagine in formato PDF, SVG o PNG"),
            nomeDisegno(tipoPdf().estensione),
            {tipoPdf(), {"SVG (*.svg)", "svg"}, {"PNG (*.png)", "png"}}};
}

FileDaSalvare richiestaPdf() {
    return {base::traduttore("Invio dell'immagine alla stampante"),
            nomeDisegno(tipoPdf().estensione),
            {tipoPdf()}};
}

void scriviImmagine(const std::string& percorso, const base::Disco& disco) {
    const std::string tipo = estensione(percorso);
    if (tipo == "svg")
        device::scriviSvg(percorso, disco);
    else if (tipo == "png")
        device::scriviPng(percorso, device::risoluzionePredefinita, device::fasciaPredefinita,
                          disco);
    else
        device::scriviPdf(percorso, device::foglioPredefinito, disco);
}

}  // namespace korven::shell
