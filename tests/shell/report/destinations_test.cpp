// The ways out of the program that a report has, from the menu to the window or the file.

#include "shell/report/destinations.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QPrinter>

#include "base/code_page.hpp"
#include "commands/desktop_program.hpp"
#include "project/project_file.hpp"
#include "shell/main/menu1.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/document_ports.hpp"
#include "support/form_setup.hpp"
#include "support/pdf_pages.hpp"
#include "support/plain_masks.hpp"
#include "support/progress_double.hpp"
#include "support/sample_projects.hpp"

namespace korven::shell {
namespace {

using Dialogo = test::AllaProssimaFinestra<QFileDialog>;

class Uscite : public testing::Test {
 protected:
    Uscite() {
        stampante.setOutputFormat(QPrinter::PdfFormat);  // none of this machine's
        ::unsetenv("windir");
        ::setenv("PATH", (strumenti.percorso() + ":/usr/bin:/bin").c_str(), 1);
        script(strumenti / "xdg-open", "echo \"$1\" > \"$0.visto\"");
        script(outdoc, "echo documento > \"${1%TAB}doc\"");
        maschere.leggiMaschere(test::maschereSemplici(ambiente.lavori));
        commands::FormeProgramma forme;
        collegaRelazione(
            forme, finestra, dialogo, [this]() -> QPrinter& { return stampante; }, outdoc);
        programma = std::make_unique<commands::Programma>(dialogo, nomi, finestra, avanzamento,
                                                          maschere, forme);
        finestra.collega(*programma);
        finestra.show();
    }
    ~Uscite() override { ::setenv("PATH", percorsi.c_str(), 1); }

    static void script(const std::string& nome, const std::string& testo) {
        test::metti(nome, "#!/bin/sh\n" + testo + "\n");
        ::chmod(nome.c_str(), 0755);
    }
    void apriMuro() {
        test::metti(muro, base::inCp1252(project::testoProgetto(test::progettoSemplice())));
        programma->documento().apri(muro);
    }
    void scegli(const char* voce) { finestra.findChild<QAction*>(voce)->trigger(); }
    [[nodiscard]] bool esiste(const char* nome) const {
        return std::filesystem::exists(ambiente.lavori / nome);
    }

