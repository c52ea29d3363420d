// Every window of the program on small screens, in all languages: its frame lies on the screen, and
// no text is wider or higher than what holds it. Qt takes screen and scale at its start alone, so
// each screen has a process of its own: this program once more.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTableView>
#include <QToolButton>

#include "base/language.hpp"
#include "commands/start/example_folders.hpp"
#include "help/pages.hpp"
#include "review/remark_counts.hpp"
#include "safety/words.hpp"
#include "shell/dialogo_qt.hpp"
#include "shell/forms/elided_label.hpp"
#include "shell/forms/help_strip.hpp"
#include "shell/forms/leader_label.hpp"
#include "shell/help/guida.hpp"
#include "shell/main/informazioni.hpp"
#include "shell/main/menu1.hpp"
#include "shell/main/selezling.hpp"
#include "shell/pens/editacfg.hpp"
#include "shell/remarks/remarks_window.hpp"
#include "shell/report/conf_stampa.hpp"
#include "shell/report/form1.hpp"
#include "shell/rescue/rescue_form.hpp"
#include "shell/results/results_window.hpp"
#include "shell/run/temp_calc.hpp"
#include "shell/safety/safety_window.hpp"
#include "shell/tools/keys_window.hpp"
#include "shell/tools/pattern_choice.hpp"
#include "support/annex_ports.hpp"
#include "support/code_ports.hpp"
#include "support/comparison_ports.hpp"
#include "support/delivered_program.hpp"
#include "support/desktop_bench.hpp"
#include "support/dialog_double.hpp"
#include "support/open_project.hpp"
#include "support/sample_offer.hpp"
#include "support/sample_remarks.hpp"
#include "support/study_ports.hpp"
#include "support/viewer_setup.hpp"

namespace korven::shell {
namespace {

constexpr QSize cornice(8, 32);  // what a desktop draws around a window

std::string nomeDi(const QWidget& pezzo) {
    return std::string(pezzo.metaObject()->className()) + " " + pezzo.objectName().toStdString();
}

// The room that the text of a control asks for, in the width that it has; nothing for one without
// text, and for a line that gives up its middle by design.
QSize ingombro(const QWidget& pezzo) {
    const QFontMetrics misure = pezzo.fontMetrics();
    const auto diUnaRiga = [&](const QString& testo) {
        return testo.isEmpty() ? QSize() : misure.size(Qt::TextShowMnemonic, testo);
    };
    if (dynamic_cast<const EtichettaAccorciata*>(&pezzo) != nullptr) return {};
    if (const auto* puntini = dynamic_cast<const EtichettaPuntinata*>(&pezzo))
        return {misure.horizontalAdvance(puntini->accessibleName()), misure.height()};
    if (const auto* etichetta = qobject_cast<const QLabel*>(&pezzo)) {
        if (etichetta->text().isEmpty()) return {};
        if (!etichetta->wordWrap()) return etichetta->sizeHint();
        return {1, etichetta->heightForWidth(etichetta->width())};
    }
    if (const auto* bottone = qobject_cast<const QAbstractButton*>(&pezzo))
        return diUnaRiga(bottone->text());
    if (const auto* gruppo = qobject_cast<const QGroupBox*>(&pezzo))
        return diUnaRiga(gruppo->title());
    if (const auto* scelta = qobject_cast<const QComboBox*>(&pezzo))
        return diUnaRiga(scelta->currentText());
    return {};
}

// What lies outside of one that holds it is not seen, unless that one scrolls.
bool inVista(const QWidget& pezzo) {
    for (const QWidget* qui = &pezzo; !qui->isWindow(); qui = qui->parentWidget()) {
        const QWidget* sopra = qui->parentWidget();
        if (qobject_cast<const QAbstractScrollArea*>(sopra->parentWidget()) != nullptr) return true;
        if (!sopra->rect().contains(qui->geometry())) return false;
    }
    return true;
}

void controllaTestate(const QTableView& griglia) {
    QFont grassetto = griglia.font();
    grassetto.setBold(true);  // as that of the current column is
    for (int c = 0; c < griglia.model()->columnCount(); ++c)
        EXPECT_LE(QFontMetrics(grassetto)
                      .size(0, griglia.model()->headerData(c, Qt::Horizontal).toString())
                      .width(),
                  griglia.columnWidth(c))
            << "column " << c;
}

void controllaTesti(const QWidget& finestra) {
    for (const auto* griglia : finestra.findChildren<QTableView*>()) controllaTestate(*griglia);
    for (const auto* pezzo : finestra.findChildren<QWidget*>()) {
        if (!pezzo->isVisible() || pezzo->window() != &finestra) continue;
        const QSize voluto = ingombro(*pezzo);
        if (voluto.isEmpty()) continue;
        EXPECT_TRUE(voluto.width() <= pezzo->width() && voluto.height() <= pezzo->height())
            << nomeDi(*pezzo) << ": " << voluto.width() << "x" << voluto.height() << " in "
            << pezzo->width() << "x" << pezzo->height();
        EXPECT_TRUE(inVista(*pezzo)) << nomeDi(*pezzo) << " is cut";
    }
}

void controllaCornice(const QWidget& finestra) {
    const QRect schermo = finestra.screen()->availableGeometry();
    EXPECT_TRUE(schermo.contains(finestra.geometry()))
        << finestra.x() << "," << finestra.y() << " " << finestra.width() << "x"
        << finestra.height() << " on " << schermo.width() << "x" << schermo.height();
    EXPECT_LE(finestra.width(), schermo.width() - cornice.width());
    EXPECT_LE(finestra.height(), schermo.height() - cornice.height());
}

void controlla(QWidget& finestra) {
    SCOPED_TRACE(nomeDi(finestra));
    finestra.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&finestra));
    QApplication::processEvents();
    controllaCornice(finestra);
    controllaTesti(finestra);
}

