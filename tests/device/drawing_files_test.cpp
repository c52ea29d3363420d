#include "device/drawing_files.hpp"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <cmath>
#include <filesystem>
#include <functional>
#include <optional>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "device/drawing_fonts.hpp"
#include "device/drawing_painter.hpp"
#include "device/graphics_session.hpp"
#include "plot/drawing_stop.hpp"
#include "plot/dxf/export.hpp"
#include "plot/plot_engine.hpp"
#include "support/drawing_by_pen.hpp"
#include "support/failing_disk.hpp"
#include "support/ink.hpp"

namespace korven::device {
namespace {

using plot::fineDisegno;
using plot::pennaGiu;
using plot::pennaSu;
using plot::plotMuovi;

constexpr int puntiPerPollice = 254;  // a hundred pixels to the centimetre

using test::Macchia;

class FileDelDisegno : public test::ProvaPlot {
 protected:
    FileDelDisegno() { configura(test::penneNere()); }

    /// A sheet of 10 by 5 cm.
    static void apri() {
        plot::plotApri(0, 0, 10, 5);
        plot::plotPenna(1);
    }
    [[nodiscard]] QImage immagine() const {
        plotMuovi(0, 0, fineDisegno);
        scriviPng(cartella / "disegno.png", puntiPerPollice);
        return QImage(QString::fromStdString(cartella / "disegno.png"));
    }
    [[nodiscard]] Macchia macchia() const { return test::macchia(immagine()); }

