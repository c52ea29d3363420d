// Captions that are together in a form or a box share no access key, in any language: of two that
// do, the key presses neither and only walks between them. menu1_test.cpp looks at the menus.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFileDialog>
#include <QKeySequence>
#include <QLabel>
#include <QMessageBox>
#include <map>

#include "base/language.hpp"
#include "help/pages.hpp"
#include "shell/dialogo_qt.hpp"
#include "shell/file_dialogs_qt.hpp"
#include "shell/help/guida.hpp"
#include "shell/main/informazioni.hpp"
#include "shell/masks/base1.hpp"
#include "shell/pens/editacfg.hpp"
#include "shell/remarks/remarks_window.hpp"
#include "shell/report/conf_stampa.hpp"
#include "shell/rescue/rescue_form.hpp"
#include "shell/results/results_window.hpp"
#include "shell/run/temp_calc.hpp"
#include "shell/safety/safety_window.hpp"
#include "shell/section/definej.hpp"
#include "shell/tools/pattern_choice.hpp"
#include "support/annex_ports.hpp"
#include "support/code_ports.hpp"
#include "support/comparison_ports.hpp"
#include "support/delivered_program.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/form_setup.hpp"
#include "support/sample_offer.hpp"
#include "support/sample_remarks.hpp"
#include "support/small_help.hpp"
#include "support/study_ports.hpp"

namespace korven::shell {
namespace {

// The captions of one box or form that have an access key, by that key.
class Insieme {
 public:
    explicit Insieme(std::string dove) : dove_(std::move(dove)) {}

    void aggiungi(const QString& testo) {
        const QKeySequence tasto = QKeySequence::mnemonic(testo);
        if (tasto.isEmpty()) return;
        const auto [altro, nuovo] = perTasto_.emplace(tasto.toString(), testo);
        EXPECT_TRUE(nuovo) << dove_ << ": \"" << testo.toStdString() << "\" beside \""
                           << altro->second.toStdString() << '"';
    }
    [[nodiscard]] std::size_t quanti() const { return perTasto_.size(); }

