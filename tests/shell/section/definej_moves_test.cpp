// The section form: its cursor, its keys and its sketch.

#include <QImage>
#include <QPushButton>
#include <QRadioButton>

#include "project/project_data.hpp"
#include "shell/section/definej.hpp"
#include "shell/section/definej_fields.hpp"
#include "shell/section/section_sketch_view.hpp"
#include "support/section_form_bench.hpp"

namespace korven::shell {
namespace {

using project::Sezione;
using test::opzioniSezione;
using FormaSezione = test::BancoSezione;

TEST_F(FormaSezione, ConfirmsByEnterFromAField) {
    for (const auto tasto : {Qt::Key_Return, Qt::Key_Enter}) {
        apri();
        scrivi("Text7", tasto == Qt::Key_Return ? "900" : "800");
        QTest::keyClick(&trova("Text7"), tasto);
        EXPECT_FALSE(forma->isVisible());
        EXPECT_EQ(sezione.spessoreDiaframma, tasto == Qt::Key_Return ? 90 : 80);
    }
}

TEST_F(FormaSezione, HasTheAccessKeysOfItsButtons) {
    apri();
    EXPECT_EQ(trova<QPushButton>("Command1").shortcut(), QKeySequence("Alt+C"));
    EXPECT_EQ(trova<QPushButton>("Command2").shortcut(), QKeySequence("Alt+A"));
}

TEST_F(FormaSezione, GoesThroughItsFieldsInTheOrderInWhichTheyAreRead) {
    const std::vector<const char*> attesi[] = {
        {"Text5", "Text6", "Text1", "Text2", "Text3", "Text4", "Text7"},
        {"Text11", "Text12", "Text10"},
        {"Text16", "Text17", "Text9", "Text13", "Text19"},
        {"Text22", "Text20", "Text25", "Text21", "Text26", "Text24", "Text23"}};
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) sezione.*project::tipiSezione[j] = i == j;
        apri();
        QStringList giro{QLatin1String(opzioniSezione[i])};
        for (const char* nome : attesi[i]) giro << QLatin1String(nome);
        giro << "Text15"
             << "Text8"
             << "Text18"
             << "Text14"
             << "Command1"
             << "Command2";
        for (const QString& nome : giro) {
            EXPECT_EQ(forma->focusWidget()->objectName(), nome);
            QTest::keyClick(forma->focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(forma->focusWidget()->objectName(), giro.front()) << "around again";
    }
}

TEST_F(FormaSezione, GoesUpAndDownByTheArrowKeys) {
    apri();
    trova("Text5").setFocus();
    QTest::keyClick(forma->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(forma->focusWidget()->objectName(), "Text6");
    QTest::keyClick(forma->focusWidget(), Qt::Key_Up);
    EXPECT_EQ(forma->focusWidget()->objectName(), "Text5");
}

TEST_F(FormaSezione, RedrawsTheSketchWhileANumberIsTyped) {
    apri();
    auto& schizzo = *trova("Frame1").findChild<VistaSchizzo*>();
    const auto scritta = [&] {
        for (const auto& quota : schizzo.schizzo().quote)
            if (quota.campo == masks::campoSezione(&Sezione::spessoreDiaframma))
                return quota.scritta;
        return std::string();
    };
    scrivi("Text7", "75");
    EXPECT_EQ(scritta(), "H = 75");
    QTest::keyClicks(&trova("Text7"), "0");
    EXPECT_EQ(scritta(), "H = 750");
    EXPECT_EQ(sezione, prima) << "typing stores nothing";
}

TEST_F(FormaSezione, TakesAClickOnADimensionToItsField) {
    apri();
    auto& schizzo = *trova("Frame1").findChild<VistaSchizzo*>();
    for (const auto& quota : schizzo.schizzo().quote) {
        QTest::mouseClick(&schizzo, Qt::LeftButton, {},
                          schizzo.postoTesto(quota).center().toPoint());
        EXPECT_EQ(forma->focusWidget()->objectName(), campiForma[quota.campo].controllo);
    }
    QTest::mouseClick(&schizzo, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(forma->focusWidget()->objectName(),
              campiForma[schizzo.schizzo().quote.back().campo].controllo);
}

TEST_F(FormaSezione, PaintsTheDimensionOfTheFocusInAnotherColour) {
    apri();
    auto& schizzo = *trova("Frame1").findChild<VistaSchizzo*>();
    const auto colorati = [&] {
        const QImage immagine = schizzo.grab().toImage();
        int quanti = 0;
        for (int y = 0; y < immagine.height(); ++y)
            for (int x = 0; x < immagine.width(); ++x) {
                const QColor c = immagine.pixelColor(x, y);
                quanti += c.red() > 150 && c.green() < 110 && c.blue() < 90;
            }
        return quanti;
    };
    EXPECT_EQ(colorati(), 0) << "the focus is on the options";
    trova("Text7").setFocus();
    EXPECT_GT(colorati(), 50);
}

TEST_F(FormaSezione, TellsWhatANumberIsReadAsWhileItIsTyped) {
    apri();
    trova("Text7").setFocus();
    const QString spiegazione = aiuto();
    scrivi("Text7", "80,5");
    EXPECT_EQ(aiuto(), "letto come 80: il segno decimale è il punto\n" + spiegazione);
    scrivi("Text7", "80.5");
    EXPECT_EQ(aiuto(), spiegazione);
}

TEST_F(FormaSezione, TakesFieldsAndTheTypeBackByKeysAndDoesThemAgain) {
    apri();
    const QString spessore = trova<QLineEdit>("Text7").text();
    trova("Text7").setFocus();
    scrivi("Text7", "800");
    premi("Option2");
    trova("Text11").setFocus();
    scrivi("Text11", "273");
    const auto tasto = [this](Qt::Key quale) {
        QTest::keyClick(forma->focusWidget(), quale, Qt::ControlModifier);
    };
    project::Sezione seguita;
    QObject::connect(forma.get(), &DefinEJ::digitata, [&] { seguita = forma->letta(); });
    tasto(Qt::Key_Z);
    EXPECT_NE(trova<QLineEdit>("Text11").text(), "273");
    EXPECT_EQ(seguita.paliDiamEst, sezione.paliDiamEst);
    EXPECT_TRUE(aiuto().startsWith("Annullato: campo diametro esterno dei pali\n"));
    tasto(Qt::Key_Z);
    EXPECT_EQ(mostrato(), 0);
    EXPECT_TRUE(trova<QRadioButton>("Option1").isChecked());
    EXPECT_TRUE(trova("Option1").hasFocus());
    EXPECT_TRUE(aiuto().startsWith("Annullato: tipo di sezione\n"));
    tasto(Qt::Key_Z);
    EXPECT_EQ(trova<QLineEdit>("Text7").text(), spessore);
    EXPECT_TRUE(trova("Text7").hasFocus());
    tasto(Qt::Key_Z);
    EXPECT_TRUE(aiuto().startsWith("Nulla da annullare\n"));
    for (int i = 0; i < 3; ++i) tasto(Qt::Key_Y);
    EXPECT_EQ(mostrato(), 1);
    EXPECT_EQ(trova<QLineEdit>("Text7").text(), "800");
    EXPECT_EQ(trova<QLineEdit>("Text11").text(), "273");
    EXPECT_TRUE(trova("Text11").hasFocus());
    EXPECT_TRUE(aiuto().startsWith("Ripetuto: campo diametro esterno dei pali\n"));
}

}  // namespace
}  // namespace korven::shell
