// The main form: the projects that come into it, and what becomes of them when it closes.

#include <QMenu>

#include "base/file_error.hpp"
#include "shell/main/menu1.hpp"
#include "support/desktop_bench.hpp"
#include "support/form_setup.hpp"
#include "support/main_form_bench.hpp"

namespace korven::shell {
namespace {

using base::Risposta;
using project::fileCorrente;
using project::modificato;
using Menu1Test = test::BancoMenu1;

TEST_F(Menu1Test, DuplicatesNoProjectWhereNoneIsOpen) {
    apri();
    finestra.esegui(commands::voceMenu("duplica"));
    EXPECT_TRUE(nomi.proposteNuovo.empty());
    fileCorrente = ambiente.lavori / "muro.kvd";
    nomi.nuovi = {ambiente.lavori / "altro"};
    finestra.esegui(commands::voceMenu("duplica"));
    EXPECT_EQ(finestra.windowTitle(), "KORVEN 32 - altro");
    EXPECT_TRUE(finestra.findChild<QLabel*>("modifiche")->isVisible());
}

TEST_F(Menu1Test, OpensARecentProjectFromTheMenuThatListsThem) {
    apri();
    const std::string muro = scriviMuro(), altro = scriviMuro("altro.kvd");
    auto* menu = voce("recenti")->menu();
    const auto mostrate = [&] {
        menu->popup(QPoint(10, 10));
        menu->close();
        QStringList testi;
        for (const auto* azione : menu->actions())
            testi += (azione->isEnabled() ? "" : "off ") + azione->text().section(" - ", 0, 0);
        return testi.join(", ");
    };
    EXPECT_EQ(mostrate(), "off nessun progetto recente");
    programma->documento().apri(muro);
    programma->documento().apri(altro);
    EXPECT_EQ(mostrate(), "&1 altro.kvd, &2 muro.kvd, , &Dimentica l'elenco");
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no};
    menu->actions()[1]->trigger();
    EXPECT_EQ(fileCorrente, altro);
    menu->actions()[1]->trigger();
    EXPECT_EQ(fileCorrente, muro);
    EXPECT_FALSE(finestra.findChild<QLabel*>("modifiche")->isVisible());
    EXPECT_EQ(mostrate(), "&1 muro.kvd, &2 altro.kvd, , &Dimentica l'elenco");
    EXPECT_TRUE(menu->actions()[2]->isSeparator());
    menu->actions()[3]->trigger();
    EXPECT_EQ(mostrate(), "off nessun progetto recente");
}

TEST_F(Menu1Test, OpensADroppedProjectAfterTheQuestionAboutUnsavedWork) {
    apri();
    const std::string muro = scriviMuro();
    lascia(muro);
    EXPECT_EQ(fileCorrente, muro);
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no};
    const std::string altro = scriviMuro("altro.KVD");
    lascia(altro);
    EXPECT_EQ(fileCorrente, muro);
    lascia(altro);
    EXPECT_EQ(fileCorrente, ambiente.lavori / "altro.kvd");
    EXPECT_EQ(dialogo.domande.size(), 2u);
}

TEST_F(Menu1Test, TakesNothingElseThatIsDropped) {
    apri();
    test::metti(ambiente.lavori / "nota.txt", "x");
    lascia(ambiente.lavori / "nota.txt");
    EXPECT_FALSE(accettato);
    lascia(ambiente.lavori / "manca.kvd");
    EXPECT_FALSE(accettato);
    EXPECT_TRUE(fileCorrente.empty());
}

TEST_F(Menu1Test, TakesNoDropWhileADrawingIsShown) {
    apri();
    const std::string muro = scriviMuro();
    finestra.setEnabled(false);  // as the viewer does
    lascia(muro);
    EXPECT_FALSE(accettato);
    finestra.setEnabled(true);
    lascia(muro);
    EXPECT_TRUE(accettato);
    EXPECT_EQ(fileCorrente, muro);
}

// What the rescue at the end of the program finds: the project that was open, and unsaved.
TEST_F(Menu1Test, KeepsTheUnsavedProjectWhenADroppedFileIsNone) {
    apri();
    const std::string muro = scriviMuro();
    lascia(muro);
    modificato = true;
    dialogo.risposte = {Risposta::no};
    const std::string rotto = ambiente.lavori / "rotto.kvd";
    test::metti(rotto, "due\r\n");
    EXPECT_THROW(programma->documento().apri(rotto), base::ErroreFile);
    EXPECT_EQ(fileCorrente, muro);
    EXPECT_TRUE(modificato);
    EXPECT_EQ(project::Progetto, test::progettoSemplice());
}

TEST_F(Menu1Test, StaysOpenOnCancelFromTheExitAndFromItsCloseBox) {
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::annulla, Risposta::no};
    voce("fine")->trigger();
    EXPECT_TRUE(finestra.isVisible());
    EXPECT_FALSE(finestra.close());
    EXPECT_TRUE(finestra.isVisible());
    EXPECT_TRUE(finestra.close());
    EXPECT_FALSE(finestra.isVisible());
    EXPECT_EQ(dialogo.domande.size(), 3u);
}

TEST_F(Menu1Test, AsksOnceWhenTheExitClosesTheForm) {
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    modificato = true;
    dialogo.risposte = {Risposta::no};
    voce("fine")->trigger();
    EXPECT_FALSE(finestra.isVisible());
    EXPECT_EQ(dialogo.domande.size(), 1u);
}

TEST_F(Menu1Test, ClosesWithoutASecondQuestionWhenTheSessionEnds) {
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    modificato = true;
    dialogo.risposte = {Risposta::annulla, Risposta::no};
    EXPECT_FALSE(finestra.sessioneFinisce(true));
    EXPECT_TRUE(finestra.sessioneFinisce(true));
    EXPECT_TRUE(finestra.close());
    EXPECT_EQ(dialogo.domande.size(), 2u);
}

TEST_F(Menu1Test, AsksAgainWhenTheSessionGoesOnAndTheProjectWithIt) {
    apri();
    fileCorrente = ambiente.lavori / "muro.kvd";
    modificato = true;
    dialogo.risposte = {Risposta::no, Risposta::annulla, Risposta::no, Risposta::annulla};
    EXPECT_TRUE(finestra.sessioneFinisce(true));
    voce("EditFasi")->trigger();  // another program has called the end off
    EXPECT_FALSE(finestra.close());
    EXPECT_TRUE(finestra.sessioneFinisce(true));
    EXPECT_TRUE(finestra.sessioneFinisce(false));  // nobody to ask: rescued, and not answered
    EXPECT_FALSE(finestra.close());
    EXPECT_EQ(dialogo.domande.size(), 4u);
}

}  // namespace
}  // namespace korven::shell
