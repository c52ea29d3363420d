#include "shell/picture/picture_files.hpp"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/translated_texts.hpp"
#include "commands/output_title.hpp"
#include "device/drawing_files.hpp"
#include "device/scene_files.hpp"
#include "device/scene_painter.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "scene/scene.hpp"
#include "shell/qt_text.hpp"
#include "shell/viewer/output_saving.hpp"

namespace korven::shell {

namespace {

// Of a landscape page of A4, with margins.
constexpr scene::Misura misuraFile{1000, 660};
constexpr double rapportoAppunti = 2;

struct Tipo {
    const char *nome, *estensione;
    void (*scrivi)(const std::string& percorso, const device::ScenaDaScrivere& scena,
                   const base::Disco& disco);
};
// The first is proposed.
constexpr Tipo tipi[] = {{"SVG (*.svg)", "svg", device::scriviScenaSvg},
                         {"PDF (*.pdf)", "pdf", device::scriviScenaPdf},
                         {"PNG (*.png)", "png",
                          [](const std::string& percorso, const device::ScenaDaScrivere& scena,
                             const base::Disco& disco) {
                              device::scriviScenaPng(percorso, scena,
                                                     device::risoluzionePredefinita, disco);
                          }}};

// That of the extension, whatever its case; null where it names none.
const Tipo* tipoScritto(const std::string& percorso) {
    const std::string nome = base::minuscolo(percorso);
    for (const Tipo& tipo : tipi)
        if (nome.ends_with(std::string(".") + tipo.estensione)) return &tipo;
    return nullptr;
}

const Tipo& tipoDi(const std::string& percorso) {
    if (const Tipo* tipo = tipoScritto(percorso)) return *tipo;
    throw base::ErroreScrittura(percorso, 0,
                                base::traduttore("la figura si salva come SVG, PDF o PNG: "
                                                 "terminare il nome con .svg, .pdf o .png"));
}

// Whether what stands behind a point names another kind of picture, whatever its case: "jpg", but
// not the "def" of "muro.def".
bool altraFigura(std::string_view fine) {
    constexpr std::string_view figure[] = {"",    "bmp", "dwg",  "dxf",  "emf",
                                           "eps", "gif", "jpeg", "jpg",  "svgz",
                                           "tif", "ps",  "tiff", "webp", "wmf"};
    return std::find(std::begin(figure), std::end(figure), base::minuscolo(fine)) !=
           std::end(figure);
}

// What was typed, with an ending that is taken.
std::string daProporreAncora(const std::string& percorso) {
    if (tipoScritto(percorso) != nullptr) return percorso;
    const std::size_t nome = percorso.rfind('/') + 1;
    const std::size_t punto = percorso.rfind('.');
    const bool conFine = punto != std::string::npos && punto > nome &&
                         altraFigura(std::string_view(percorso).substr(punto + 1));
    return percorso.substr(0, conFine ? punto : std::string::npos) + '.' + tipi[0].estensione;
}

// Gives the picture in the size of files to what writes it.
template <class Scrivi>
void conScena(const live::ProgettoVivo& vivo, const QFont& font, const Scrivi& scrivi) {
    const device::MisuraTestiQt misura(font);
    const scene::Scena scena = scene::scena(vivo.parete(), vivo.vista(), misuraFile, misura);
    scrivi(device::ScenaDaScrivere{scena, font, commands::titoloUscite(),
                                   scene::descrizione(vivo.parete(), vivo.vista())});
}

}  // namespace

FileDaSalvare richiestaFigura() {
    std::vector<TipoFile> tutti;
    for (const Tipo& tipo : tipi) tutti.push_back({tipo.nome, tipo.estensione});
    return richiestaUscita("Salvataggio della figura del progetto", project::fileCorrente, "figura",
                           std::move(tutti));
}

void scriviFigura(const std::string& percorso, const live::ProgettoVivo& vivo, const QFont& font,
                  const base::Disco& disco) {
    project::controllaUscita(percorso, project::fileCorrente);
    const Tipo& tipo = tipoDi(percorso);
    conScena(vivo, font,
             [&](const device::ScenaDaScrivere& scena) { tipo.scrivi(percorso, scena, disco); });
}

void salvaFigura(const live::ProgettoVivo& vivo, const QFont& font, PorteGrafica& porte,
                 base::Dialogo& dialogo) {
    salvaUscita(
        richiestaFigura(), porte, dialogo,
        [&](const std::string& dove) { scriviFigura(dove, vivo, font, porte.disco()); },
        daProporreAncora);
}

void copiaFigura(const live::ProgettoVivo& vivo, const QFont& font) {
    conScena(vivo, font, [](const device::ScenaDaScrivere& scena) {
        auto* dati = new QMimeData;  // the clipboard owns it
        const std::string svg = device::testoSvg(scena);
        dati->setData("image/svg+xml", QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
        dati->setImageData(device::immagineScena(scena, rapportoAppunti));
        QApplication::clipboard()->setMimeData(dati);
    });
}

}  // namespace korven::shell
