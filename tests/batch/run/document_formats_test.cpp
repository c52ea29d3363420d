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
    const std::string pdf = cartella / "a.pdf", doc = cartella / "a.doc", txt = cartella / "a.txt";
};

TEST_F(FormatiDocumentoTest, AreTheFilesThatAreAskedForAndNoOthers) {
    const auto scritto = scrivi(test::documentoCompleto(), {pdf, doc, txt});
    EXPECT_EQ(scritto.file, (std::vector<std::string>{pdf, doc, txt}));
    EXPECT_EQ(scritto.conservato, "");
    EXPECT_TRUE(test::contenuto(pdf).starts_with("%PDF-"));
    EXPECT_TRUE(test::contenuto(doc).starts_with("PK"));
    EXPECT_TRUE(test::contenuto(txt).starts_with("Muro di sostegno"));
    fs::remove(pdf);
    fs::remove(doc);
    EXPECT_EQ(scrivi(test::documentoCompleto(), {"", "", txt}).file.size(), 1U);
    EXPECT_FALSE(fs::exists(pdf) || fs::exists(doc));
}

TEST_F(FormatiDocumentoTest, AreTheSameBytesEachTime) {
    std::ignore = scrivi(test::documentoCompleto(), {pdf, doc, txt});
    const std::string prima = test::contenuto(pdf) + test::contenuto(doc) + test::contenuto(txt);
    std::ignore = scrivi(test::documentoCompleto(), {pdf, doc, txt});
    EXPECT_EQ(test::contenuto(pdf) + test::contenuto(doc) + test::contenuto(txt), prima);
}

TEST_F(FormatiDocumentoTest, KeepAWordProcessorFileThatSomebodyElseWrote) {
    test::metti(doc, "mio");
    const auto scritto = scrivi(test::documentoCompleto(), {"", doc, ""});
    EXPECT_EQ(test::contenuto(scritto.conservato), "mio");
}

TEST_F(FormatiDocumentoTest, TellOfADiskThatIsFull) {
    const test::DiscoPieno disco(100);
    for (const FormatiDocumento& formati :
         {FormatiDocumento{pdf, "", ""}, FormatiDocumento{"", doc, ""}, {"", "", txt}})
        EXPECT_THROW(std::ignore = scrivi(test::documentoCompleto(), formati, disco),
                     base::ErroreFile);
    EXPECT_FALSE(fs::exists(pdf) || fs::exists(doc) || fs::exists(txt));
}

}  // namespace
}  // namespace korven::batch