void controllaGuida(const std::string& nome) {
    FinestraGuida guida(
        help::leggiGuida(nome, test::contenuto(std::string(KORVEN_PROGRAM_FOLDER) + "/" + nome)));
    controlla(guida);
}

// Wide enough that it must be broken into lines.
const std::string messaggioLungo =
    "/home/" + std::string(60, 'm') + "/muro.kvd: " + std::string(30, 'x') + " " +
    std::string(200, 'y') + "\n\nIl programma viene chiuso.\nparola " + std::string(40, 'z');

void controllaBox(DialogoQt& box) {
    const test::AllaProssimaFinestra<QMessageBox> vista([](QMessageBox& b) {
        controlla(b);
        b.reject();
    });
    box.messaggio(messaggioLungo, "KORVEN 32", base::Icona::stop);
    EXPECT_TRUE(vista.fatto);
}

// What follows the open project, with one whose sentences are long.
void controllaSulProgetto(Menu1& menu1) {
    const test::ProgettoAperto aperto(test::progettoSemplice());
    VitaProgetto vita;
    vita.guarda();
    FinestraRisultati risultati(menu1, vita, [](const std::string&) {});
    FinestraSicurezza sicurezza(menu1, vita, [](const std::string&) {});
    test::DialogoFinto dialogo;
    FinestraAllegato allegato(menu1, vita, test::porteAllegato(dialogo), [](const std::string&) {});
    ASSERT_TRUE(QTest::qWaitFor([&] { return vita.vivo().lenti() != nullptr; }, 30000));
    controlla(risultati);
    controlla(sicurezza);
    controlla(allegato);
    FinestraConfronto confronto(menu1, vita, test::porteConfronto(dialogo),
                                [](const std::string&) {});
    controlla(confronto);
    FinestraNorme norme(menu1, vita, test::porteNorme(dialogo), [](const std::string&) {});
    norme.show();
    const auto* pdf = norme.findChild<QPushButton*>("pdf");
    ASSERT_TRUE(QTest::qWaitFor([&] { return pdf->isEnabled(); }, 30000));
    controlla(norme);
    FinestraStudio studio(menu1, vita, test::porteStudio(dialogo), [](const std::string&) {});
    controlla(studio);
}

