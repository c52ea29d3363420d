#include "shell/help/documents.hpp"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <filesystem>

#include "base/folders/program_folder.hpp"
#include "shell/help/browser.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/small_help.hpp"
#include "support/temporary_folder.hpp"

namespace korven::shell {
namespace {

namespace fs = std::filesystem;

/// Takes the files that would go to a program of the desktop: its slot for addresses is the one
/// that they are handed to.
class Aperti : public QTextBrowser {
 public:
    Aperti() {
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "setSource");
        connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& indirizzo) {
            file.push_back(indirizzo.toLocalFile().toStdString());
        });
    }
    ~Aperti() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    std::vector<std::string> file;
};

class Documenti : public ::testing::Test {
 protected:
    Documenti() {
        fs::create_directory(sorgenti / "docs");
        test::metti(sorgenti / "README.md", "");
        test::metti(sorgenti / "docs/theory.md", "");
        fs::create_symlink(sorgenti / "README.md", programma / "documenti.md");
        base::impostaCartellaProgramma(programma.percorso());
    }
    ~Documenti() override { base::impostaCartellaProgramma({}); }

    QApplication& app = test::applicazione();
    const test::CartellaProvvisoria sorgenti, programma;
    test::DialogoFinto dialogo;
    Aperti aperti;
};

TEST_F(Documenti, OpenInAProgramOfTheDesktop) {
    apriDocumento("docs/theory", dialogo);
    apriDocumento("README", dialogo);
    EXPECT_EQ(aperti.file,
              (std::vector<std::string>{sorgenti / "docs/theory.md", sorgenti / "README.md"}));
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Documenti, ThatAreMissingAreToldOf) {
    apriDocumento("docs/manca", dialogo);
    EXPECT_TRUE(aperti.file.empty());
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_TRUE(dialogo.messaggi[0].testo.starts_with("Accanto al programma"));
}

TEST_F(Documenti, AreToldOfByALinkWhileThePageStays) {
    const auto guida = help::leggiGuida("m.hlp", test::guidaPiccola());
    VistaGuida vista(guida, nullptr);
    std::vector<std::string> chiesti;
    vista.documento = [&](const std::string& nome) { chiesti.push_back(nome); };
    vista.vai(*help::paginaDiNome(guida, "apri"));
    vista.setSource(QUrl(QStringLiteral("documento:docs/theory")));
    EXPECT_EQ(chiesti, (std::vector<std::string>{"docs/theory"}));
    EXPECT_EQ(vista.paginaDi(vista.source()), help::paginaDiNome(guida, "apri"));
}

}  // namespace
}  // namespace korven::shell
