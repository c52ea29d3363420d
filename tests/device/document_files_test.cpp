#include "device/document_files.hpp"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>

#include "base/file_error.hpp"
#include "device/document_painter.hpp"
#include "device/graphics_session.hpp"
#include "support/failing_disk.hpp"
#include "support/page_boxes.hpp"
#include "support/pdf_pages.hpp"
#include "support/plot_setup.hpp"
#include "support/sample_document.hpp"

namespace korven::device {
namespace {

class PagineDocumento : public test::ProvaPlot {
 protected:
    [[nodiscard]] std::unique_ptr<QPDF> letto() const {
        auto letto = std::make_unique<QPDF>();
        letto->processFile(pdf.c_str());
        return letto;
    }

    const SessioneGrafica sessione;
    const test::CartellaProvvisoria cartella;
    const std::string pdf = cartella / "muro-allegato.pdf";
};

TEST_F(PagineDocumento, LayNothingUponAnotherThingInTheFontsThatTheyArePaintedWith) {
    EXPECT_EQ(test::difetti(impaginato(test::documentoCompleto())), "");
}

TEST_F(PagineDocumento, AreTheSameBytesEachTime) {
    scriviPdf(pdf, test::documentoCompleto());
    const std::string una = test::contenuto(pdf);
    scriviPdf(pdf, test::documentoCompleto());
    EXPECT_EQ(test::contenuto(pdf), una);
    EXPECT_TRUE(una.starts_with("%PDF-"));
}

TEST_F(PagineDocumento, TellTitleAuthorDateAndLanguage) {
    scriviPdf(pdf, test::documentoCompleto());
    const auto file = letto();
    auto info = file->getTrailer().getKey("/Info");
    EXPECT_EQ(info.getKey("/Title").getUTF8Value(), "Allegato di calcolo");
    EXPECT_EQ(info.getKey("/Author").getUTF8Value(), "Studio Rossi");
    EXPECT_EQ(info.getKey("/CreationDate").getUTF8Value(), "D:20261122000000Z");
    EXPECT_EQ(info.getKey("/ModDate").getUTF8Value(), "D:20261122000000Z");
    EXPECT_EQ(file->getRoot().getKey("/Lang").getUTF8Value(), "it");
    EXPECT_EQ(file->getAllPages().size(), impaginato(test::documentoCompleto()).pagine.size());
}

TEST_F(PagineDocumento, HaveNoDateWhereTheDocumentHasNone) {
    auto documento = test::documentoCompleto();
    documento.data.clear();
    scriviPdf(pdf, documento);
    EXPECT_FALSE(letto()->getTrailer().getKey("/Info").hasKey("/CreationDate"));
}

TEST_F(PagineDocumento, HaveTheirHeadingsOfTwoLevelsAsBookmarks) {
    scriviPdf(pdf, test::documentoCompleto());
    const auto file = letto();
    std::string indice;
    for (auto& capitolo : QPDFOutlineDocumentHelper(*file).getTopLevelOutlines()) {
        indice += capitolo.getTitle() + ":";
        for (auto& parte : capitolo.getKids()) indice += " " + parte.getTitle();
        indice += "\n";
        EXPECT_TRUE(capitolo.getDestPage().isPageObject());
    }
    EXPECT_EQ(indice,
              "Modello e ipotesi: Che cosa si calcola Nodi Tiranti Osservazioni\n"
              "Fasi:\nCome rifarlo:\n");
    EXPECT_EQ(file->getRoot().getKey("/Outlines").getKey("/Count").getIntValue(), 7);
}

TEST_F(PagineDocumento, LeadFromTheContentsToEachHeading) {
    document::Documento documento;
    documento.blocchi = {document::Indice{"Indice"}, document::SaltoPagina{},
                         document::Titolo{1, "Dati"}, document::SaltoPagina{},
                         document::Titolo{1, "Fasi"}};
    scriviPdf(pdf, documento);
    const auto file = letto();
    auto pagine = file->getAllPages();
    auto note = pagine.at(0).getKey("/Annots");
    ASSERT_EQ(note.getArrayNItems(), 2);
    for (int i = 0; i < 2; ++i) {
        auto nota = note.getArrayItem(i);
        EXPECT_EQ(nota.getKey("/Subtype").getName(), "/Link");
        EXPECT_EQ(nota.getKey("/Dest").getArrayItem(0).getObjGen(),
                  pagine.at(static_cast<std::size_t>(i) + 1).getObjGen());
        const auto r = nota.getKey("/Rect").getArrayAsRectangle();
        EXPECT_LT(r.lly, r.ury);
    }
}

TEST_F(PagineDocumento, CarryAFileByteByByte) {
    document::Documento documento;
    const std::string byte("1\r\n\x80\0 ", 6);
    documento.allegati = {{"muro là.kvd", "Il progetto", byte}};
    scriviPdf(pdf, documento);
    const auto file = letto();
    const auto allegati = QPDFEmbeddedFileDocumentHelper(*file).getEmbeddedFiles();
    ASSERT_EQ(allegati.size(), 1U);
    const auto& voce = allegati.begin()->second;
    EXPECT_EQ(voce->getFilename(), "muro là.kvd");
    EXPECT_EQ(voce->getDescription(), "Il progetto");
    const auto dentro = voce->getEmbeddedFileStream().getStreamData();
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(dentro->getBuffer()), dentro->getSize()),
              byte);
}