// The line at the foot of the main form has room for what a run that found no rest leaves there,
// beside the sign of unsaved changes. Of letters twice as large the tool tip has the rest.
void controllaStato(Menu1& menu1) {
    menu1.findChild<QLabel*>("modifiche")->show();
    menu1.show();
    QCoreApplication::processEvents();
    auto& stato = *menu1.findChild<EtichettaAccorciata*>("stato");
    const safety::Diagnosi cade{
        .causa = safety::Causa::meccanismo, .fase = 20, .moto = {{false, 4.2, 1, 123.45}}};
    std::vector<safety::Diagnosi> diagnosi{cade};
    for (const auto ostacolo :
         {safety::Ostacolo::oscillazione, safety::Ostacolo::singolare, safety::Ostacolo::limite})
        diagnosi.push_back({.causa = safety::Causa::oscilla, .fase = 20, .ostacolo = ostacolo});
    for (const auto causa : {safety::Causa::nonDefinito, safety::Causa::nessunNumero})
        diagnosi.push_back({.causa = causa, .fase = 20});
    for (const safety::Diagnosi& d : diagnosi) {
        menu1.statoInBreve(safety::inPocheParole(d), safety::frase(d));
        EXPECT_EQ(stato.toolTip().toStdString(), safety::frase(d));
        if (stato.screen()->logicalDotsPerInch() > 96) continue;
        EXPECT_LE(stato.fontMetrics().horizontalAdvance(stato.text()), stato.contentsRect().width())
            << stato.text().toStdString();
    }
    menu1.hide();
}

void controllaTutte(test::ProgrammaConsegnato& programma) {
    test::DialogoFinto dialogo;
    programma.perOgniMaschera(dialogo, controlla);
    programma.conPannelliVivi(dialogo, controlla);
    programma.conPannelloStrati(dialogo, {}, controlla);
    programma.perOgniDialogoStrati(controlla);
    programma.perOgniTipoDiSezione(controlla);
    programma.conPannelloSezione(dialogo, controlla);
    DialoghiEditacfg porte;
    controlla(*std::make_unique<Editacfg>(porte, dialogo, nullptr));
    controlla(*std::make_unique<ConfStampa>(QStringList{"Courier New", "Arial"},
                                            ConfStampa::DialogoStampante{}, dialogo, nullptr));
    Menu1 menu1;
    controlla(menu1);
    controllaStato(menu1);
    FinestraOsservazioni osservazioni(menu1, test::azioniOsservazioni());
    osservazioni.mostra(test::osservazioniMiste(), review::conteggio(test::osservazioniMiste()));
    controlla(osservazioni);
    controllaSulProgetto(menu1);
    Selezling lingue({5, 3, 2, 1, 4, 6});
    controlla(lingue);
    Selezling altre({5, 3, 2, 1, 4, 6}, base::linguaCorrente());
    controlla(altre);
    SceltaModello modelli(
        commands::modelli(commands::cartellaEsempi(base::siglaLingua(base::linguaCorrente()))));
    controlla(modelli);
    FinestraTasti tasti(menu1);
    controlla(tasti);
    Informazioni informazioni("File corrente: /HOME/ANNA/LAVORI/MURO", nullptr);
    controlla(informazioni);
    for (const std::size_t altri : {0, 2}) {
        test::OffertaDiProva prova;
        prova.altri = altri;
        if (altri > 0) prova.salvato = std::nullopt;
        const auto offerta = prova.offerta();
        controlla(*std::make_unique<FormaRecupero>(offerta, nullptr));
    }
    TempCalc corsa(nullptr);
    controlla(corsa);
    controllaGuida("module06" + std::string(base::siglaLingua(base::linguaCorrente())) + ".hlp");
    const test::CartellaProvvisoria cartella;
    test::metti(cartella / "muro.TAB", "#RESET\r\ntesto\r\n#ENDDOCUMENT\r\n");
    Form1 anteprima;
    anteprima.mostra(cartella / "muro.TAB");
    controlla(anteprima);
    DialogoQt box;
    controllaBox(box);
    EXPECT_TRUE(dialogo.messaggi.empty());
}

