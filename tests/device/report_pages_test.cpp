#include "device/report_pages.hpp"

#include <gtest/gtest.h>

#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>
#include <filesystem>

#include "base/text_lines.hpp"
#include "device/graphics_session.hpp"
#include "device/report_fonts.hpp"
#include "markup/print_renderer.hpp"
#include "support/failing_disk.hpp"
#include "support/page_record.hpp"
#include "support/pdf_pages.hpp"
#include "support/temporary_folder.hpp"

namespace korven::device {
namespace {

using Righe = std::vector<std::string>;

class PagineRelazioneTest : public testing::Test {
 protected:
    void stampa(markup::ReportPrinter& carta, const Righe& righe) {
        base::LettoreRighe file("r.TAB", test::markup(righe));
        markup::PrintRenderer renderer(carta);
        markup::renderMarkup(file, markup::RendererKind::print, renderer);
        renderer.finish();
    }
    std::unique_ptr<markup::ReportPrinter> suPdf() {
        return relazioneSuPdf(pdf, "Ponte über Fluß");
    }

    const SessioneGrafica sessione;
    const test::CartellaProvvisoria cartella;
    const std::string pdf = cartella / "muro.pdf";
    const Righe relazione{"#RESET 2,2,2,2,2,2,12,Arial",
                          "#HEADER Testa",
                          "#FOOTER Piede",
                          "Pietà, 30° e 5 m³",
                          "#NEWPAGE",
                          "#STARTTABLE",
                          "Prof. [m]\tM [kN m]",
                          "1.5\t-3.25",
                          "#ENDTABLE",
                          "#ENDDOCUMENT"};
};

TEST_F(PagineRelazioneTest, FillThePagesOfAPdfFileInTheFontsOfTheMarkup) {
    stampa(*suPdf(), relazione);
    const std::string byte = test::contenuto(pdf);
    EXPECT_EQ(test::paginePdf(byte), 2);
    EXPECT_NE(byte.find("/MediaBox [0 0 595.000000 842.000000]"), std::string::npos);
    EXPECT_NE(byte.find("Sans"), std::string::npos) << "the font is embedded";
    EXPECT_NE(byte.find("Bold"), std::string::npos) << "the head of the table";
}

TEST_F(PagineRelazioneTest, TakeTheSheetOfThePrinterSetUpButNotItsMargins) {
    const QPageLayout quer(QPageSize(QPageSize::A3), QPageLayout::Landscape,
                           QMarginsF(90, 90, 90, 90));
    const auto carta = relazioneSuPdf(pdf, quer, "");
    EXPECT_NEAR(carta->sheet().width, 420 / 25.4 * 72, 0.5);
    EXPECT_NEAR(carta->sheet().height, 297 / 25.4 * 72, 0.5);
    stampa(*carta, relazione);
    EXPECT_NE(test::contenuto(pdf).find("/MediaBox [0 0 1191.000000 842.000000]"),
              std::string::npos);
}

TEST_F(PagineRelazioneTest, LeaveNoFileOfAJobThatWasCutShort) {
    test::metti(pdf, "di prima");
    {
        const auto carta = suPdf();
        carta->startPage();
        carta->write(100, 100, "a");
    }
    EXPECT_EQ(test::contenuto(pdf), "di prima");
}

TEST_F(PagineRelazioneTest, LeaveNoFileOnThePrinterSideOfAJobThatWasCutShort) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(QString::fromStdString(pdf));
    {
        const auto carta = relazioneSuStampante(stampante, "prova");
        carta->startPage();
    }
    stampa(*relazioneSuStampante(stampante, "prova"), relazione);
    EXPECT_EQ(test::paginePdf(test::contenuto(pdf)), 2) << "and the next one is printed";
}

TEST_F(PagineRelazioneTest, AreOneFileForEachJobTheLastOfWhichStays) {
    const auto carta = suPdf();
    stampa(*carta, relazione);
    stampa(*carta, {relazione[0], "una", "#ENDDOCUMENT"});
    EXPECT_EQ(test::paginePdf(test::contenuto(pdf)), 1);
}

TEST_F(PagineRelazioneTest, TellOfAFileThatCannotBeWritten) {
    const auto carta = relazioneSuPdf(cartella / "manca/muro.pdf", "");
    try {
        stampa(*carta, relazione);
        FAIL();
    } catch (const markup::PrinterError& errore) {
        EXPECT_EQ(errore.percorso(), cartella / "manca/muro.pdf");
    }
}

TEST_F(PagineRelazioneTest, TellOfAPrinterThatIsNotThereOrTakesNoPage) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    EXPECT_THROW(stampa(*relazioneSuStampante(stampante, ""), relazione), markup::PrinterError);
    stampante.setOutputFileName(QString::fromStdString(cartella / "manca/muro.pdf"));
    EXPECT_THROW(stampa(*relazioneSuStampante(stampante, ""), relazione), markup::PrinterError);
}

