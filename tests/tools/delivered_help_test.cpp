// The help files as the build has laid them into the program folder: that every place of the
// program has its page, in every language alike.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "commands/menu_tree.hpp"
#include "help/contexts.hpp"
#include "help/pages.hpp"
#include "help/places.hpp"
#include "help/search.hpp"
#include "help/search_text.hpp"
#include "masks/values.hpp"
#include "review/remark_table.hpp"
#include "tools/markup_check.hpp"
#include "tools/text_source.hpp"

namespace korven {
namespace {

using help::Guida;
using help::PaginaGuida;

constexpr int languages[] = {1, 2, 3, 4, 5, 6};

// A link that leads out of the help, to a document of the program.
constexpr std::string_view document = "documento:";

// What is between two texts, for each time that one follows the other.
std::vector<std::string> between(std::string_view html, std::string_view from,
                                 std::string_view to) {
    std::vector<std::string> found;
    for (auto i = html.find(from); i != html.npos; i = html.find(from, i)) {
        i += from.size();
        found.emplace_back(html.substr(i, html.find(to, i) - i));
    }
    return found;
}

std::vector<std::string> anchors(const PaginaGuida& page) {
    return between(page.html, "<a name=\"", "\"");
}

// Where the links of a page lead, whatever their order: that of the words differs.
std::multiset<std::string> links(const PaginaGuida& page) {
    const auto all = between(page.html, "href=\"", "\"");
    return {all.begin(), all.end()};
}

// The messages of a table, with the quotation marks of the language around them.
std::vector<std::string> quotedMessages(const PaginaGuida& page) {
    auto all = between(page.html, "<tr><td>\"", "\"</td>");
    const auto german = between(page.html, "<tr><td>„", "“</td>");
    all.insert(all.end(), german.begin(), german.end());
    return all;
}

// The heading of each place of a page.
std::map<std::string, std::string> headings(const PaginaGuida& page) {
    std::map<std::string, std::string> found;
    for (const auto& heading : between(page.html, "<h3>", "</h3>"))
        found[between(heading, "<a name=\"", "\"").at(0)] = help::testoPagina(heading);
    return found;
}

class DeliveredHelp : public ::testing::Test {
 protected:
    void SetUp() override { base::impostaCartellaProgramma(KORVEN_PROGRAM_FOLDER); }
    void TearDown() override {
        base::impostaCartellaProgramma("");
        base::impostaLingua(1);
        base::tabellaTesti = {};
    }
    static Guida help(int language) {
        return help::leggiGuida(
            base::fileProgramma("module06" + std::string(base::siglaLingua(language)) + ".hlp"));
    }
    static const PaginaGuida& page(const Guida& guide, int entry) {
        const auto* found = help::paginaDelContesto(guide, help::contestoGuida(entry));
        static const PaginaGuida none;
        EXPECT_NE(found, nullptr) << "entry " << entry;
        return found != nullptr ? *found : none;
    }
    static masks::Maschere masks(int language) {
        base::caricaTesti(base::fileProgramma("texts01.txt"), base::fileProgramma("texts06.txt"),
                          base::fileProgramma("texts32.txt"));
        base::impostaLingua(language);
        masks::Maschere all;
        all.leggiMaschereProgramma();
        return all;
    }
};

TEST_F(DeliveredHelp, HasAPageForEveryMenuItemWithAHelpContext) {
    for (const int language : languages) {
        const Guida guide = help(language);
        int looked = 0;
        for (const auto& item : commands::albero()) {
            if (item.guida == 0) continue;
            ++looked;
            EXPECT_FALSE(page(guide, item.guida).html.empty()) << item.nome;
        }
        EXPECT_EQ(looked, 40);
    }
}

TEST_F(DeliveredHelp, HasAPageForEveryFormThatNoMenuItemNames) {
    for (const int language : languages) {
        const Guida guide = help(language);
        for (const char* form : {"GRAFICA", "Editacfg", "ConfStampa", "TempCalc", "guida",
                                 "osservazioni", "INFORMAZIONI", "selezling", "DefinEJ", "Form1"})
            EXPECT_FALSE(page(guide, help::voceForma(form)).html.empty()) << form;
    }
}

TEST_F(DeliveredHelp, HasThePageThatEachRemarkNames) {
    for (const int language : languages) {
        const Guida guide = help(language);
        for (const auto rows : review::vociOsservazioni)
            for (const auto& row : rows)
                EXPECT_NE(help::paginaDiNome(guide, row.guida), nullptr)
                    << row.codice << ": " << row.guida;
    }
}

TEST_F(DeliveredHelp, TellsOfEveryFieldOfEveryMaskUnderItsLabel) {
    for (const int language : languages) {
        const Guida guide = help(language);
        auto all = masks(language);
        int looked = 0;
        for (int number = 1; number <= 5; ++number) {
            all.selezionaMaschera(number);
            const auto& mask = all.corrente();
            EXPECT_EQ(masks::voceGuida(mask), mask.contesto);
            auto found = headings(page(guide, mask.contesto));
            for (std::size_t i = 0; i < mask.campi.size(); ++i, ++looked) {
                const std::string anchor = help::ancoraCampo(std::to_string(i + 1));
                EXPECT_EQ(base::maiuscolo(found[anchor]), base::maiuscolo(mask.campi[i].etichetta))
                    << mask.titolo << ' ' << anchor;
            }
            EXPECT_EQ(found.size(), mask.campi.size()) << mask.titolo;
            all.rilasciaForm();
        }
        EXPECT_EQ(looked, 7 + 18 + 8 + 5 + 5);
    }
}

TEST_F(DeliveredHelp, TellsOfEveryControlOfTheOtherForms) {
    std::map<std::string, std::vector<std::string>> controls;
    for (int i = 1; i <= 26; ++i) controls["DefinEJ"].push_back("Text" + std::to_string(i));
    for (int i = 1; i <= 4; ++i) controls["DefinEJ"].push_back("Option" + std::to_string(i));
    controls["Editacfg"] = {"List1", "Option1_0", "Text1", "List2", "Text2", "Text3"};
    controls["ConfStampa"] = {"Text1", "Text2", "Text3", "Text4", "Text5",
                              "Text6", "Text7", "List1", "Text8"};
    controls["TempCalc"] = {"Command1"};
    controls["guida"] = {"cerca"};
    for (const int language : languages) {
        const Guida guide = help(language);
        for (const auto& [form, names] : controls)
            for (const auto& name : names)
                EXPECT_TRUE(
                    help::haAncora(page(guide, help::voceForma(form)), help::ancoraCampo(name)))
                    << form << ' ' << name;
    }
}

TEST_F(DeliveredHelp, HasTheSamePagesPlacesAndLinksInEveryLanguage) {
    const Guida italian = help(1);
    EXPECT_GT(italian.pagine.size(), 50u);
    for (const int language : languages) {
        const Guida other = help(language);
        SCOPED_TRACE(base::siglaLingua(language));
        EXPECT_EQ(italian.capitoli.size(), other.capitoli.size());
        ASSERT_EQ(italian.pagine.size(), other.pagine.size());
        for (std::size_t i = 0; i < italian.pagine.size(); ++i) {
            const PaginaGuida &it = italian.pagine[i], &page = other.pagine[i];
            EXPECT_EQ(it.nome, page.nome);
            EXPECT_EQ(it.voce, page.voce) << it.nome;
            EXPECT_EQ(it.capitolo, page.capitolo) << it.nome;
            EXPECT_EQ(anchors(it), anchors(page)) << it.nome;
            EXPECT_EQ(links(it), links(page)) << it.nome;
            for (const char* block : {"<h2>", "class=\"avviso\"", "<tr>", "<li>", "\"formula\""})
                EXPECT_EQ(between(it.html, block, ">").size(),
                          between(page.html, block, ">").size())
                    << it.nome << ' ' << block;
        }
    }
}

TEST_F(DeliveredHelp, HasNoLinkThatLeadsNowhere) {
    for (const int language : languages) {
        const Guida guide = help(language);
        int looked = 0;
        for (const auto& from : guide.pagine)
            for (const auto& link : between(from.html, "href=\"", "\"")) {
                ++looked;
                if (link.starts_with(document)) {
                    EXPECT_TRUE(base::esisteFile(std::string(KORVEN_DOCS "/../") +
                                                 link.substr(document.size()) + ".md"))
                        << from.nome << ": " << link;
                    continue;
                }
                const auto hash = std::min(link.find('#'), link.size());
                const auto* to = help::paginaDiNome(guide, link.substr(0, hash));
                ASSERT_NE(to, nullptr) << from.nome << ": " << link;
                EXPECT_TRUE(hash == link.size() || help::haAncora(*to, link.substr(hash + 1)))
                    << from.nome << ": " << link;
            }
        EXPECT_GT(looked, 100);
    }
}

TEST_F(DeliveredHelp, LeadsToEveryPageFromAnother) {
    for (const int language : languages) {
        const Guida guide = help(language);
        std::set<std::string> reached;
        for (const auto& from : guide.pagine)
            for (const auto& link : between(from.html, "href=\"", "\""))
                if (const auto to = link.substr(0, link.find('#')); to != from.nome)
                    reached.insert(to);
        for (const auto& page : guide.pagine) EXPECT_TRUE(reached.contains(page.nome)) << page.nome;
    }
}

TEST_F(DeliveredHelp, IsWellFormed) {
    EXPECT_EQ(test::MarkupCheck("<p>a<br/><b>b</b> &lt; &#966;</p>").fault(), "");
    for (const char* broken : {"<p>a", "<p>a</b></p>", "a</p>", "<p>a & b</p>", "<x>a</x>",
                               "<p class=a>b</p>", "<p>a < b</p>"})
        EXPECT_NE(test::MarkupCheck(broken).fault(), "") << broken;
    for (const int language : languages)
        for (const auto& page : help(language).pagine)
            EXPECT_EQ(test::MarkupCheck(page.html).fault(), "") << page.nome;
}

TEST_F(DeliveredHelp, QuotesMessagesAsTheProgramShowsThem) {
    const std::string source = KORVEN_DATA_FOLDER "/texts.txt";
    const auto records = tools::readTextSource(source, base::leggiFile(source));
    for (const int language : languages) {
        const Guida guide = help(language);
        int looked = 0;
        for (const auto& page : guide.pagine)
            for (const auto& row : quotedMessages(page)) {
                std::string quoted = help::testoPagina(row);
                if (quoted.starts_with("...")) quoted.erase(0, 3);
                if (quoted.ends_with("...")) quoted.erase(quoted.size() - 3);
                ++looked;
                EXPECT_TRUE(
                    std::any_of(records.begin(), records.end(),
                                [&](const auto& record) {
                                    const auto column = static_cast<std::size_t>(language - 1);
                                    return record.text[column].find(quoted) != std::string::npos;
                                }))
                    << page.nome << ": " << quoted;
            }
        EXPECT_GE(looked, 5);
    }
}

TEST_F(DeliveredHelp, FindsWhatAnEngineerLooksFor) {
    const auto first = [](const Guida& guide, const char* words) {
        const auto found = help::cercaNellaGuida(guide, words);
        return found.empty() ? std::string() : found.front().pagina->nome;
    };
    const Guida italian = help(1), english = help(5);
    EXPECT_EQ(first(italian, "verifica taglio"), "taglio_verifica");
    EXPECT_EQ(first(english, "shear check"), "taglio_verifica");
    EXPECT_EQ(first(italian, "rankine"), "spinte");
    EXPECT_EQ(first(english, "undrained"), "non_drenato");
    EXPECT_EQ(first(english, "nseg.txt"), "mesh");
}

}  // namespace
}  // namespace korven