class VisoreSulloSchermo : public test::ProvaVisore {
 public:
    void TestBody() override {}
    void controllaVisore() {
        disegna();
        controlla(forma());
    }
};

struct Schermo {
    const char* nome;
    int larghezza, altezza;
    const char* scala;
    int puntiPerPollice;
};

void PrintTo(const Schermo& schermo, std::ostream* dove) { *dove << schermo.nome; }

// The last two show everything twice as large: the whole of the window, and its letters alone.
constexpr Schermo schermi[] = {{"Piccolo", 1024, 600, "1", 96},
                               {"ScalaUnQuarto", 1280, 750, "1.25", 96},
                               {"ScalaUnMezzo", 1536, 900, "1.5", 96},
                               {"ScalaDoppia", 1920, 1080, "2", 96},
                               {"CaratteriDoppi", 1920, 1080, "1", 192}};

constexpr const char* schermoDescritto = "KORVEN_TEST_SCREEN";

class Finestre : public ::testing::TestWithParam<Schermo> {};

void guardaQui(const Schermo& schermo) {
    auto& app = test::applicazione();
    const test::UtenteNuovo utente;
    QFont carattere = app.font();
    carattere.setPointSize(9);  // that of desktops
    QApplication::setFont(carattere);
    const QSize misura = QGuiApplication::primaryScreen()->geometry().size() *
                         QGuiApplication::primaryScreen()->devicePixelRatio();
    ASSERT_EQ(misura, QSize(schermo.larghezza, schermo.altezza));
    ASSERT_EQ(QGuiApplication::primaryScreen()->logicalDotsPerInch(), schermo.puntiPerPollice);
    for (int lingua = 1; lingua <= 6; ++lingua) {
        SCOPED_TRACE(lingua);
        test::ProgrammaConsegnato programma(lingua);
        controllaTutte(programma);
    }
    VisoreSulloSchermo().controllaVisore();
}

TEST_P(Finestre, LieOnTheScreenWithAllTheirTexts) {
    const Schermo& schermo = GetParam();
    if (std::getenv(schermoDescritto) != nullptr) return guardaQui(schermo);
    const test::CartellaProvvisoria cartella;
    const std::string dpi = std::to_string(schermo.puntiPerPollice);
    test::metti(cartella / "schermo.json",
                R"({"screens":[{"name":"s","x":0,"y":0,"dpr":1,"logicalDpi":)" + dpi +
                    R"(,"logicalBaseDpi":)" + dpi + R"(,"width":)" +
                    std::to_string(schermo.larghezza) + R"(,"height":)" +
                    std::to_string(schermo.altezza) + "}]}");
    auto ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QLatin1String(schermoDescritto),
                    QString::fromStdString(cartella / "schermo.json"));
    ambiente.insert(QStringLiteral("QT_SCALE_FACTOR"), QLatin1String(schermo.scala));
    QProcess figlio;
    figlio.setProcessEnvironment(ambiente);
    figlio.setProcessChannelMode(QProcess::MergedChannels);
    const auto* questa = ::testing::UnitTest::GetInstance()->current_test_info();
    figlio.start(
        "/proc/self/exe",
        {QStringLiteral("--gtest_filter=%1.%2").arg(questa->test_suite_name(), questa->name())});
    ASSERT_TRUE(figlio.waitForFinished(100000));
    const std::string detto = figlio.readAll().toStdString();
    EXPECT_EQ(figlio.exitCode(), 0) << detto;
    EXPECT_EQ(figlio.exitStatus(), QProcess::NormalExit) << detto;
    EXPECT_NE(detto.find("[  PASSED  ] 1 test."), std::string::npos) << detto;
}

INSTANTIATE_TEST_SUITE_P(Schermi, Finestre, ::testing::ValuesIn(schermi),
                         [](const auto& caso) { return std::string(caso.param.nome); });

}  // namespace
}  // namespace korven::shell