TEST_F(PagineDocumento, HangABookmarkThatSkipsALevelOnTheOneAboveIt) {
    document::Documento documento;
    for (const int livello : {2, 1, 2, 2, 1})
        documento.blocchi.push_back(document::Titolo{livello, std::to_string(livello)});
    scriviPdf(pdf, documento);
    const auto file = letto();
    auto radici = QPDFOutlineDocumentHelper(*file).getTopLevelOutlines();
    ASSERT_EQ(radici.size(), 3U);
    EXPECT_EQ(radici[0].getTitle(), "2");
}

TEST_F(PagineDocumento, LeaveTheFileOfBeforeWhereTheDiskFails) {
    test::metti(pdf, "di prima");
    const test::DiscoPieno disco(100);
    EXPECT_THROW(scriviPdf(pdf, test::documentoCompleto(), disco), base::ErroreFile);
    EXPECT_EQ(test::contenuto(pdf), "di prima");
}

TEST_F(PagineDocumento, LeaveTheDrawingOfTheProgramAsItWas) {
    plot::plotApri(0, 0, 10, 10);
    plot::plotPenna(1);
    plot::plotMuovi(0, 0, plot::pennaSu);
    plot::plotMuovi(5, 5, plot::pennaGiu);
    plot::statoPlot.nome = "momenti";
    scriviPdf(pdf, test::documentoCompleto());
    EXPECT_EQ(plot::statoPlot.nome, "momenti");
    EXPECT_EQ(plot::statoPlot.archivio.lineeInMemoria().size(), 1U);
    EXPECT_EQ(plot::statoPlot.metrica, nullptr);
}

TEST_F(PagineDocumento, ArePaintedOnTheScreenWithTheirDrawings) {
    document::Documento documento;
    documento.blocchi = {test::figura(10, 5)};
    const auto fatto = impaginato(documento);
    const CaratteriPagine caratteri;
    constexpr int scala = 4;  // pixels in a point: the thin line then fills one
    QImage foglio(596 * scala, 842 * scala, QImage::Format_RGB32);
    foglio.fill(Qt::white);
    QPainter pittore(&foglio);
    pittore.scale(scala, scala);
    PittorePagine(pittore, caratteri).dipingi(fatto.pagine[0]);
    pittore.end();
    // The left side of the frame of the drawing, which is drawn in the red of pen 1.
    const auto& d = fatto.pagine[0].disegni.at(0);
    const auto colore = [&](double x, double y) {
        return foglio.pixelColor(static_cast<int>(x * scala), static_cast<int>(y * scala));
    };
    const QColor lato = colore(d.x, d.y + 40);
    EXPECT_GT(lato.red(), lato.blue() + 60);
    EXPECT_EQ(colore(d.x - 10, d.y + 40), QColor(Qt::white));
}

TEST_F(PagineDocumento, ArePrintedAsAskedFor) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(QString::fromStdString(pdf));
    stampante.setPageSize(QPageSize(QPageSize::Letter));
    const auto fatto = impaginato(test::documentoCompleto(), formatoPagina(stampante.pageLayout()));
    EXPECT_NEAR(fatto.formato.larghezza, 612, 0.5);
    stampa(fatto, stampante);
    EXPECT_EQ(test::paginePdf(test::contenuto(pdf)), static_cast<int>(fatto.pagine.size()));
    stampante.setFromTo(2, 3);
    stampa(fatto, stampante);
    EXPECT_EQ(test::paginePdf(test::contenuto(pdf)), 2);
    EXPECT_FALSE(stampante.fullPage()) << "the printer is as it was";
}

}  // namespace
}  // namespace korven::device
