#include "device/scene_files.hpp"

#include <QFontInfo>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cassert>
#include <cmath>

#include "base/files.hpp"
#include "device/drawing_files.hpp"
#include "device/file_device.hpp"
#include "device/png_writer.hpp"
#include "device/qt_text.hpp"
#include "device/scene_painter.hpp"
#include "scene/svg.hpp"

namespace korven::device {

namespace {

constexpr double pixelPerPollice = 96;
constexpr double millimetriPerPollice = 25.4;
constexpr int dpiVettoriale = 2540;  // a hundredth of a mm

double rapportoDi(int dpi) { return dpi / pixelPerPollice; }

}  // namespace

std::string testoSvg(const ScenaDaScrivere& s) {
    return scene::svg(s.scena, scene::Tavolozza::chiara, QFontInfo(s.font).family().toStdString(),
                      s.titolo, s.descrizione);
}

void scriviScenaSvg(const std::string& percorso, const ScenaDaScrivere& s,
                    const base::Disco& disco) {
    base::ScrittoreFile file(percorso, disco);
    file.scrivi(testoSvg(s));
    file.concludi();
}

void scriviScenaPdf(const std::string& percorso, const ScenaDaScrivere& s,
                    const base::Disco& disco) {
    DispositivoFile file(percorso, disco);
    {
        QPdfWriter scrittore(&file);
        scrittore.setCreator(QStringLiteral("KORVEN 32"));
        scrittore.setTitle(qt(s.titolo));
        scrittore.setResolution(dpiVettoriale);
        const QSizeF misura =
            QSizeF(s.scena.larghezza, s.scena.altezza) * (millimetriPerPollice / pixelPerPollice);
        scrittore.setPageSize(QPageSize(misura, QPageSize::Millimeter, {}, QPageSize::ExactMatch));
        scrittore.setPageMargins(QMarginsF());
        QPainter pittore(&scrittore);
        pittore.scale(rapportoDi(dpiVettoriale), rapportoDi(dpiVettoriale));
        PittoreScena(s.font, scene::Tavolozza::chiara).dipingiVettoriale(pittore, s.scena);
    }
    file.concludi();
}

void scriviScenaPng(const std::string& percorso, const ScenaDaScrivere& s, int dpi,
                    const base::Disco& disco) {
    assert(dpi >= risoluzioneMinima && dpi <= risoluzioneMassima);
    const QImage immagine = immagineScena(s, rapportoDi(dpi));
    constexpr double pollici = 1000 / millimetriPerPollice;  // in a metre
    ScrittorePng file(percorso, immagine.size(), static_cast<int>(std::lround(dpi * pollici)),
                      disco);
    file.scrivi(immagine, immagine.height());
    file.concludi();
}

QImage immagineScena(const ScenaDaScrivere& s, double rapporto) {
    QImage immagine(static_cast<int>(std::ceil(s.scena.larghezza * rapporto)),
                    static_cast<int>(std::ceil(s.scena.altezza * rapporto)), QImage::Format_RGB32);
    immagine.fill(qColore({scene::Ruolo::sfondo}, scene::Tavolozza::chiara));
    QPainter pittore(&immagine);
    pittore.scale(rapporto, rapporto);
    PittoreScena(s.font, scene::Tavolozza::chiara).dipingi(pittore, s.scena);
    return immagine;
}

}  // namespace korven::device
