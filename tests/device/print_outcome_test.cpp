#include "device/print_outcome.hpp"

#include <gtest/gtest.h>

#include <QPrinter>
#include <QString>

#include "device/graphics_session.hpp"
#include "support/temporary_folder.hpp"

namespace korven::device {
namespace {

class EsitoStampa : public testing::Test {
 protected:
    EsitoStampa() {
        stampante.setOutputFormat(QPrinter::PdfFormat);
        su(file);
    }
    void su(const std::string& nome) { stampante.setOutputFileName(QString::fromStdString(nome)); }

    const SessioneGrafica sessione;
    const test::CartellaProvvisoria cartella;
    const std::string file = cartella / "stampa.pdf";
    QPrinter stampante{QPrinter::HighResolution};
};

TEST_F(EsitoStampa, NamesTheFileThatThePrinterWrites) {
    EXPECT_EQ(destinazionePagine(stampante), file);
    EXPECT_TRUE(conosciuta(stampante));
}

TEST_F(EsitoStampa, IsGoodWhenTheFileIsWrittenToItsEnd) {
    test::metti(file, "%PDF-1.4\n1 0 obj\nstartxref\n9\n%%EOF\n");
    EXPECT_TRUE(consegnata(stampante));
    test::metti(file, "%PDF-1.4\n1 0 obj\nstart");
    EXPECT_FALSE(consegnata(stampante));
    test::metti(file, "");
    EXPECT_FALSE(consegnata(stampante));
    su(cartella / "manca.pdf");
    EXPECT_FALSE(consegnata(stampante));
}

TEST_F(EsitoStampa, IsNotLookedForInADevice) {
    su("/dev/null");
    EXPECT_TRUE(consegnata(stampante));
}

TEST_F(EsitoStampa, IsBadWithoutAPrinterThatTheSystemKnows) {
    su("");
    stampante.setPrinterName("nessuna stampante ha questo nome");
    EXPECT_FALSE(conosciuta(stampante));
    EXPECT_FALSE(consegnata(stampante));
}

}  // namespace
}  // namespace korven::device
