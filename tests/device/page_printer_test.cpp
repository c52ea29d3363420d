#include "device/page_printer.hpp"

#include <gtest/gtest.h>

#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>
#include <filesystem>
#include <string>

#include "base/file_error.hpp"
#include "device/graphics_session.hpp"
#include "plot/plot_engine.hpp"
#include "plot/plot_print.hpp"
#include "support/dialog_double.hpp"
#include "support/drawing_by_pen.hpp"
#include "support/pdf_pages.hpp"

namespace korven::device {
namespace {

using test::paginePdf;

/// Prints into PDF files; a page of them has no margin, so that a sheet is an A4 page.
class Carta : public test::ProvaPlot {
 protected:
    Carta() {
        configura(test::penneNere());
        stampante.setOutputFormat(QPrinter::PdfFormat);
        stampante.setOutputFileName(QString::fromStdString(file));
        stampante.setPageSize(QPageSize(QPageSize::A4));
    }
    static void disegna(double larghezza, double altezza) {
        plot::plotApri(0, 0, larghezza, altezza);
        plot::plotPenna(1);
        plot::plotMuovi(0, 0, plot::pennaSu);
        plot::plotMuovi(larghezza, altezza, plot::pennaGiu);
        plot::plotSimbolo(2, 3, 1, "Pietà", 30, plot::conteggioCentrato);
        plot::plotMuovi(0, 0, plot::fineDisegno);
    }
    int pagineStampate(bool adatta) {
        {
            StampantePagine carta(stampante, "prova");
            plot::plotStampa(adatta, carta, dialogo);
        }
        return paginePdf(test::contenuto(file));
    }

    const SessioneGrafica sessione;
    const test::CartellaProvvisoria cartella;
    const std::string file = cartella / "stampa.pdf";
    test::DialogoFinto dialogo;
    QPrinter stampante{QPrinter::HighResolution};
};

TEST_F(Carta, PrintsADrawingThatASheetHoldsOnOnePage) {
    disegna(19, 27);
    EXPECT_EQ(pagineStampate(false), 1);
}

TEST_F(Carta, PrintsALargerDrawingOnAsManyPagesAsItNeeds) {
    disegna(30, 40);  // 2 x 21 - 1 >= 30, 2 x 29.7 - 1 >= 40
    EXPECT_EQ(pagineStampate(false), 4);
    EXPECT_EQ(pagineStampate(true), 1);
}

TEST_F(Carta, SaysHowLargeItsPageIs) {
    EXPECT_NEAR(paginaStampante(stampante).larghezza, 21.0, 0.02);
    EXPECT_NEAR(paginaStampante(stampante).altezza, 29.7, 0.02);
    stampante.setPageOrientation(QPageLayout::Landscape);
    EXPECT_NEAR(paginaStampante(stampante).larghezza, 29.7, 0.02);
}

TEST_F(Carta, HasItsMeasuresInItsOwnPixels) {
    StampantePagine carta(stampante, "prova");
    const plot::MisureStampante m = carta.misure();
    EXPECT_NEAR(m.larghezzaMm, 210, 0.2);
    EXPECT_NEAR(m.altezzaMm, 297, 0.2);
    EXPECT_NEAR(m.larghezzaPixel / m.larghezzaMm, stampante.resolution() / 25.4, 0.05);
    EXPECT_NEAR(m.paginaLarghezzaTwip, 21 * 567, 10);
    EXPECT_NEAR(m.twipPerPixel * stampante.resolution(), 1440, 1e-9);
    EXPECT_GE(m.pianiColore, 2);
}

TEST_F(Carta, ReportsOnePlaneWhenThePrinterIsSetToGrey) {
    stampante.setColorMode(QPrinter::GrayScale);
    StampantePagine carta(stampante, "prova");
    EXPECT_EQ(carta.misure().pianiColore, 1);
}

TEST_F(Carta, TakesTheMarginsOfThePrinterForTheJobAlone) {
    stampante.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
    {
        StampantePagine carta(stampante, "prova");
        EXPECT_NEAR(carta.misure().larghezzaMm, 210, 0.2);
    }
    EXPECT_NEAR(stampante.pageLayout().margins(QPageLayout::Millimeter).left(), 20, 0.2);
}

TEST_F(Carta, TellsWhenItCannotPrint) {
    disegna(19, 27);
    stampante.setOutputFileName(QString::fromStdString(cartella / "manca/stampa.pdf"));
    EXPECT_THROW(pagineStampate(false), base::ErroreFile);
    EXPECT_EQ(dialogo.ultimoPuntatore(), base::Puntatore::normale);
    stampante.setOutputFileName(QString::fromStdString(file));
    EXPECT_EQ(pagineStampate(false), 1) << "and prints the next time";
}

TEST_F(Carta, TellsOfAPrinterThatTheSystemNoLongerKnows) {
    disegna(19, 27);
    stampante.setOutputFileName({});
    stampante.setPrinterName("nessuna stampante ha questo nome");
    EXPECT_THROW(pagineStampate(false), base::ErroreFile);
    EXPECT_THROW(pagineStampate(true), base::ErroreFile);
    EXPECT_EQ(dialogo.ultimoPuntatore(), base::Puntatore::normale);
}

// What a disk leaves that was full: Qt itself says nothing of it.
TEST_F(Carta, TellsOfAFileThatIsCutShort) {
    StampantePagine carta(stampante, "prova");
    carta.iniziaPagina();
    std::filesystem::remove(file);
    test::metti(file, "%PDF-1.4\n1 0 obj\nstart");
    EXPECT_THROW(carta.fineStampa(), base::ErroreFile);
}

TEST_F(Carta, PrintsIntoAPdfFileOfThePageSetWhereThereIsNoPrinter) {
    disegna(19, 27);
    stampante.setPageSize(QPageSize(QPageSize::A3));
    {
        const auto pdf =
            stampanteSuPdf(QString::fromStdString(cartella / "altro.pdf"), stampante, "prova");
        EXPECT_NEAR(pdf->misure().larghezzaMm, 297, 0.2);
        plot::plotStampa(true, *pdf, dialogo);
    }
    const std::string pdf = test::contenuto(cartella / "altro.pdf");
    EXPECT_EQ(paginePdf(pdf), 1);
    EXPECT_NE(pdf.find("/MediaBox [0 0 842.000000 1191.000000]"), std::string::npos);
}

}  // namespace
}  // namespace korven::device
