#include "batch/run/document_formats.hpp"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/file_error.hpp"
#include "batch/run/drawing_formats.hpp"
#include "support/failing_disk.hpp"
#include "support/plot_setup.hpp"
#include "support/sample_document.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;

class FormatiDocumentoTest : public test::ProvaPlot {
 protected:
    const AmbienteDisegno ambiente{true};
    const test::CartellaProvvisoria cartella;
    std::vector<std::string> scritti;
    const std::string pdf = cartella / "a.pdf", doc = cartella / "a.doc", txt = cartella / "a.txt";
};

TEST_F(FormatiDocumentoTest, AreTheFilesThatAreAskedForAndNoOthers) {
    EXPECT_EQ(scrivi(test::documentoCompleto(), {pdf, doc, txt}, scritti), "");
    EXPECT_EQ(scritti, (std::vector<std::string>{pdf, doc, txt}));
    EXPECT_TRUE(test::contenuto(pdf).starts_with("%PDF-"));
    EXPECT_TRUE(test::contenuto(doc).starts_with("PK"));
    EXPECT_TRUE(test::contenuto(txt).starts_with("Muro di sostegno"));
    fs::remove(pdf);
    fs::remove(doc);
    scritti.clear();
    scrivi(test::documentoCompleto(), {"", "", txt}, scritti);
    EXPECT_EQ(scritti, (std::vector<std::string>{txt}));
    EXPECT_FALSE(fs::exists(pdf) || fs::exists(doc));
}

TEST_F(FormatiDocumentoTest, AreTheSameBytesEachTime) {
    scrivi(test::documentoCompleto(), {pdf, doc, txt}, scritti);
    const std::string prima = test::contenuto(pdf) + test::contenuto(doc) + test::contenuto(txt);
    scrivi(test::documentoCompleto(), {pdf, doc, txt}, scritti);
    EXPECT_EQ(test::contenuto(pdf) + test::contenuto(doc) + test::contenuto(txt), prima);
}

TEST_F(FormatiDocumentoTest, KeepAWordProcessorFileThatSomebodyElseWrote) {
    test::metti(doc, "mio");
    EXPECT_EQ(test::contenuto(scrivi(test::documentoCompleto(), {"", doc, ""}, scritti)), "mio");
}

TEST_F(FormatiDocumentoTest, TellOfADiskThatIsFull) {
    const test::DiscoPieno disco(100);
    for (const FormatiDocumento& formati :
         {FormatiDocumento{pdf, "", ""}, FormatiDocumento{"", doc, ""}, {"", "", txt}})
        EXPECT_THROW(scrivi(test::documentoCompleto(), formati, scritti, disco), base::ErroreFile);
    EXPECT_TRUE(scritti.empty());
    EXPECT_FALSE(fs::exists(pdf) || fs::exists(doc) || fs::exists(txt));
}

TEST_F(FormatiDocumentoTest, TellWhatWasWrittenBeforeOneFailed) {
    EXPECT_THROW(scrivi(test::documentoCompleto(), {pdf, cartella / "nessuna/a.doc", txt}, scritti),
                 base::ErroreFile);
    EXPECT_EQ(scritti, (std::vector<std::string>{pdf}));
    EXPECT_TRUE(fs::exists(pdf) && !fs::exists(txt));
}

}  // namespace
}  // namespace korven::batch