// What a disk leaves that was full: Qt itself says nothing of it.
TEST_F(PagineRelazioneTest, TellOfAFileThatThePrinterLeftCutShort) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(QString::fromStdString(pdf));
    const auto carta = relazioneSuStampante(stampante, "");
    carta->startPage();
    std::filesystem::remove(pdf);
    test::metti(pdf, "%PDF-1.4\n1 0 obj\nstart");
    EXPECT_THROW(carta->endJob(), markup::PrinterError);
}

TEST_F(PagineRelazioneTest, OnAFullDiskTellWhyAndLeaveTheFileOfBefore) {
    test::metti(pdf, "prima");
    const test::DiscoPieno disco(1000);
    try {
        stampa(*relazioneSuPdf(pdf, "Muro", disco), relazione);
        FAIL();
    } catch (const markup::PrinterError& errore) {
        EXPECT_NE(errore.atteso().find(test::nonCeSpazio), std::string::npos);
    }
    EXPECT_EQ(test::contenuto(pdf), "prima");
}

TEST_F(PagineRelazioneTest, TellOfAPrinterThatTheSystemDoesNotKnow) {
    const std::string nome = "nessuna stampante ha questo nome";
    EXPECT_THROW(controllaStampante(nome), markup::PrinterError);
    try {
        static_cast<void>(relazioneSuStampante(nome, "prova"));
        FAIL();
    } catch (const markup::PrinterError& errore) {
        EXPECT_EQ(errore.percorso(), nome);
        EXPECT_TRUE(errore.atteso().starts_with("stampante non trovata"));
    }
}

TEST_F(PagineRelazioneTest, GiveThePrinterItsMarginsBack) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setPageSize(QPageSize(QPageSize::A4));
    stampante.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
    {
        const auto carta = relazioneSuStampante(stampante, "");
        // Half a centimetre, what a usual printer leaves.
        EXPECT_NEAR(stampante.pageLayout().margins(QPageLayout::Millimeter).left(), 5, 0.2);
        EXPECT_NEAR(carta->sheet().width, 210 / 25.4 * 72, 0.5);
    }
    EXPECT_NEAR(stampante.pageLayout().margins(QPageLayout::Millimeter).left(), 20, 0.2);
}

// Widths of Arial in thousandths of its size, as font tables of the typeface give them: A 667,
// V 667, f 278, i 222, digits 556. Kerned "AV" would be 74 narrower.
TEST_F(PagineRelazioneTest, MeasureTextsByTheirCharacters) {
    const auto carta = suPdf();
    carta->setFont({"Arial", 10, false, false});
    EXPECT_NEAR(carta->textWidth("A"), 6.67, 0.01);
    EXPECT_NEAR(carta->textWidth("AVAV"), 4 * 6.67, 0.03);
    EXPECT_NEAR(carta->textWidth("fi"), 2.78 + 2.22, 0.01);
    EXPECT_NEAR(carta->textWidth("10"), 2 * 5.56, 0.01);
    carta->setFont({"Arial", 20, false, false});
    EXPECT_NEAR(carta->textWidth("A"), 13.34, 0.02);
    carta->setFont({"Arial", 10, true, false});
    EXPECT_NEAR(carta->textWidth("A"), 7.22, 0.01);
}

TEST_F(PagineRelazioneTest, MeasureLinesByTheirFont) {
    const auto carta = suPdf();
    carta->setFont({"Arial", 10, false, false});
    EXPECT_NEAR(carta->textHeight(), 11.17, 0.05);  // 0.905 above the base line, 0.212 below
    EXPECT_GE(carta->lineStep(), carta->textHeight());
    EXPECT_LT(carta->lineStep(), 12.5);
}

TEST_F(PagineRelazioneTest, WriteATextWithoutASizeOrAFontInTheUsualOne) {
    const auto carta = suPdf();
    carta->setFont({"", 0, false, false});
    EXPECT_NEAR(carta->textWidth("A"), 6.67, 0.01);
    carta->setFont({"", -3, false, false});
    EXPECT_NEAR(carta->textWidth("A"), 6.67, 0.01);
    stampa(*carta, {"#RESET 2,2", "testo", "#FONTSIZE 1e300", "enorme", "#ENDDOCUMENT"});
    EXPECT_GE(test::paginePdf(test::contenuto(pdf)), 1);
}

}  // namespace
}  // namespace korven::device
