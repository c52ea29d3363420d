#include "workbook/xlsx_file.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"
#include "support/xlsx_reader.hpp"
#include "workbook/cell_styles.hpp"
#include "workbook/sheets.hpp"

namespace korven::workbook {
namespace {

using test::brani;
using test::FoglioLetto;
using test::leggiXlsx;
using test::unpacked;

CartellaFogli cartella(tables::Prospetto p) {
    if (p.titolo.empty()) p.titolo = "Foglio";
    return {.titolo = "muro.kvd",
            .piede = "muro.kvd",
            .data = "2026-11-22",
            .grafici = "Grafici",
            .fogli = {{{"foglio", "sheet"}, std::move(p), "Una fonte."}},
            .diagrammi = {}};
}

tables::Prospetto dueColonne() {
    return {.titolo = {},
            .colonne = {{"z", "m", "", true}, {"Nome", "", "", false}},
            .righe = {{tables::profondita(1.0 / 3), tables::parola("=1+1 <&> \"è\"")},
                      {tables::senza("perché"), {}}},
            .note = {"Una nota."}};
}

std::string sediciCifre(double numero) {
    char testo[40];
    std::snprintf(testo, sizeof testo, "%.16G", numero);
    return testo;
}

TEST(Xlsx, WritesNumbersAsNumbersAndTextsAsTexts) {
    const FoglioLetto f = leggiXlsx(xlsx(cartella(dueColonne())))[0];
    EXPECT_EQ(f.nome, "Foglio");
    EXPECT_EQ(f.a(0, 0).testo, "Foglio - Una fonte.");
    EXPECT_EQ(f.a(1, 0).testo, "z [m]");
    EXPECT_EQ(f.a(1, 1).testo, "Nome");
    EXPECT_TRUE(f.a(2, 0).numero);
    EXPECT_EQ(f.a(2, 0).testo, "0.3333333333333333");
    EXPECT_FALSE(f.a(2, 1).numero);
    EXPECT_EQ(f.a(2, 1).testo, "=1+1 <&> \"è\"");
    EXPECT_EQ(f.a(5, 0).testo, "Una nota.");
    EXPECT_EQ(f.celle.size(), 6u) << "what has nothing to show is empty";
    EXPECT_EQ(f.xml.find("<f>"), std::string::npos) << "formulas";
}

TEST(Xlsx, KeepsTitleAndHeadsInPlace) {
    auto c = cartella(dueColonne());
    c.fogli[0].colonneFisse = 2;
    const std::string xml = leggiXlsx(xlsx(c))[0].xml;
    EXPECT_NE(xml.find("<pane xSplit=\"2\" ySplit=\"2\" topLeftCell=\"C3\""), std::string::npos);
    EXPECT_NE(xml.find("<autoFilter ref=\"A2:B4\"/>"), std::string::npos);
}

TEST(Xlsx, PrintsOnSheetsOfA4AcrossAsWideAsOnePage) {
    const std::string xml = leggiXlsx(xlsx(cartella(dueColonne())))[0].xml;
    EXPECT_NE(xml.find("<pageSetup paperSize=\"9\" fitToHeight=\"0\" orientation=\"landscape\""),
              std::string::npos)
        << xml;
}

TEST(Xlsx, MakesColumnsAsWideAsTheirTextsWithinReason) {
    auto p = dueColonne();
    p.righe[0][1] = tables::parola(std::string(200, 'x'));
    const std::string xml = leggiXlsx(xlsx(cartella(p)))[0].xml;
    const auto larghezze = brani(xml, " width=\"", "\"");
    ASSERT_EQ(larghezze.size(), 2u);
    EXPECT_NEAR(std::stod(larghezze[0]), 8.7, 0.1);
    EXPECT_NEAR(std::stod(larghezze[1]), 60.7, 0.1);
}

TEST(Xlsx, GivesALongTextTheLinesThatItNeedsWhereItIsAllowedThem) {
    auto p = dueColonne();
    p.righe[0][1] = tables::parola(std::string(150, 'x'));  // three lines of 57 characters
    auto c = cartella(p);
    const std::string riga = "<row r=\"3\" spans=\"1:2\" ht=\"45\" customHeight=\"1\">";
    EXPECT_EQ(leggiXlsx(xlsx(c))[0].xml.find(riga), std::string::npos);
    c.fogli[0].aCapo = true;
    EXPECT_NE(leggiXlsx(xlsx(c))[0].xml.find(riga), std::string::npos);
}

TEST(Xlsx, GivesEqualBytesForEqualWorkbooksWhateverTheClock) {
    const std::string byte = xlsx(cartella(dueColonne()));
    EXPECT_EQ(xlsx(cartella(dueColonne())), byte);
    const std::string origine = unpacked(byte, "docProps/core.xml");
    EXPECT_NE(origine.find(">2026-11-22T00:00:00Z</dcterms:created>"), std::string::npos)
        << origine;
    EXPECT_NE(origine.find(">2026-11-22T00:00:00Z</dcterms:modified>"), std::string::npos);
    auto senzaData = cartella(dueColonne());
    senzaData.data.clear();
    EXPECT_NE(unpacked(xlsx(senzaData), "docProps/core.xml").find(">1980-01-01T00:00:00Z<"),
              std::string::npos);
}

TEST(Xlsx, SaysWhyACellIsEmptyInARemarkOnIt) {
    const std::string byte = xlsx(cartella(dueColonne()));
    EXPECT_EQ(leggiXlsx(byte)[0].a(3, 0).testo, "");
    const std::string note = unpacked(byte, "xl/comments1.xml");
    EXPECT_EQ(brani(note, "<comment ref=\"", "\""), std::vector<std::string>{"A4"});
    EXPECT_NE(note.find("perché"), std::string::npos) << note;
    EXPECT_EQ(xlsx(cartella(dueColonne())), byte);
    auto p = dueColonne();
    p.righe.insert(p.righe.end(), {p.righe[1], p.righe[0], p.righe[1]});
    EXPECT_EQ(brani(unpacked(xlsx(cartella(p)), "xl/comments1.xml"), "<comment ref=\"", "\""),
              (std::vector<std::string>{"A4", "A7"}))
        << "one for two cells below one another";
}

TEST(Xlsx, CutsATextThatNoCellHoldsAtACharacter) {
    auto p = dueColonne();
    std::string lungo;
    for (int i = 0; i < 40000; ++i) lungo += "è";
    p.righe[0][1] = tables::parola(lungo);
    EXPECT_EQ(leggiXlsx(xlsx(cartella(p)))[0].a(2, 1).testo.size(), 2 * massimoTestoCella);
}

TEST(Xlsx, DrawsDepthDownwardsFromTheCellsOfTheTable) {
    const auto fascicolo = dossier::fascicolo(test::progettoSemplice());
    const std::string byte = xlsx(fogli(fascicolo));
    EXPECT_EQ(leggiXlsx(byte).back().nome, "Grafici");
    const std::string xml = unpacked(byte, "xl/charts/chart2.xml");
    EXPECT_NE(xml.find("<c:orientation val=\"maxMin\"/><c:max val=\"12\"/><c:min val=\"0\"/>"),
              std::string::npos)
        << xml;
    const auto formule = brani(xml, "<c:f>", "</c:f>");
    ASSERT_EQ(formule.size(), 4u);
    const auto righe = std::to_string(fascicolo.parete.fasi[0].y.size() + 2);
    EXPECT_EQ(formule[0], "Inviluppo!$E$3:$E$" + righe);
    EXPECT_EQ(formule[1], "Inviluppo!$B$3:$B$" + righe);
}

// Sixteen digits: the seventeenth is beyond what the format's writer keeps.
TEST(Xlsx, HoldsEveryNumberOfTheDossierInItsCell) {
    const auto dati = test::leggiMuro(std::string(KORVEN_EXAMPLES) + "/diaframma_due_ordini.kvd");
    const CartellaFogli c = fogli(dossier::fascicolo(dati));
    const auto letti = leggiXlsx(xlsx(c));
    ASSERT_EQ(letti.size(), c.fogli.size() + 1);
    for (std::size_t s = 0; s < c.fogli.size(); ++s) {
        const tables::Prospetto& p = c.fogli[s].prospetto;
        EXPECT_EQ(letti[s].nome, p.titolo);
        for (std::size_t col = 0; col < p.colonne.size(); ++col)
            EXPECT_EQ(letti[s].a(1, col).testo, p.colonne[col].testa());
        for (std::size_t r = 0; r < p.righe.size(); ++r)
            for (std::size_t col = 0; col < p.colonne.size(); ++col) {
                const auto& attesa = p.righe[r][col];
                const auto letta = letti[s].a(r + 2, col);
                ASSERT_EQ(letta.numero, attesa.numero.has_value()) << p.titolo << r << ' ' << col;
                if (!attesa.numero) {
                    ASSERT_EQ(letta.testo, attesa.testo == "-" ? "" : attesa.testo);
                    continue;
                }
                ASSERT_EQ(letta.testo, sediciCifre(*attesa.numero));
            }
    }
}

TEST(SchemaCifre, HasTheDecimalsThatTheTablesShow) {
    EXPECT_EQ(schemaCifre(tables::momento(1)), "0.00");
    EXPECT_EQ(schemaCifre(tables::cella(7)), "0");
    EXPECT_EQ(schemaCifre(tables::momento(1e12)), "0.000E+00");
    EXPECT_EQ(schemaCifre(tables::parola("attivo")), "");
    // Words beside a number are no digits of it, whatever letters they have.
    EXPECT_EQ(schemaCifre({.testo = "6.12 below", .numero = 6.12}), "0.00\" below\"");
    EXPECT_EQ(schemaCifre({.testo = "-3 unterhalb", .numero = -3}), "0\" unterhalb\"");
    EXPECT_EQ(schemaCifre({.testo = "> 10", .numero = 10}), "\"> \"0");
}

}  // namespace
}  // namespace korven::workbook
