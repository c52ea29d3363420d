#include "document/markup_text.hpp"

#include <gtest/gtest.h>

#include "base/code_page.hpp"
#include "support/sample_document.hpp"

namespace korven::document {
namespace {

std::string testo(std::vector<Blocco> blocchi) {
    Documento d;
    d.testata = {"Muro", "KORVEN 32"};
    d.piede = "muro.kvd";
    d.blocchi = std::move(blocchi);
    return base::daCp1252(testoSemplice(d));
}

bool contiene(const std::string& tutto, std::string_view parte) {
    return tutto.find(parte) != std::string::npos;
}

TEST(TestoSemplice, StandsBetweenHeadAndFoot) {
    EXPECT_EQ(testo({Titolo{1, "Fasi"}, Paragrafo{"La parete sta."}}),
              "Muro  ·  KORVEN 32\r\n\r\nFASI\r\n\r\nLa parete sta.\r\nmuro.kvd\r\n");
}

TEST(TestoSemplice, PutsALineThatBeginsWithASharpBehindAQuoteMark) {
    const std::string scritto =
        testo({Paragrafo{"#RESET 1\n  # due", Stile::fisso}, Titolo{1, "#uno"}});
    EXPECT_TRUE(contiene(scritto, "\r\n'#RESET 1\r\n'  # due\r\n"));
    EXPECT_TRUE(contiene(scritto, "\r\n'#UNO\r\n"));
    tables::Prospetto p;
    p.colonne = {{"#", "", "", false}, {"Valore", "", ""}};
    p.righe = {{{.testo = "#ENDTABLE"}, {.testo = "1"}}};
    EXPECT_TRUE(contiene(testo({Tavola{p}}), "'#\tValore\r\n'#ENDTABLE\t1\r\n"));
}

TEST(TestoSemplice, KeepsTheNumbersOfATableAsTheyAre) {
    tables::Prospetto p;
    p.titolo = "Dati";
    p.colonne = {{"Nome", "", "", false}, {"Angolo φ", "°", ""}};
    p.righe = {{{.testo = "a\tb\nc"}, {.testo = "30", .numero = 30.0}},
               {{.testo = "d"}, {.testo = "28.5", .numero = 28.5}}};
    p.note = {"γ ≤ 20"};
    EXPECT_TRUE(
        contiene(testo({Tavola{p}}),
                 "Dati\r\nNome\tAngolo phi [°]\r\na b c\t30\r\nd\t28.5\r\ngamma <= 20\r\n"));
}

TEST(TestoSemplice, BreaksParagraphsButNoFixedText) {
    const std::string lungo(90, 'a');
    const std::string scritto = testo({Paragrafo{lungo + " " + lungo}});
    EXPECT_TRUE(contiene(scritto, lungo + "\r\n" + lungo + "\r\n"));
    EXPECT_TRUE(contiene(testo({Paragrafo{lungo + " " + lungo, Stile::fisso}}),
                         lungo + " " + lungo + "\r\n"));
}

TEST(TestoSemplice, TellsWhatADrawingShowsAndWhereItIs) {
    const std::string scritto = testo({test::figura(10, 5)});
    EXPECT_TRUE(contiene(scritto,
                         "Figura 1. Momento flettente della fase 2\r\nIl momento cresce con la "
                         "profondità. [il disegno si trova nel documento PDF]\r\n"));
}

TEST(TestoSemplice, HoldsTablesOfAnySizeAndLosesNoCell) {
    const std::string scritto = testo({Tavola{test::nodi(1200)}, Tavola{test::larga(70, 2)}});
    EXPECT_TRUE(contiene(scritto, "\r\n1199\t"));
    EXPECT_TRUE(contiene(scritto, "269.25"));
    EXPECT_TRUE(contiene(scritto, "\r\n- Sopra lo scavo non c'è terreno a valle.\r\n"));
    EXPECT_EQ(scritto.find('?'), std::string::npos);
}

TEST(InMarkup, KeepsNumbersOfDifferentDigitsFromBeingFilledUpByAWordProcessor) {
    tables::Prospetto p;
    p.colonne = {{"1", "", "", false}, {"Valore", "", ""}, {"Altro", "", ""}};
    p.righe = {{{.testo = ""}, {.testo = "30"}, {.testo = "1.50"}},
               {{.testo = "x"}, {.testo = "28.5"}, {.testo = "2.25"}}};
    Documento d;
    d.blocchi = {Tavola{p}};
    const std::string fermo = "\u00A0";
    EXPECT_TRUE(contiene(inMarkup(d, Uso::documento), "#TABSTYLE =<>>\r\n#STARTTABLE\r\n1" + fermo +
                                                          "\tValore\tAltro\r\n" + fermo + "\t30" +
                                                          fermo + "\t1.50\r\nx\t28.5" + fermo +
                                                          "\t2.25\r\n#ENDTABLE\r\n"));
}

TEST(InMarkup, BindsUnitsToTheirNumbersWhereAWordProcessorBreaksTheLines) {
    Documento d;
    d.blocchi = {Paragrafo{"al più 5 kN m."}, Paragrafo{"z = 5 kN m", Stile::fisso}};
    const std::string scritto = inMarkup(d, Uso::documento);
    EXPECT_TRUE(contiene(scritto, "al più 5\u00A0kN\u00A0m.\r\n"));
    EXPECT_TRUE(contiene(scritto, "z = 5 kN m\r\n")) << "a file stays as it is";
    EXPECT_TRUE(contiene(inMarkup(d, Uso::testo), "al più 5 kN m.\r\n"));
}

TEST(InMarkup, ListsTheHeadingsOfAWordProcessorsFileWithoutPages) {
    Documento d;
    d.blocchi = {Titolo{1, "Copertina"}, Indice{"Indice"}, Titolo{1, "Dati"}, Titolo{2, "Strati"},
                 Titolo{3, "Misure"}};
    const std::string scritto = inMarkup(d, Uso::documento);
    EXPECT_TRUE(contiene(scritto, "\r\nIndice\r\nDati\r\n\u00A0\u00A0\u00A0\u00A0Strati\r\n"));
    EXPECT_EQ(scritto.find("Misure"), std::string::npos) << "a heading alone, in capitals";
    EXPECT_EQ(inMarkup(d, Uso::testo).find("Indice"), std::string::npos);
}

}  // namespace
}  // namespace korven::document
