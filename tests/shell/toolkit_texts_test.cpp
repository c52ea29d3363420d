#include "shell/toolkit_texts.hpp"

#include <gtest/gtest.h>

#include <QDoubleSpinBox>
#include <QLocale>

#include "support/form_setup.hpp"

namespace korven::shell {
namespace {

std::string detto(const QTranslator& testi, const char* contesto, const char* testo) {
    return testi.translate(contesto, testo, nullptr, -1).toStdString();
}

TEST(TestiQt, AreThoseOfTheLanguageWhereTheSystemHasThem) {
    const char* parole[] = {"Nome", "Name", "Nom", "Nombre", "", "Nome"};
    for (int lingua = 1; lingua <= 6; ++lingua) {
        const auto testi = testiQt(lingua);
        if (!testi) GTEST_SKIP() << "Qt's translations are not installed";
        EXPECT_EQ(detto(*testi, "QFileSystemModel", "Name"), parole[lingua - 1]);
    }
    EXPECT_EQ(testiQt(0), nullptr);
    EXPECT_EQ(testiQt(7), nullptr);
}

// The program says "ficheiro" and "guardar"; "arquivo" and "salvar" beside them
// are another country's.
TEST(TestiQt, ArePortugueseAsInPortugal) {
    const auto testi = testiQt(6);
    if (!testi) GTEST_SKIP() << "Qt's translations are not installed";
    EXPECT_EQ(detto(*testi, "QFileDialog", "Files"), "Ficheiros");
    EXPECT_EQ(detto(*testi, "QFileDialog", "Show &hidden files"), "Mostrar ficheiros &ocultos");
    EXPECT_EQ(detto(*testi, "QFileDialog", "&Delete"), "&Eliminar");
    EXPECT_EQ(detto(*testi, "QPageSetupWidget", "Landscape"), "Horizontal");
    EXPECT_EQ(detto(*testi, "QPageSetupWidget", "Reverse portrait"), "Vertical invertida");
    EXPECT_EQ(detto(*testi, "QPageSetupWidget", "Margins"), "Margens");
    EXPECT_EQ(detto(*testi, "QFileDialog", "no text of Qt's"), "");
}

// The key tool tips and the window of keys name.
TEST(TestiQt, CallTheControlKeyInSpanishAsAllOtherTextsDo) {
    const auto testi = testiQt(4);
    if (!testi) GTEST_SKIP() << "Qt's translations are not installed";
    EXPECT_EQ(detto(*testi, "QShortcut", "Ctrl"), "Ctrl");
    EXPECT_EQ(detto(*testi, "QShortcut", "Shift"), "Mayúsculas");
}

TEST(SegnoDecimaleQt, IsThePointOnASystemOfCommas) {
    test::applicazione();
    const QLocale prima;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    segnoDecimaleQt();
    QDoubleSpinBox margine;
    margine.setMaximum(1e6);
    margine.setValue(1234.53);
    EXPECT_EQ(margine.text().toStdString(), "1234.53");
    QLocale::setDefault(prima);
}

}  // namespace
}  // namespace korven::shell