    QApplication& app = test::applicazione();
    const std::string percorsi = std::getenv("PATH");
    const test::CartellaProvvisoria strumenti;
    test::AmbienteDocumento ambiente;
    const std::string muro = ambiente.lavori / "muro.kvd";
    const std::string outdoc = strumenti / "outdoc";
    test::DialogoFinto dialogo;
    test::DialogoFileFinto nomi;
    test::AvanzamentoFinto avanzamento;
    QPrinter stampante{QPrinter::HighResolution};
    masks::Maschere maschere;
    Menu1 finestra;
    std::unique_ptr<commands::Programma> programma;
};

TEST_F(Uscite, AreRefusedWithoutAProject) {
    for (const char* voce : {"StampaVideo", "StampaTabulati", "espotab", "espotabtxt"})
        scegli(voce);
    ASSERT_EQ(dialogo.messaggi.size(), 4u);
    for (const auto& box : dialogo.messaggi)
        EXPECT_EQ(box.testo, "Non e' possibile produrre un output prima di aver aperto un file.");
    EXPECT_EQ(finestra.findChild<Form1*>(), nullptr);
}

TEST_F(Uscite, ShowThePreviewBesideTheMainForm) {
    apriMuro();
    scegli("StampaVideo");
    auto* forma = finestra.findChild<Form1*>();
    ASSERT_NE(forma, nullptr);
    EXPECT_TRUE(forma->isVisible());
    EXPECT_TRUE(forma->isWindow());
    EXPECT_EQ(forma->windowTitle(), "KORVEN 32 - muro.kvd");
    EXPECT_EQ(dialogo.puntatori.back(), base::Puntatore::normale);
    auto& elenco = test::controllo<QListView>(*forma, "List1");
    const int righe = elenco.model()->rowCount();
    EXPECT_GT(righe, 40);
    scegli("StampaVideo");
    EXPECT_EQ(elenco.model()->rowCount(), 2 * righe);
    forma->close();
    scegli("StampaVideo");
    EXPECT_EQ(elenco.model()->rowCount(), righe);
}

TEST_F(Uscite, PrintIntoAPdfFileThatTheUserNamesWhereThereIsNoPrinter) {
    apriMuro();
    base::Puntatore allaDomanda = base::Puntatore::clessidra;
    QString proposto;
    const Dialogo risposta([&](QFileDialog& d) {
        allaDomanda = dialogo.puntatori.back();
        proposto = d.findChild<QLineEdit*>()->text();
        static_cast<QDialog&>(d).accept();
    });
    scegli("StampaTabulati");
    EXPECT_TRUE(risposta.fatto);
    EXPECT_EQ(proposto, "muro-relazione.pdf");
    EXPECT_EQ(allaDomanda, base::Puntatore::normale);
    EXPECT_GE(test::paginePdf(test::contenuto(ambiente.lavori / "muro-relazione.pdf")), 2);
    EXPECT_EQ(dialogo.puntatori.back(), base::Puntatore::normale);
}

TEST_F(Uscite, PrintNothingWhenTheDialogIsCancelled) {
    apriMuro();
    const Dialogo risposta([](QFileDialog& d) { d.reject(); });
    scegli("StampaTabulati");
    EXPECT_TRUE(risposta.fatto);
    EXPECT_FALSE(esiste("muro-relazione.pdf"));
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Uscite, PrintToTheFileOfThePrinterSetUpAndTellWhenItFails) {
    apriMuro();
    stampante.setOutputFileName(QString::fromStdString(ambiente.lavori / "stampa.pdf"));
    scegli("StampaTabulati");
    EXPECT_GE(test::paginePdf(test::contenuto(ambiente.lavori / "stampa.pdf")), 2);
    stampante.setOutputFileName(QString::fromStdString(ambiente.lavori / "manca/stampa.pdf"));
    scegli("StampaTabulati");
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_EQ(dialogo.messaggi[0].testo,
              ambiente.lavori / "manca/stampa.pdf: la stampa non è riuscita");
}

TEST_F(Uscite, WriteTheTextAndShowItInTheDesktopsOwnProgram) {
    apriMuro();
    scegli("espotabtxt");
    EXPECT_TRUE(esiste("muro.txt"));
    EXPECT_EQ(test::contenuto(strumenti / "xdg-open.visto"), ambiente.lavori / "muro.txt\n");
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Uscite, AskForAnotherNameInTheirDialogOnNo) {
    apriMuro();
    test::metti(ambiente.lavori / "muro.txt", "di prima");
    dialogo.risposte = {base::Risposta::no};
    QString filtro, proposto;
    bool apre = false;
    const Dialogo risposta([&](QFileDialog& d) {
        filtro = d.nameFilters().front();
        proposto = d.findChild<QLineEdit*>()->text();
        apre = d.acceptMode() == QFileDialog::AcceptOpen;
        auto* riga = d.findChild<QLineEdit*>();
        d.activateWindow();
        riga->setFocus();
        ASSERT_TRUE(QTest::qWaitFor([&] { return riga->hasFocus(); }));
        riga->selectAll();
        QTest::keyClicks(riga, "altra.v2");
        QTest::keyClick(riga, Qt::Key_Return);
    });
    scegli("espotabtxt");
    EXPECT_EQ(filtro, "NotePad (*.txt)");
    EXPECT_EQ(proposto, "muro.txt");
    EXPECT_TRUE(apre);
    EXPECT_TRUE(esiste("altra.txt")) << "cut at the point among the last four characters";
    EXPECT_EQ(test::contenuto(ambiente.lavori / "muro.txt"), "di prima");
    EXPECT_EQ(dialogo.domande.size(), 1u);
}

TEST_F(Uscite, EndWithoutATextWhenThatDialogIsCancelled) {
    apriMuro();
    test::metti(ambiente.lavori / "muro.txt", "di prima");
    dialogo.risposte = {base::Risposta::no};
    const Dialogo risposta([](QFileDialog& d) { d.reject(); });
    scegli("espotabtxt");
    EXPECT_TRUE(risposta.fatto);
    EXPECT_EQ(test::contenuto(ambiente.lavori / "muro.txt"), "di prima");
    EXPECT_FALSE(std::filesystem::exists(strumenti / "xdg-open.visto"));
}

TEST_F(Uscite, WriteTheDocumentAndShowItInTheProgramOfTheEditorFile) {
    apriMuro();
    script(strumenti / "videoscrittura", "echo \"$1\" > \"$0.visto\"");
    test::metti(ambiente.programma / "editor.cfg", strumenti / "videoscrittura\r\n");
    scegli("espotab");
    EXPECT_EQ(test::contenuto(ambiente.lavori / "muro.doc"), "documento\n");
    const std::string visto = strumenti / "videoscrittura.visto";
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return test::contenuto(visto) == ambiente.lavori / "muro.doc\n"; }));
    EXPECT_TRUE(dialogo.messaggi.empty());
}

TEST_F(Uscite, TellWhereTheDocumentIsWhenNothingShowsIt) {
    apriMuro();
    scegli("espotab");
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_TRUE(dialogo.messaggi[0].testo.starts_with(
        "Non è stato trovato nè un visualizzatore nè un editor di testi per il formato DOC."));
}

// The converter waits for a file that only a served event puts there.
TEST_F(Uscite, KeepTheProgramAliveWhileTheyWaitForTheConverter) {
    apriMuro();
    const std::string segno = strumenti / "segno";
    script(outdoc, "for i in $(seq 1 1000); do [ -e '" + segno +
                       "' ] && echo vivo > \"${1%TAB}doc\" && exit 0; sleep 0.01; done; exit 1");
    QTimer::singleShot(0, &finestra, [&] { test::metti(segno, ""); });
    scegli("espotab");
    EXPECT_EQ(test::contenuto(ambiente.lavori / "muro.doc"), "vivo\n");
}

TEST_F(Uscite, TellThatTheConverterFailedAndGoOn) {
    apriMuro();
    script(outdoc, "exit 3");
    scegli("espotab");
    ASSERT_EQ(dialogo.messaggi.size(), 1u);
    EXPECT_TRUE(dialogo.messaggi[0].testo.starts_with(ambiente.lavori / "muro.doc: "));
    EXPECT_EQ(dialogo.puntatori.back(), base::Puntatore::normale);
    scegli("espotabtxt");
    EXPECT_TRUE(esiste("muro.txt"));
}

}  // namespace
}  // namespace korven::shell
