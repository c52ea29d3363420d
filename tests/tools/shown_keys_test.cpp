// The list of keys that users read, held against the sources of the windows that take them.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "commands/key_table.hpp"
#include "commands/menu_tree.hpp"

namespace korven {
namespace {

namespace fs = std::filesystem;
using Parole = std::vector<std::string>;

// The windows of the list that a source has the keys of.
const std::map<std::string, Parole> finestre = {
    {"companions/companion_window.cpp", {"Finestre accanto alla principale"}},
    {"forms/help_strip.cpp", {"Schede dei dati"}},
    {"forms/history_keys.cpp", {"Schede dei dati", "Scheda della sezione", "Tabelle dei dati"}},
    {"forms/key_event.cpp", {"Schede dei dati", "Tabelle dei dati"}},
    {"annex/document_view.cpp", {"Pagine dell'allegato e del confronto"}},
    {"help/guida.cpp", {"Finestra della guida"}},
    {"help/porta.cpp", {"Finestre accanto alla principale", "Scheda della sezione"}},
    {"main/menu1.cpp", {"Finestra principale"}},
    {"masks/base2_32.cpp", {"Tabelle dei dati"}},
    {"masks/form_frame.cpp", {"Schede dei dati"}},
    {"masks/grid_view.cpp", {"Tabelle dei dati"}},
    {"panels/hatch_chooser.cpp", {"Scelta della campitura"}},
    {"panels/profile_chooser.cpp", {"Catalogo dei profili"}},
    {"pens/editacfg.cpp", {"Penne e colori dei disegni"}},
    {"picture/picture_panel.cpp", {"Immagine del progetto"}},
    {"picture/picture_view.cpp", {"Immagine del progetto"}},
    {"remarks/remarks_window.cpp", {"Elenco delle osservazioni"}},
    {"report/form1.cpp", {"Anteprima dei tabulati"}},
    {"results/curves_view.cpp", {"Curve dei risultati"}},
    {"run/temp_calc.cpp", {"Calcolo in corso"}},
    {"section/definej.cpp", {"Scheda della sezione"}},
    {"tables/table_view.cpp", {"Tabelle dei risultati"}},
    {"viewer/drawing_watch_qt.cpp", {"Disegno in corso"}},
    {"viewer/grafica.cpp", {"Visore dei disegni"}},
};

// Of the toolkit where they are written otherwise, with all that the desktop takes for a standard
// key. The comma of the number pad is a character that is typed.
const std::map<std::string, Parole> scritti = {
    {"Key_Escape", {"Esc"}},
    {"Key_PageUp", {"PgUp"}},
    {"Key_PageDown", {"PgDown"}},
    {"Key_Delete", {"Del"}},
    {"Key_Backtab", {"Shift+Tab"}},
    {"Key_Plus", {"+"}},
    {"Key_Minus", {"-"}},
    {"Key_Equal", {"="}},
    {"Key_Comma", {}},
    {"Copy", {"Ctrl+C", "Ctrl+Ins"}},
    {"Paste", {"Ctrl+V", "Shift+Ins"}},
    {"Undo", {"Ctrl+Z"}},
    {"Redo", {"Ctrl+Y", "Ctrl+Shift+Z"}},
    {"SelectAll", {"Ctrl+A"}},
    {"PortableText", {}},
    {"NativeText", {}},
};

// Keys that a window has of the toolkit, or by a count ("Key_1 + i"), or with others held down
// meanwhile: the test of the window presses them.
struct Premuti {
    std::string finestra;
    Parole tasti;
    std::string prova;  // below tests/shell
    std::string come;   // what stands in it
};

const Premuti premuti[] = {
    {"Immagine del progetto", {"2", "3", "4"}, "picture/picture_panel_test.cpp", "Key_1 + i"},
    {"Elenco delle osservazioni", {"Down"}, "remarks/remarks_window_test.cpp", "Key_Down)"},
    {"Elenco delle osservazioni", {"Up"}, "remarks/remarks_window_test.cpp", "Key_Up)"},
    {"Schede dei dati", {"Alt+Down"}, "masks/base1_moves_test.cpp", "Key_Down, Qt::AltModifier"},
    {"Scheda della sezione",
     {"Return", "Enter"},
     "section/definej_moves_test.cpp",
     "{Qt::Key_Return, Qt::Key_Enter}"},
    {"Scheda della sezione", {"Esc"}, "section/definej_test.cpp", "Key_Escape)"},
    {"Tabelle dei dati", {"Ctrl+Home"}, "masks/grid_view_test.cpp", "Key_Home, Qt::ControlMod"},
    {"Tabelle dei dati", {"Ctrl+End"}, "masks/grid_view_test.cpp", "Key_End, Qt::ControlMod"},
    {"Tabelle dei dati", {"Ctrl+Tab"}, "masks/grid_view_test.cpp", "Key_Tab, Qt::ControlMod"},
    {"Tabelle dei dati",
     {"Ctrl+Shift+Tab"},
     "masks/grid_view_test.cpp",
     "Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier"},
    {"Scelta della campitura",
     {"Up", "Left", "Right"},
     "panels/layers_panel_test.cpp",
     "{Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Up}"},
    {"Scelta della campitura",
     {"Return", "Enter"},
     "panels/layers_panel_test.cpp",
     "{Qt::Key_Return, Qt::Key_Enter}"},
    {"Scelta della campitura", {"Esc"}, "panels/layers_panel_test.cpp", "Key_Escape)"},
    {"Catalogo dei profili",
     {"Return", "Enter"},
     "panels/section_panel_test.cpp",
     "{Qt::Key_Return, Qt::Key_Enter}"},
    {"Catalogo dei profili", {"Esc"}, "panels/section_panel_test.cpp", "Key_Escape)"},
    {"Pagine dell'allegato e del confronto",
     {"Ctrl++", "Ctrl+="},
     "annex/annex_window_test.cpp",
     "{Qt::Key_Plus, Qt::Key_Equal}"},
    {"Pagine dell'allegato e del confronto",
     {"Ctrl+-"},
     "annex/annex_window_test.cpp",
     "Key_Minus, Qt::ControlModifier"},
    {"Finestra della guida",
     {"Ctrl++", "Ctrl+="},
     "help/guida_test.cpp",
     "{Qt::Key_Plus, Qt::Key_Equal}"},
};

std::string contenuto(const fs::path& file) {
    std::ifstream letto(file);
    return {std::istreambuf_iterator<char>(letto), {}};
}

std::set<std::string> tastiDi(const std::string& testo) {
    static const std::regex conNome(
        R"(((?:Qt::(?:CTRL|ALT|SHIFT)\s*\|\s*)*)Qt::(Key_\w+)|QKeySequence::(\w+))");
    static const std::regex lettera(R"rx(tasto == QLatin1String\("(.)"\))rx");
    std::set<std::string> tasti;
    for (std::sregex_iterator i(testo.begin(), testo.end(), conNome), fine; i != fine; ++i) {
        std::string prima;
        for (const auto& [qt, scritto] :
             {std::pair{"CTRL", "Ctrl+"}, {"ALT", "Alt+"}, {"SHIFT", "Shift+"}})
            if ((*i)[1].str().find(qt) != std::string::npos) prima += scritto;
        const std::string nome = (*i)[2].matched ? (*i)[2].str() : (*i)[3].str();
        const auto noto = scritti.find(nome);
        for (const auto& tasto : noto != scritti.end() ? noto->second : Parole{nome.substr(4)})
            tasti.insert(prima + tasto);
    }
    for (std::sregex_iterator i(testo.begin(), testo.end(), lettera), fine; i != fine; ++i)
        tasti.insert((*i)[1].str());
    return tasti;
}

// Alone or with others that are held down meanwhile: the source asks for those in another place.
bool elencato(const std::string& tasto, const std::set<std::string>& elenco) {
    for (const auto& uno : elenco)
        if (uno == tasto || uno.ends_with("+" + tasto)) return true;
    return false;
}

std::set<std::string> elenco(const Parole& quali) {
    std::set<std::string> tutti;
    for (const auto& [finestra, righe] : commands::tastiProgramma())
        if (std::find(quali.begin(), quali.end(), finestra) != quali.end())
            for (const auto& riga : righe) {
                std::istringstream parole(riga.tasti);
                for (std::string uno; parole >> uno;) {
                    if (uno.size() > 1 && uno.back() == ',') uno.pop_back();
                    tutti.insert(uno);
                }
            }
    return tutti;
}

TEST(ElencoDeiTasti, HasARowForEveryKeyThatAWindowTakes) {
    const fs::path cartella = fs::path(KORVEN_SOURCE_FOLDER) / "shell";
    std::set<std::string> visti;
    for (const auto& voce : fs::recursive_directory_iterator(cartella)) {
        if (voce.path().extension() != ".cpp") continue;
        const auto tasti = tastiDi(contenuto(voce.path()));
        if (tasti.empty()) continue;
        const std::string nome = fs::relative(voce.path(), cartella).generic_string();
        const auto sue = finestre.find(nome);
        if (sue == finestre.end()) {
            ADD_FAILURE() << nome << " takes keys: which windows of the list have them?";
            continue;
        }
        visti.insert(nome);
        const auto scritte = elenco(sue->second);
        for (const auto& tasto : tasti)
            EXPECT_TRUE(elencato(tasto, scritte)) << nome << ": " << tasto;
    }
    for (const auto& [nome, sue] : finestre) {
        EXPECT_TRUE(visti.contains(nome)) << nome << " takes no key any more";
        for (const auto& una : sue) EXPECT_FALSE(elenco({una}).empty()) << una;
    }
}

// What the menu's tree gives the main form, what its sources take, and what its test presses.
std::set<std::string> presi(const std::string& finestra) {
    const fs::path cartella = fs::path(KORVEN_SOURCE_FOLDER) / "shell";
    std::set<std::string> tasti;
    if (finestra == "Finestra principale")
        for (const auto& voce : commands::albero()) tasti.insert(std::string(voce.tasti));
    for (const auto& [nome, sue] : finestre) {
        if (std::find(sue.begin(), sue.end(), finestra) == sue.end()) continue;
        const std::string testo = contenuto(cartella / nome);
        tasti.merge(tastiDi(testo));
        if (testo.find("QContextMenuEvent") != std::string::npos)
            tasti.insert({"Menu", "Shift+F10"});
    }
    for (const auto& riga : premuti)
        if (riga.finestra == finestra) tasti.insert(riga.tasti.begin(), riga.tasti.end());
    return tasti;
}

TEST(ElencoDeiTasti, HasNoRowWhoseKeyItsWindowDoesNotTake) {
    for (const auto& voce : commands::tastiProgramma()) {
        const auto tasti = presi(voce.finestra);
        for (const auto& tasto : elenco({voce.finestra}))
            EXPECT_TRUE(tasti.contains(tasto)) << voce.finestra << ": " << tasto;
    }
}

TEST(ElencoDeiTasti, HasTheKeysOfTheToolkitPressedByTheTestOfTheirWindow) {
    const fs::path prove = fs::path(KORVEN_SOURCE_FOLDER).parent_path() / "tests/shell";
    for (const auto& riga : premuti) {
        EXPECT_NE(contenuto(prove / riga.prova).find(riga.come), std::string::npos)
            << riga.prova << " presses no " << riga.come;
        const auto scritte = elenco({riga.finestra});
        for (const auto& tasto : riga.tasti)
            EXPECT_TRUE(scritte.contains(tasto)) << riga.finestra << " has no row for " << tasto;
    }
}

TEST(ElencoDeiTasti, IsComparedWithWhatTheSourcesSay) {
    EXPECT_EQ(tastiDi("new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, this)"),
              std::set<std::string>{"Ctrl+Shift+Z"});
    EXPECT_EQ(tastiDi("evento->matches(QKeySequence::Paste)"),
              (std::set<std::string>{"Ctrl+V", "Shift+Ins"}));
    EXPECT_EQ(tastiDi("tasto == QLatin1String(\"S\")"), std::set<std::string>{"S"});
    EXPECT_TRUE(elencato("Home", {"Ctrl+Home"}));
    EXPECT_FALSE(elencato("Ctrl+Home", {"Home"}));
    EXPECT_FALSE(elencato("F7", {"F1", "Ctrl+Z"}));
    EXPECT_TRUE(presi("Finestra principale").contains("Ctrl+K"));
    EXPECT_FALSE(presi("Tabelle dei dati").contains("Ctrl+F2"));
    EXPECT_FALSE(presi("Finestre accanto alla principale").contains("Menu"));
}

}  // namespace
}  // namespace korven
