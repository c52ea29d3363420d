// docs/glossary.md settles one term for each thing. These are the words that it gave up: a text
// that takes one of them again gives one thing two names.

#include <gtest/gtest.h>

#include <array>
#include <regex>
#include <string>

#include "base/files.hpp"
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
    {2, "note de calcul", "rapport"},
    {2, "structural\\b|structurale", "structurel"},
    {2, "\\b[Aa]iles?\\b", "âme, demi-âme"},
    {2, "[Nn]ombre d'armatures", "nombre de barres"},
    {2, "Entraxe des pieux", "espacement"},
    {2, "[Éé]quilibre certain", "solution d'équilibre"},
    {2, "\\b[Aa]ncrages?\\b", "tirant"},
    {3, "\\balas?\\b|\\bAlas?\\b", "alma, media alma"},
    {3, "[Nn]úmero de armaduras", "número de barras"},
    {3, "memorizado", "guardado"},
    {3, "\\b[Oo]rden siguiente", "comando siguiente"},
    {3, "[Ee]quilibrio cierto", "solución de equilibrio"},
    {4, "\\b[Pp]itch\\b", "spacing"},
    {4, "\\b[Ll]eg (width|height|thickness)|\\b[Ff]lat (width|thickness)", "web, flange"},
    {4, "saturated weight|a weight in kN", "unit weight"},
    {4, "[Ff]loor of the excavation", "excavation level"},
    {4, "wall top", "wall head"},
    {4, "can't", "cannot"},
    {4, "\\brecomputed\\b", "recalculated"},
    {4, "[Cc]ertain equilibrium", "equilibrium solution"},
    {4, "staged calculation", "staged run"},
    {4, "\\b[Ii]mprint\\b", "fingerprint"},
    {4, "\\b[Ww]eight danger|\\bUse in (bending|shear)", "rated danger; utilization"},
    {5, "\\babas?\\b|\\bAbas?\\b", "alma, meia alma"},
    {5, "\\bcortinas?\\b(?! de estacas| e paredes)", "parede; cortina de estacas alone for piles"},
    {5, "[Ee]quilíbrio certo", "solução de equilíbrio"},
    {5, "intradorso", "lado da escavação"},
    {5, "verificação ao corte", "verificação ao esforço transverso"},
    {5, "\\bdobrad[ao]s?\\b", "duplicado"},
};

TEST(TranslatedTerms, AreThoseThatTheGlossarySettledOn) {
    const std::string source = KORVEN_DATA_FOLDER "/texts.txt";
    const auto records = tools::readTextSource(source, base::leggiFile(source));
    ASSERT_GT(records.size(), 700U);
    for (const auto& given : words) {
        const std::regex word(given.word);
        for (const auto& record : records) {
            const std::string& text = record.text[given.language];
            EXPECT_FALSE(std::regex_search(text, word))
                << "line " << record.line << ": \"" << text << "\": say " << given.instead;
        }
    }
}

}  // namespace
}  // namespace korven
