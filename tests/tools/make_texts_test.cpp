// The text files as the build has laid them into the program folder.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/text_table.hpp"
#include "base/translated_texts.hpp"
#include "tools/text_source.hpp"

namespace korven {
namespace {

constexpr const char* names[] = {"texts01.txt", "texts06.txt", "texts32.txt"};

std::string bytes(const std::string& name) {
    return base::leggiFile(std::string(KORVEN_PROGRAM_FOLDER "/") + name);
}

// Both tables as one: what is true of a text does not depend on its place.
base::TabellaTesti delivered() {
    base::TabellaTesti table{base::massimoTesti + base::massimoTestiAggiunti};
    for (const auto* name : names) {
        base::LettoreRighe file(name, bytes(name));
        base::aggiungiTesti(table, file);
    }
    base::ordinaTesti(table);
    return table;
}

TEST(DeliveredTexts, HaveSevenLinesARecordEndedByCrLf) {
    for (const auto* name : names) {
        const std::string content = bytes(name);
        const auto lines = std::count(content.begin(), content.end(), '\n');
        EXPECT_GT(lines, 0);
        EXPECT_EQ(lines % 7, 0) << name;
        EXPECT_EQ(std::count(content.begin(), content.end(), '\r'), lines) << name;
        std::size_t returnsBeforeEnds = 0;
        for (auto at = content.find("\r\n"); at != std::string::npos;
             at = content.find("\r\n", at + 2))
            ++returnsBeforeEnds;
        EXPECT_EQ(static_cast<std::ptrdiff_t>(returnsBeforeEnds), lines) << name;
    }
}

TEST(DeliveredTexts, HoldEveryRecordOfTheSourceLetterForLetter) {
    const std::string source = KORVEN_DATA_FOLDER "/texts.txt";
    const auto records = tools::readTextSource(source, base::leggiFile(source));
    const auto table = delivered();
    ASSERT_EQ(table.nTesti, static_cast<int>(records.size()));
    for (const auto& record : records) {
        const int row = base::cercaTesto(table, record.text[0]);
        ASSERT_GT(row, 0) << record.text[0];
        for (int column = 1; column <= base::numeroLingue; ++column)
            EXPECT_EQ(table.righe[row].testo[column],
                      record.text[static_cast<std::size_t>(column - 1)]);
    }
}

TEST(DeliveredTexts, LeaveRoomInTheTableAndHaveNoKeyTwice) {
    const auto table = delivered();
    const std::string added = bytes("texts32.txt");
    const auto inSecond = std::count(added.begin(), added.end(), '\n') / 7;
    EXPECT_LE(table.nTesti - inSecond, base::massimoTesti * 9 / 10);
    EXPECT_LE(inSecond, base::massimoTestiAggiunti * 9 / 10);
    for (int i = 2; i <= table.nTesti; ++i)
        EXPECT_LT(table.righe[i - 1].chiave, table.righe[i].chiave);
}

std::string unitsOf(const std::string& text) {
    std::string units;
    bool inside = false;
    for (const char c : text) {
        inside = inside || c == '[';
        if (inside) units += c;
        inside = inside && c != ']';
    }
    return units;
}

TEST(DeliveredTexts, AreTranslatedIntoEveryLanguageWithTheSameUnitsAndAccessKeys) {
    const auto table = delivered();
    for (int i = 1; i <= table.nTesti; ++i) {
        const auto& text = table.righe[i].testo;
        for (int column = 1; column <= base::numeroLingue; ++column) {
            SCOPED_TRACE(text[1] + " / " + text[column]);
            EXPECT_FALSE(base::senzaSpaziEsterni(text[column]).empty());
            EXPECT_FALSE(text[column].starts_with('@'));
            EXPECT_EQ(unitsOf(text[column]), unitsOf(text[1]));
            EXPECT_EQ(std::count(text[column].begin(), text[column].end(), '&'),
                      std::count(text[1].begin(), text[1].end(), '&'));
        }
    }
}

// A caption has the room that the Italian text needs and some more, not twice as much.
TEST(DeliveredTexts, AreNotMuchLongerThanTheItalian) {
    const auto table = delivered();
    for (int i = 1; i <= table.nTesti; ++i)
        for (int column = 2; column <= base::numeroLingue; ++column) {
            const auto& text = table.righe[i].testo;
            const std::size_t room = base::numeroCaratteri(text[1]) * 3 / 2 + 10;
            EXPECT_LE(base::numeroCaratteri(text[column]), room) << text[column];
        }
}

// The items that are shown together, by their keys.
const std::vector<std::vector<std::string>> menus = {
    {"&Archivi", "&Edizione", "&Stampa", "&Uscita", "&Help"},
    {"&Apri", "&Salva", "&Configura Stampante", "&Help"},
    {"&Stratigrafia", "&Parametri Diaframma", "&Descrizione Struttura", "&Caratteristiche Tiranti",
     "&Fasi di Scavo", "&Titoli", "&Help"},
    {"&Grafica", "&Tabulati", "&Configura", "&Help"},
    {"&Momenti", "&Spostamenti", "&Taglio", "&Pressioni", "&Elemento Strutturale",
     "&Descrizione stratigrafica"},
    {"Visualizza &Anteprima Tabulati", "Stampa &Rapida Tabulati",
     "&Esporta Tabulati in Formato DOC", "Esporta Tabulati in Formato &TXT"},
    {"&Sommario", "&Info"},
    {"&Conferma", "&Annulla"},
    {"&Imposta", "&Stampa", "&Annulla"}};

std::string accessKey(const std::string& text) {
    const std::string_view rest = std::string_view(text).substr(text.find('&') + 1);
    return base::maiuscolo(rest.substr(0, base::lunghezzaPrimoCarattere(rest)));
}

TEST(DeliveredTexts, HaveNoAccessKeyTwiceInOneMenu) {
    const auto table = delivered();
    for (const auto& menu : menus)
        for (int column = 1; column <= base::numeroLingue; ++column) {
            std::set<std::string> keys;
            for (const auto& item : menu) {
                const int row = base::cercaTesto(table, item);
                ASSERT_GT(row, 0) << item;
                const auto& text = table.righe[row].testo[column];
                EXPECT_TRUE(keys.insert(accessKey(text)).second) << text;
            }
        }
}

TEST(DeliveredTexts, AreWhatTheProgramShows) {
    base::caricaTesti(KORVEN_PROGRAM_FOLDER "/texts01.txt", KORVEN_PROGRAM_FOLDER "/texts06.txt",
                      KORVEN_PROGRAM_FOLDER "/texts32.txt");
    base::impostaLingua(2);
    EXPECT_EQ(base::traduttore("ATTENZIONE"), "ACHTUNG");
    EXPECT_EQ(base::traduttore("CARATTERISTICHE DEI MATERIALI"), "MATERIALKENNWERTE");
    EXPECT_EQ(base::traduttore("Caratteristiche dei materiali"), "Materialkennwerte");
    base::impostaLingua(5);
    EXPECT_EQ(base::traduttore("Numero armature logitudinali [-]"),
              "Number of longitudinal bars [-]");
    EXPECT_EQ(base::traduttore("fase"), "stage");
    base::impostaLingua(1);
    base::tabellaTesti.nTesti = base::testiAggiunti.nTesti = 0;
}

}  // namespace
}  // namespace korven