 private:
    std::string dove_;
    std::map<QString, QString> perTasto_;
};

std::string luogo(const QWidget& finestra) {
    return "language " + std::to_string(base::linguaCorrente()) + ", " +
           finestra.objectName().toStdString() + " \"" + finestra.windowTitle().toStdString() + '"';
}

std::size_t tastiDi(const QWidget& finestra) {
    Insieme insieme(luogo(finestra));
    for (const auto* bottone : finestra.findChildren<QAbstractButton*>())
        if (bottone->window() == &finestra) insieme.aggiungi(bottone->text());
    for (const auto* etichetta : finestra.findChildren<QLabel*>())
        if (etichetta->window() == &finestra && etichetta->buddy() != nullptr)
            insieme.aggiungi(etichetta->text());
    return insieme.quanti();
}

// Each language in turn, over the texts and masks that are delivered.
class TastiDiScelta : public ::testing::TestWithParam<int> {
 protected:
    QApplication& app = test::applicazione();
    test::UtenteNuovo utente;
    test::ProgrammaConsegnato programma{GetParam()};
    test::DialogoFinto dialogo;
};

TEST_P(TastiDiScelta, DifferWithinEachFormThatAMaskDescribes) {
    programma.perOgniMaschera(dialogo, [](const QWidget& forma) {
        EXPECT_EQ(tastiDi(forma), dynamic_cast<const Base1*>(&forma) != nullptr ? 3U : 5U);
    });
}

TEST_P(TastiDiScelta, DifferBetweenTheLayersAndTheirPanelAndWithinItsDialogs) {
    programma.conPannelloStrati(dialogo, {},
                                [](const Base2_32& forma) { EXPECT_EQ(tastiDi(forma), 9U); });
    test::ProgrammaConsegnato::perOgniDialogoStrati(
        [](const QWidget& finestra) { EXPECT_GE(tastiDi(finestra), 6U); });
}

TEST_P(TastiDiScelta, DifferBetweenTheSectionAndItsPanelAndWithinItsDialogs) {
    test::ProgrammaConsegnato::conPannelloSezione(
        dialogo, [](const QWidget& finestra) { EXPECT_GE(tastiDi(finestra), 4U); });
}

TEST_P(TastiDiScelta, DifferWithinTheOtherForms) {
    project::Sezione sezione;
    bool modificato = false;
    EXPECT_GE(tastiDi(DefinEJ(sezione, modificato, nullptr)), 2U);
    DialoghiEditacfg porte;
    EXPECT_GE(tastiDi(Editacfg(porte, dialogo, nullptr)), 2U);
    EXPECT_EQ(tastiDi(ConfStampa({"Courier New"}, {}, dialogo, nullptr)), 3U);
    EXPECT_EQ(tastiDi(TempCalc(nullptr)), 1U);
    QWidget principale;
    EXPECT_EQ(tastiDi(FinestraOsservazioni(principale, test::azioniOsservazioni())), 3U);
    VitaProgetto vita;
    const auto guida = [](const std::string&) {};
    EXPECT_EQ(tastiDi(FinestraRisultati(principale, vita, guida)), 4U);
    EXPECT_EQ(tastiDi(FinestraSicurezza(principale, vita, guida)), 3U);
    EXPECT_EQ(tastiDi(FinestraAllegato(principale, vita, test::porteAllegato(dialogo), guida)),
              10U);
    EXPECT_EQ(tastiDi(FinestraConfronto(principale, vita, test::porteConfronto(dialogo), guida)),
              6U);
    EXPECT_EQ(tastiDi(FinestraNorme(principale, vita, test::porteNorme(dialogo), guida)), 9U);
    EXPECT_EQ(tastiDi(FinestraStudio(principale, vita, test::porteStudio(dialogo), guida)), 13U);
    EXPECT_EQ(tastiDi(SceltaModello({})), 2U);
    for (const bool salvato : {true, false}) {
        test::OffertaDiProva prova;
        if (!salvato) prova.salvato = std::nullopt;
        const auto offerta = prova.offerta();
        EXPECT_EQ(tastiDi(FormaRecupero(offerta, nullptr)), 3U);
    }
    static_cast<void>(tastiDi(Informazioni("File corrente: /MURO", nullptr)));
    static_cast<void>(tastiDi(FinestraGuida(help::leggiGuida("m.hlp", test::guidaPiccola()))));
}

TEST_P(TastiDiScelta, DifferWithinTheBoxes) {
    DialogoQt box;
    for (const auto& [pulsanti, quanti] :
         {std::pair{base::Pulsanti::siNo, 2U}, {base::Pulsanti::siNoAnnulla, 3U}}) {
        const test::AllaProssimaFinestra<QMessageBox> domanda([quanti = quanti](QMessageBox& b) {
            EXPECT_EQ(tastiDi(b), quanti);
            b.reject();
        });
        static_cast<void>(box.domanda("?", "!", pulsanti, base::Icona::domanda));
        EXPECT_TRUE(domanda.fatto);
    }
}

TEST_P(TastiDiScelta, DifferWithinTheFileDialogs) {
    DialogoFileQt nomi;
    const auto guarda = [](QFileDialog& d) {
        EXPECT_EQ(tastiDi(d), 5U);
        QTest::keyClick(&d, Qt::Key_Escape);
    };
    for (const std::function<void()>& apri : std::initializer_list<std::function<void()>>{
             [&] { EXPECT_EQ(nomi.apri(""), ""); }, [&] { EXPECT_EQ(nomi.nuovo(""), ""); },
             [&] { EXPECT_FALSE(nomi.salva("muro.kvd")); },
             [] { EXPECT_EQ(chiediNomeTxt(nullptr, "muro.txt"), ""); },
             [] { EXPECT_EQ(chiediProgetto(nullptr), ""); }}) {
        const test::AllaProssimaFinestra<QFileDialog> aperto(guarda);
        apri();
        EXPECT_TRUE(aperto.fatto);
    }
}

INSTANTIATE_TEST_SUITE_P(Language, TastiDiScelta, ::testing::Range(1, 7));

}  // namespace
}  // namespace korven::shell
