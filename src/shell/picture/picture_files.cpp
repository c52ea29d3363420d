#include "shell/picture/picture_files.hpp"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "base/code_page.hpp"
#include "base/folders/file_names.hpp"
#include "base/translated_texts.hpp"
#include "commands/output_title.hpp"
#include "device/drawing_files.hpp"
#include "device/scene_files.hpp"
#include "device/scene_painter.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "scene/scene.hpp"
#include "shell/failure_box.hpp"
#include "shell/qt_text.hpp"

namespace korven::shell {

namespace {

// Of a landscape page of A4, with margins.
constexpr scene::Misura misuraFile{1000, 660};
constexpr double rapportoAppunti = 2;

std::string estensione(const std::string& percorso) {
    return base::minuscolo(percorso.substr(percorso.find_last_of("./") + 1));
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
    const std::string percorso = base::nomeUscita(project::fileCorrente, "figura", "svg");
    return {base::traduttore("Salvataggio della figura del progetto"),
            percorso.substr(percorso.rfind('/') + 1),
            {{"SVG (*.svg)", "svg"}, {"PDF (*.pdf)", "pdf"}, {"PNG (*.png)", "png"}}};
}

void scriviFigura(const std::string& percorso, const live::ProgettoVivo& vivo, const QFont& font,
                  const base::Disco& disco) {
    project::controllaUscita(percorso, project::fileCorrente);
    const std::string tipo = estensione(percorso);
    conScena(vivo, font, [&](const device::ScenaDaScrivere& scena) {
        if (tipo == "svg")
            device::scriviScenaSvg(percorso, scena, disco);
        else if (tipo == "png")
            device::scriviScenaPng(percorso, scena, device::risoluzionePredefinita, disco);
        else
            device::scriviScenaPdf(percorso, scena, disco);
    });
}

void salvaFigura(const live::ProgettoVivo& vivo, const QFont& font, PorteGrafica& porte,
                 base::Dialogo& dialogo) {
    conAvviso(dialogo, [&] {
        const auto percorso = porte.fileDaSalvare(richiestaFigura());
        if (!percorso) return;
        scriviFigura(*percorso, vivo, font, porte.disco());
        porte.scritto(*percorso);
    });
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
