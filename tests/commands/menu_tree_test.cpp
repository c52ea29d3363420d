#include "commands/menu_tree.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "help/contexts.hpp"
#include "help/places.hpp"

namespace korven::commands {
namespace {

TEST(AlberoMenu, HoldsTheMenusAndTheirItemsInOrder) {
    std::string menu;
    for (const auto& v : albero())
        menu += std::string(static_cast<std::size_t>(2 * v.livello), ' ') + std::string(v.nome) +
                " " + std::string(v.testo) + "\n";
    EXPECT_EQ(menu,
              "archivi &Archivi\n"
              "  FileApri &Apri\n"
              "  FileSalva &Salva\n"
              "  PrintSetup &Configura Stampante\n"
              "  AiutoFile &Help\n"
              "edizione &Edizione\n"
              "  EditStratigrafia &Stratigrafia\n"
              "  EditParatia &Parametri Diaframma\n"
              "  EditRigidezza &Descrizione Struttura\n"
              "  EditTiranti &Caratteristiche Tiranti\n"
              "  EditFasi &Fasi di Scavo\n"
              "  EditTitoli &Titoli\n"
              "  AiutoEdit &Help\n"
              "Stampa &Stampa\n"
              "  StampaGrafica &Grafica\n"
              "    GraficaMomenti &Momenti\n"
              "    GraficaSpostamenti &Spostamenti\n"
              "    GraficaTaglio &Taglio\n"
              "    GraficaPressioni &Pressioni\n"
              "    GraficaStruttura &Elemento Strutturale\n"
              "    GraficaStratigrafia &Descrizione stratigrafica\n"
              "  statab &Tabulati\n"
              "    StampaVideo Visualizza &Anteprima Tabulati\n"
              "    StampaTabulati Stampa &Rapida Tabulati\n"
              "    espotab &Esporta Tabulati in Formato DOC\n"
              "    espotabtxt Esporta Tabulati in Formato &TXT\n"
              "  configura &Configura\n"
              "  AiutoStampa &Help\n"
              "strumenti St&rumenti\n"
              "  annulla An&nulla\n"
              "  ripeti &Ripeti\n"
              "  controlli &Controlli\n"
              "  risultati R&isultati\n"
              "  sicurezza &Sicurezza\n"
              "  allegato &Allegato\n"
              "  confronto Con&fronta con\n"
              "  norme Nor&me\n"
              "  studio St&udio\n"
              "  nuovo Nu&ovo\n"
              "  duplica &Duplica\n"
              "  recenti R&ecenti\n"
              "  lingua Lin&gua\n"
              "  tasti &Tasti\n"
              "fine &Uscita\n"
              "menuhelp &Help\n"
              "  sommario &Sommario\n"
              "  about &Info\n");
}

TEST(AlberoMenu, GivesEachItemItsEntryOfTheHelpContexts) {
    const std::pair<const char*, int> voci[] = {{"FileApri", 3},
                                                {"FileSalva", 4},
                                                {"EditStratigrafia", 5},
                                                {"EditParatia", 6},
                                                {"EditRigidezza", 7},
                                                {"EditTiranti", 8},
                                                {"EditFasi", 9},
                                                {"EditTitoli", 10},
                                                {"StampaGrafica", 11},
                                                {"GraficaMomenti", 12},
                                                {"GraficaSpostamenti", 13},
                                                {"GraficaTaglio", 14},
                                                {"GraficaPressioni", 15},
                                                {"GraficaStruttura", 16},
                                                {"GraficaStratigrafia", 17},
                                                {"statab", 18},
                                                {"StampaVideo", 19},
                                                {"StampaTabulati", 20},
                                                {"espotab", 21},
                                                {"espotabtxt", 22},
                                                {"configura", 23},
                                                {"PrintSetup", 27},
                                                {"AiutoFile", 24},
                                                {"AiutoEdit", 25},
                                                {"AiutoStampa", 26},
                                                {"annulla", 35},
                                                {"ripeti", 35},
                                                {"controlli", 34},
                                                {"risultati", 36},
                                                {"sicurezza", 37},
                                                {"allegato", 43},
                                                {"confronto", 44},
                                                {"norme", 45},
                                                {"studio", 46},
                                                {"nuovo", 38},
                                                {"duplica", 39},
                                                {"recenti", 40},
                                                {"lingua", 41},
                                                {"tasti", 42}};
    int trovate = 0;
    for (const auto& v : albero())
        for (const auto& [nome, aiuto] : voci)
            if (v.nome == nome) {
                EXPECT_EQ(v.guida, aiuto) << nome;
                ++trovate;
            }
    EXPECT_EQ(trovate, 39);
}

TEST(AlberoMenu, GivesNoTwoItemsTheSameKeys) {
    std::set<std::string_view> tasti;
    for (const auto& v : albero())
        if (!v.tasti.empty()) {
            EXPECT_TRUE(tasti.insert(v.tasti).second) << v.nome << ' ' << v.tasti;
        }
    EXPECT_EQ(tasti, (std::set<std::string_view>{"Ctrl+O", "Ctrl+S", "Ctrl+Z", "Ctrl+Y", "Ctrl+K",
                                                 "Ctrl+R", "Ctrl+Q", "F1"}));
}

TEST(AlberoMenu, FindsEachItemByANameOfItsOwn) {
    for (const auto& v : albero()) EXPECT_EQ(&voceMenu(v.nome), &v) << v.nome;
}

TEST(AlberoMenu, GivesEachItemEitherACommandOrAMenuBelowIt) {
    const auto voci = albero();
    for (std::size_t i = 0; i < voci.size(); ++i) {
        const int dopo = i + 1 < voci.size() ? voci[i + 1].livello : 0;
        if (voci[i].riempi != nullptr) {
            EXPECT_TRUE(apreMenu(voci[i])) << voci[i].nome;
            EXPECT_LE(dopo, voci[i].livello) << voci[i].nome;
        } else if (apreMenu(voci[i])) {
            EXPECT_EQ(dopo, voci[i].livello + 1) << voci[i].nome;
            EXPECT_EQ(voci[i].haForma, nullptr) << voci[i].nome;
        } else {
            EXPECT_LE(dopo, voci[i].livello) << voci[i].nome;
        }
    }
}

TEST(ContestiGuida, AreATableOfTwoHundredAndOneEntries) {
    EXPECT_EQ(help::contestiGuida().size(), 201u);
    EXPECT_EQ(help::contestoGuida(200), 200);
    EXPECT_EQ(help::contestoGuida(0), 0);
    EXPECT_EQ(help::contestoGuida(201), 0);
    EXPECT_EQ(help::contestoGuida(-1), 0);
}

TEST(VoceForma, IsThatOfTheMenuItemWhereOneOpensTheForm) {
    EXPECT_EQ(help::voceForma("Editacfg"), voceMenu("configura").guida);
    EXPECT_EQ(help::voceForma("DefinEJ"), voceMenu("EditRigidezza").guida);
    EXPECT_EQ(help::voceForma("Form1"), voceMenu("StampaVideo").guida);
    EXPECT_EQ(help::voceForma("apri"), voceMenu("FileApri").guida);
    EXPECT_EQ(help::voceForma("salva"), voceMenu("FileSalva").guida);
}

TEST(VoceForma, IsOneOfItsOwnForOtherForms) {
    EXPECT_EQ(help::voceForma("GRAFICA"), help::voceGrafica);
    EXPECT_EQ(help::voceForma("TempCalc"), help::voceTempCalc);
    for (const int propria : {help::voceGrafica, help::voceConfStampa, help::voceTempCalc,
                              help::voceFinestraGuida, help::voceSelezling})
        for (const auto& v : albero()) EXPECT_NE(v.guida, propria) << v.nome;
    // The item opens that very box.
    for (const auto& v : albero())
        EXPECT_EQ(v.guida == help::voceInformazioni, v.nome == "about") << v.nome;
}

}  // namespace
}  // namespace korven::commands
