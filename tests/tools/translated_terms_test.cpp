// docs/glossary.md settles one term for each thing. These are the words that it gave up: a text
// that takes one of them again gives one thing two names.

#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

#include "base/files.hpp"
#include "base/language.hpp"
#include "help/pages.hpp"
#include "help/search_text.hpp"
#include "tools/text_source.hpp"

namespace korven {
namespace {

struct GivenUp {
    std::size_t language;  // column of a record, from 0
    const char* word;      // a regular expression; \b parts words of plain letters alone
    const char* instead;
};

constexpr GivenUp words[] = {
    {1, "Verbauwand", "Wand"},
    {1, "Bauzustand|Bauzuständ", "Phase, Aushubphase"},
    {1, "Schubnachweis", "Querkraftnachweis"},
    {1, "Stabzahl|Stabanzahl [^0-9]*kleiner", "Anzahl der Stäbe"},
    {1, "Biegewiderstand", "Momententragfähigkeit"},
    {1, "Schichtprofil|Schichtenverzeichnis", "Schichtenprofil"},
    {1, "Grundwassers \\[|Wichte des Grundwassers", "Wichte des Wassers"},
    {1, "exakte[ns]? Gleichgewicht|sichere[ns]? Gleichgewicht", "Gleichgewichtslösung"},
    {1, "Phasenberechnung", "phasenweise Berechnung"},
    {1, "Sicherheitsabstand", "Sicherheitsreserve"},
    {1, "Berechnungsanlage", "Anlage, Anlage zur statischen Berechnung"},
    {1, "Keimzahl", "Startwert"},
    {1, "Latin Hypercube", "lateinischer Hyperwürfel"},
    {1, "Baugrubensohle", "Aushubsohle"},
    {1, "[Zz]ur Baugrube", "zum Aushub hin"},
    {1, "undränierten? Kohäsion", "undränierte Scherfestigkeit"},
    {1, "Biegetragfähigkeit", "Momententragfähigkeit"},
    {1, "Sicherheitsbedingung", "Sicherheitsnachweis"},
    {1, "Abminderung der Festigkeit", "Festigkeitsabminderung"},
    {1, "Gamma r\\b", "Gamma sat."},
    {1, "Werkstoff", "Baustoff"},
    {1, "\\bwaagrecht", "waagerecht"},
    {1, "nach einem Gesetz\\b", "Verteilung"},
    {1, "korven32c serie\\b", "korven32c series"},
    {2, "note de calcul", "rapport"},
    {2, "structural\\b|structurale", "structurel"},
    {2, "\\b[Aa]iles?\\b", "âme, demi-âme"},
    {2, "[Nn]ombre d'armatures", "nombre de barres"},
    {2, "Entraxe des pieux", "espacement"},
    {2, "[Éé]quilibre certain", "solution d'équilibre"},
    {2, "\\b[Aa]ncrages?\\b", "tirant"},
    {2, "signe décimal", "séparateur décimal"},
    {2, "défaill", "échouer"},
    {2, "insécurité", "du côté défavorable"},
    {2, "germe des", "graine"},
    {2, "korven32c serie\\b", "korven32c series"},
    {2, "taux d'utilisation", "taux de travail"},
    {2, "écart type", "écart-type"},
    {2, "Traction du tirant", "effort dans le tirant"},
    {3, "(^|[ (])[Aa]las?\\b", "alma, media alma"},
    {3, "[Nn]úmero de armaduras", "número de barras"},
    {3, "memorizado", "guardado"},
    {3, "\\b[Oo]rden siguiente", "comando siguiente"},
    {3, "[Ee]quilibrio cierto", "solución de equilibrio"},
    {3, "signo decimal", "separador decimal"},
    {3, "esfuerzo axil", "esfuerzo normal"},
    {3, "inseguridad", "del lado inseguro"},
    {3, "\\bcercos\\b", "estribos"},
    {3, "no drenad", "sin drenaje"},
    {3, "korven32c serie\\b", "korven32c series"},
    {3, "en obra\\b|instala el anclaje", "colocado; coloca el anclaje"},
    {4, "\\b[Pp]itch\\b", "spacing"},
    {4, "\\b[Ll]eg (width|height|thickness)|\\b[Ff]lat (width|thickness)", "web, flange"},
    {4, "saturated weight|a weight in kN", "unit weight"},
    {4, "[Ff]loor of the excavation", "excavation level"},
    {4, "wall top", "wall head"},
    {4, "can't", "cannot"},
    {4, "\\brecomputed\\b", "recalculated"},
    {4, "[Cc]ertain equilibrium", "equilibrium solution"},
    {4, "staged calculation", "staged run"},
    {4, "korven32c serie\\b", "korven32c series"},
    {4, "\\b[Ii]mprint\\b", "fingerprint"},
    {4, "\\b[Ww]eight danger|\\bUse in (bending|shear)", "rated danger; utilization"},
    {5, "\\babas?\\b|\\bAbas?\\b", "alma, meia alma"},
    {5, "\\bcortinas?\\b(?! de estacas| e paredes)", "parede; cortina de estacas alone for piles"},
    {5, "[Ee]quilíbrio certo", "solução de equilíbrio"},
    {5, "intradorso", "lado da escavação"},
    {5, "verificação ao corte", "verificação ao esforço transverso"},
    {5, "\\bdobrad[ao]s?\\b", "duplicado"},
    {5, "jusante", "do lado da escavação"},
    {5, "korven32c serie\\b", "korven32c series"},
    {5, "\\bfroux[ao]s?\\b", "sem tração"},
    {5, "esforço axial", "esforço normal"},
    {5, "desvio padrão", "desvio-padrão"},
    {5, "ficheiro gravado", "guardado"},
    {5, "insegur", "contra a segurança"},
};

struct Passage {
    std::string where;
    std::string text;
};

// What the texts of the program say in a language, by the column of a record.
std::vector<Passage> texts(std::size_t language) {
    const std::string source = KORVEN_DATA_FOLDER "/texts.txt";
    std::vector<Passage> all;
    for (const auto& record : tools::readTextSource(source, base::leggiFile(source)))
        all.push_back({"line " + std::to_string(record.line), record.text[language]});
    return all;
}

// What the help says in it. The page of the glossary holds all languages at once; the words under
// which a page is found are left out: they may be those that a reader brings along.
std::vector<Passage> pages(std::size_t language) {
    const std::string_view tag = base::siglaLingua(static_cast<int>(language) + 1);
    const std::string file = KORVEN_PROGRAM_FOLDER "/module06" + std::string(tag) + ".hlp";
    std::vector<Passage> all;
    for (const auto& page : help::leggiGuida(file).pagine)
        if (page.nome != "glossario")
            all.push_back({std::string(tag) + ' ' + page.nome,
                           page.titolo + ' ' + help::testoPagina(page.html)});
    return all;
}

void expectNoneGivenUp(std::vector<Passage> (*passagesOf)(std::size_t), std::size_t atLeast) {
    for (std::size_t language = 1; language < 6; ++language) {
        const auto passages = passagesOf(language);
        ASSERT_GT(passages.size(), atLeast);
        for (const auto& given : words) {
            if (given.language != language) continue;
            const std::regex word(given.word);
            std::smatch found;
            for (const auto& [where, text] : passages)
                EXPECT_FALSE(std::regex_search(text, found, word))
                    << where << ": \"" << found.str() << "\" in \"" << text.substr(0, 200)
                    << "\": say " << given.instead;
        }
    }
}

TEST(TranslatedTerms, AreThoseThatTheGlossarySettledOn) { expectNoneGivenUp(texts, 700U); }

TEST(TranslatedTerms, AreThoseOfTheHelpToo) { expectNoneGivenUp(pages, 80U); }

}  // namespace
}  // namespace korven