    const SessioneGrafica sessione;
    const test::CartellaProvvisoria cartella;
};

TEST_F(FileDelDisegno, ShowTheWholeSheetAtTheResolutionAskedFor) {
    apri();
    const QImage foglio = immagine();
    EXPECT_EQ(foglio.width(), 1000);
    EXPECT_EQ(foglio.height(), 500);
    EXPECT_EQ(foglio.dotsPerMeterX(), 10000);
    EXPECT_EQ(qGray(foglio.pixel(10, 10)), 255);
}

TEST_F(FileDelDisegno, ShowATextThatReachesOutOfTheSheetToItsEnd) {
    apri();
    plot::plotSimbolo(9.5, 3, 1, "H", 0, 1);
    const double fine = 9.5 + MetricaQt().larghezza("Arial", 1, "H");
    EXPECT_NEAR(immagine().width(), (fine + 0.1) * 100, 1);
}

TEST_F(FileDelDisegno, ShowNoMoreThanTwoCentimetresBesideTheSheet) {
    apri();
    plot::plotSimbolo(9, 3, 1, std::string(40, 'H'), 0, 40);
    EXPECT_EQ(immagine().width(), 1200);
}

TEST_F(FileDelDisegno, ShowALineOfOneCentimetreAHundredPixelsLong) {
    apri();
    plotMuovi(2, 3, pennaSu);
    plotMuovi(3, 3, pennaGiu);
    const Macchia m = macchia();
    EXPECT_NEAR(m.larghezza(), 100, 2);
    EXPECT_NEAR(m.sinistra, 200, 1);
    EXPECT_NEAR(m.sopra, 200, 1) << "3 cm above the lower edge";
    EXPECT_LE(m.altezza(), 2) << "0.1 mm is one pixel, which may lie on two";
}

TEST_F(FileDelDisegno, ShowALineAsWideAsItsPen) {
    apri();
    plot::plotPenna(20);  // 2 mm
    plotMuovi(2, 3, pennaSu);
    plotMuovi(6, 3, pennaGiu);
    EXPECT_NEAR(macchia().altezza(), 20, 1);
}

TEST_F(FileDelDisegno, ShowATextOnItsBaseLineFromItsPoint) {
    apri();
    plot::plotSimbolo(2, 3, 1, "HHH", 0, 3);
    const Macchia m = macchia();
    EXPECT_NEAR(m.sotto, 200, 2);
    EXPECT_GE(m.sinistra, 200);
    EXPECT_LE(m.sinistra, 225);
    // A capital of these faces is 0.716 of a size that is 5/3 / 1.117 of the height.
    EXPECT_NEAR(m.altezza(), 107, 5);
}

TEST_F(FileDelDisegno, ShowACentredTextAboutItsPoint) {
    apri();
    plot::plotSimbolo(5, 3, 1, "HHH", 0, plot::conteggioCentrato);
    const Macchia m = macchia();
    EXPECT_NEAR((m.sinistra + m.destra) / 2.0, 500, 2);
}

TEST_F(FileDelDisegno, ShowATurnedTextUpwardFromItsPoint) {
    apri();
    plot::plotSimbolo(5, 1, 1, "HHH", 90, 3);
    const Macchia m = macchia();
    EXPECT_NEAR(m.destra, 500, 2) << "the base line";
    EXPECT_LE(m.sotto, 400);
    EXPECT_GE(m.sotto, 375);
    EXPECT_NEAR(m.larghezza(), 107, 5);
}

TEST_F(FileDelDisegno, HoldOnePdfPageOfA4) {
    apri();
    plotMuovi(0, 0, pennaSu);
    plotMuovi(10, 5, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    scriviPdf(cartella / "disegno.pdf");
    const std::string pdf = test::contenuto(cartella / "disegno.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-1.4"));
    EXPECT_NE(pdf.find("/MediaBox [0 0 595.000000 842.000000]"), std::string::npos);
}

TEST_F(FileDelDisegno, OfPdfLeaveOutLinesAboveAndBelowThePage) {
    const auto byte = [this](double y) {
        apri();
        for (int i = 0; i < 2000; ++i) {
            plotMuovi(0.001 * i, y, pennaSu);
            plotMuovi(0.001 * i, y - 0.5 * (i % 2), pennaGiu);
        }
        plotMuovi(0, 0, fineDisegno);
        scriviPdf(cartella / "disegno.pdf");
        return test::contenuto(cartella / "disegno.pdf").size();
    };
    const auto vuota = byte(-100);  // an A4 page ends 12.35 cm below the sheet
    EXPECT_EQ(byte(100), vuota);
    EXPECT_GT(byte(-12), vuota + 1000) << "on the page, beside the sheet";
}

TEST_F(FileDelDisegno, HoldTheTextsOfAnSvgAsTexts) {
    apri();
    plot::plotSimbolo(2, 3, 1, "Pietà", 0, 5);
    plotMuovi(0, 0, fineDisegno);
    scriviSvg(cartella / "disegno.svg");
    const std::string svg = test::contenuto(cartella / "disegno.svg");
    EXPECT_NE(svg.find("Pietà"), std::string::npos);
    EXPECT_NE(svg.find("width=\"100mm\" height=\"50mm\""), std::string::npos);
}

TEST_F(FileDelDisegno, ThatCannotBeWrittenAreAnError) {
    apri();
    plotMuovi(0, 0, fineDisegno);
    EXPECT_THROW(scriviPdf(cartella / "manca/disegno"), base::ErroreFile);
    EXPECT_THROW(scriviSvg(cartella / "manca/disegno"), base::ErroreFile);
    EXPECT_THROW(scriviPng(cartella / "manca/disegno", 100), base::ErroreFile);
}

TEST_F(FileDelDisegno, OnAFullDiskTellWhyAndLeaveTheFileOfBefore) {
    apri();
    plotMuovi(0, 0, fineDisegno);
    const std::string nome = cartella / "disegno";
    using Scrittura = std::function<void(const base::Disco&)>;
    const Scrittura scritture[] = {
        [&](const base::Disco& d) { scriviPdf(nome, foglioPredefinito, d); },
        [&](const base::Disco& d) { scriviSvg(nome, d); },
        [&](const base::Disco& d) { scriviPng(nome, 100, 1000, d); }};
    test::metti(nome, "prima");
    for (const auto& scrivi : scritture) {
        try {
            scrivi(test::DiscoPieno(60));
            ADD_FAILURE();
        } catch (const base::ErroreScrittura& errore) {
            EXPECT_NE(errore.atteso().find(test::nonCeSpazio), std::string::npos);
        }
        EXPECT_EQ(test::contenuto(nome), "prima");
    }
}

// How far a text reaches that is painted at height 1 [cm].
double inchiostro(const char* carattere, const std::string& testo) {
    constexpr double pixelCm = 40;
    plot::ArchivioDisegno archivio;
    archivio.aggiungi(plot::TestoPlot{0.1, 0.5, 1, 0, 1, testo, plot::nero, carattere});
    QImage immagine(static_cast<int>(38 * pixelCm), static_cast<int>(2 * pixelCm),
                    QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter pittore(&immagine);
    PittoreDisegno(pittore, {0, 0, 38, 2}, pixelCm, 1).dipingi(archivio);
    pittore.end();
    return test::macchia(immagine).larghezza() / pixelCm;
}

// Twenty times the same between two letters of which both ends are seen.
double larghezzaDipinta(const char* carattere, const std::string& lettera) {
    constexpr int volte = 20;
    std::string testo = "H";
    for (int i = 0; i < volte; ++i) testo += lettera;
    return (inchiostro(carattere, testo + 'H') - inchiostro(carattere, "HH")) / volte;
}

TEST_F(FileDelDisegno, AreWrittenInFontsOfTheWidthsThatAreMeasured) {
    for (const char* carattere : {"Arial", "Courier New"}) {
        for (int byte = 32; byte < 256; ++byte) {
            if (byte == 127 || byte == 173) continue;  // no characters that are shown
            const std::string lettera = base::daCp1252(std::string(1, static_cast<char>(byte)));
            if (lettera.empty() || lettera == "\xEF\xBF\xBD") continue;
            const QString scritta = QString::fromStdString(lettera);
            if (scritta.at(0).unicode() >= 128 && scritta.at(0).unicode() < 160) continue;
            EXPECT_NEAR(larghezzaDipinta(carattere, lettera),
                        MetricaQt().larghezza(carattere, 1, lettera), 0.003)
                << carattere << ' ' << byte << ' ' << lettera;
        }
    }
}

// No font has the width of this letter, which is measured as a question mark.
TEST_F(FileDelDisegno, HaveTextsAsWideAsMeasuredWhateverTheFont) {
    EXPECT_NEAR(larghezzaDipinta("Arial", "Ω"), MetricaQt().larghezza("Arial", 1, "?"), 0.003);
    EXPECT_EQ(stiramento("Arial", "Pietà"), 1) << "the letters of its own font are left alone";
    EXPECT_EQ(stiramento("Times New Roman", "Ω"), 1);
}

// Strips of three rows.
TEST_F(FileDelDisegno, LookTheSameInHoweverManyStripsTheyArePainted) {
    apri();
    for (int i = 2; i <= 30; ++i) {  // pen 1 is as thin as a pixel
        plot::plotPenna(i);
        plotMuovi(0.3 * i, 0.1 * i, pennaSu);
        plotMuovi(10 - 0.25 * i, 5 - 0.15 * i, pennaGiu);
        plotMuovi(9, 0.17 * i, pennaGiu);
    }
    plot::plotPenna(5);
    plot::plotSimbolo(2, 3, 1, "Città", 30, 5);
    const QImage intera = immagine();
    scriviPng(cartella / "fasce.png", puntiPerPollice, 3 * 4 * 1000);
    const QImage fasce(QString::fromStdString(cartella / "fasce.png"));
    ASSERT_EQ(fasce.size(), intera.size());
    EXPECT_EQ(fasce.dotsPerMeterX(), intera.dotsPerMeterX());
    int diversi = 0;
    for (int y = 0; y < intera.height(); ++y)
        for (int x = 0; x < intera.width(); ++x)
            diversi += std::abs(qGray(intera.pixel(x, y)) - qGray(fasce.pixel(x, y))) > 2 ? 1 : 0;
    EXPECT_EQ(diversi, 0);
}

TEST_F(FileDelDisegno, AreGivenUpWithoutATraceWhenSomebodyWantsTheEnd) {
    struct Fermo : plot::SorvegliaDisegno {
        bool fermare() override { return true; }
    } fermo;
    apri();
    plotMuovi(5, 3, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    plot::statoPlot.sorveglia = &fermo;
    EXPECT_THROW(scriviPdf(cartella / "d"), plot::DisegnoInterrotto);
    EXPECT_THROW(scriviSvg(cartella / "d"), plot::DisegnoInterrotto);
    EXPECT_THROW(scriviPng(cartella / "d", 100), plot::DisegnoInterrotto);
    EXPECT_THROW(plot::plotDxf(cartella / "d"), plot::DisegnoInterrotto);
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

TEST_F(FileDelDisegno, OfSvgAreWellFormedWhateverATextHolds) {
    apri();
    plot::plotSimbolo(2, 3, 1, "a<b & \"c\"\x01\x1B>", 0, 9);
    plotMuovi(0, 0, fineDisegno);
    scriviSvg(cartella / "d.svg");
    QXmlStreamReader xml(QByteArray::fromStdString(test::contenuto(cartella / "d.svg")));
    QString letto;
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("text"))
            letto = xml.readElementText();
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(letto.toStdString(), "a<b & \"c\"\xEF\xBF\xBD\xEF\xBF\xBD>");
}

// The reader of the system paints it: at 100 pixels to the centimetre.
TEST_F(FileDelDisegno, OfSvgShowTheDrawingAtItsPlace) {
    apri();
    plot::plotPenna(20);  // 2 mm
    plotMuovi(2, 3, pennaSu);
    plotMuovi(6, 3, pennaGiu);
    plotMuovi(6, 4, pennaGiu);
    plotMuovi(0, 0, fineDisegno);
    scriviSvg(cartella / "d.svg");
    QImage immagine(1000, 500, QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter pittore(&immagine);
    QSvgRenderer(QString::fromStdString(cartella / "d.svg")).render(&pittore);
    pittore.end();
    const Macchia m = test::macchia(immagine);
    EXPECT_NEAR(m.sinistra, 190, 1);
    EXPECT_NEAR(m.destra, 609, 1);
    EXPECT_NEAR(m.sotto, 209, 1);
    EXPECT_NEAR(m.sopra, 90, 1);
}

TEST_F(FileDelDisegno, OfUnknownFacesAreMeasuredInTheFontThatStandsInForThem) {
    const QFont font = fontDisegno("Times New Roman");
    const double vera = QFontMetricsF(font).horizontalAdvance(QStringLiteral("Fase")) /
                        font.pixelSize() * corpoPerRiga(font, rigaPerAltezza * 0.3);
    EXPECT_DOUBLE_EQ(MetricaQt().larghezza("Times New Roman", 0.3, "Fase"), vera);
}

}  // namespace
}  // namespace korven::device
