// Tables on the pages of a document.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "support/laid_out.hpp"
#include "support/page_boxes.hpp"
#include "support/page_faults.hpp"
#include "support/sample_document.hpp"

namespace korven::document {
namespace {

using test::difetti;
using test::posto;
using test::righe;
using test::righePerPagina;
using test::testi;

TEST(Impagina, PartsNoTableByADrawing) {
    const Figura figura{"Inviluppi", "", 17, 12, [] {}};
    for (int sopra = righePerPagina() / 3; sopra < righePerPagina(); ++sopra) {
        const Impaginato fatto = posto({righe(sopra), figura, Tavola{test::nodi(60)}});
        EXPECT_EQ(test::tavoleTorte(fatto), "") << sopra;
        EXPECT_EQ(difetti(fatto), "");
    }
}

// With it the second page would be as full as the first.
TEST(Impagina, KeepsAVerdictWithItsTable) {
    std::string giudizio = "Verificata.";
    for (int i = 1; i < 12; ++i) giudizio += "\nperché";
    for (const Stile stile : {Stile::rilievo, Stile::pericolo, Stile::normale}) {
        const Impaginato fatto =
            posto({righe(23), Tavola{test::larga(3, 6)}, Paragrafo{giudizio, stile},
                   test::figura(17, 9.5), test::figura(17, 22)});
        EXPECT_EQ(testi(fatto, 0).find("Verificata.") != std::string::npos,
                  stile != Stile::normale);
    }
}

TEST(Impagina, LetsNoNoteOfATableHeadAPage) {
    for (int prima = righePerPagina() - 16; prima <= righePerPagina(); ++prima) {
        auto tavola = test::larga(3, 6);
        const Impaginato sola =
            posto({righe(prima), Tavola{tavola}, Paragrafo{"Vale per tutte.", Stile::nota}});
        tavola.note = {"Vale per tutte."};
        for (const Impaginato& fatto : {sola, posto({righe(prima), Tavola{tavola}})})
            for (std::size_t i = 0; i < fatto.pagine.size(); ++i)
                EXPECT_FALSE(testi(fatto, i).starts_with("Vale")) << prima;
    }
}

TEST(Impagina, SetsThePointsOfAColumnBelowOneAnother) {
    tables::Prospetto p;
    p.colonne = {{"Nome", "", "", false}, {"Valore", "m", ""}};
    for (const char* testo : {"1.5", "-120.25", "7", "0.125"})
        p.righe.push_back({{.testo = "x"}, {.testo = testo, .numero = 1.0}});
    const Impaginato fatto = posto({Tavola{p}});
    const CaratteriStimati misura;
    std::vector<double> punti;
    for (const auto& s : fatto.pagine[0].scritte)
        if (s.testo == "1.5" || s.testo == "-120.25" || s.testo == "7" || s.testo == "0.125")
            punti.push_back(s.x +
                            misura.larghezza(s.testo.substr(0, s.testo.find('.')), s.carattere));
    ASSERT_EQ(punti.size(), 4U);
    for (const double x : punti) EXPECT_NEAR(x, punti[0], 1e-9);
}

TEST(Impagina, RepeatsTheHeadOfATableThatGoesOnAndTearsNoRow) {
    const Impaginato fatto = posto({Tavola{test::nodi(130)}});
    ASSERT_GE(fatto.pagine.size(), 3U);
    std::size_t righeViste = 0;
    for (std::size_t i = 0; i < fatto.pagine.size(); ++i) {
        const std::string pagina = testi(fatto, i);
        const std::string titolo = i == 0 ? "Nodi della fase 2|" : "Nodi della fase 2 (segue)|";
        EXPECT_TRUE(pagina.starts_with(titolo)) << pagina.substr(0, 60);
        EXPECT_NE(pagina.find("[kN m/m]"), std::string::npos);
        std::map<double, int> perRiga;
        for (const auto& s : fatto.pagine[i].scritte) ++perRiga[s.y];
        righeViste += static_cast<std::size_t>(
            std::count_if(perRiga.begin(), perRiga.end(), [](auto& r) { return r.second == 7; }));
    }
    // The last line of the head has a text in each column too.
    EXPECT_GE(righeViste, 130U);
    EXPECT_EQ(difetti(fatto), "");
}

TEST(Impagina, SaysOnceThatATablePartedByColumnsGoesOn) {
    const Impaginato fatto = posto({Tavola{test::larga(40, 130)}});
    std::size_t seguiti = 0;
    for (std::size_t i = 0; i < fatto.pagine.size(); ++i)
        for (const auto& s : fatto.pagine[i].scritte)
            if (s.testo.starts_with("Tiri dei tiranti") &&
                s.testo.find("(segue)") != s.testo.npos) {
                EXPECT_EQ(s.testo, "Tiri dei tiranti in ogni fase (segue)");
                ++seguiti;
            }
    // Three parts at least, each on three pages.
    EXPECT_GE(seguiti, 8U);
}

TEST(Impagina, LeavesNeitherTheFirstNorTheLastRowOfATableAlone) {
    for (int prima = righePerPagina() - 14; prima <= righePerPagina(); ++prima) {
        const Impaginato fatto = posto({righe(prima), Tavola{test::larga(3, 6)}});
        for (std::size_t i = 0; i < fatto.pagine.size(); ++i) {
            const std::string pagina = testi(fatto, i);
            const auto c_e = [&](const char* t) { return pagina.find(t) != std::string::npos; };
            EXPECT_EQ(c_e("Tirante 1|"), c_e("Tirante 2|")) << prima;
            EXPECT_EQ(c_e("Tirante 5|"), c_e("Tirante 6|")) << prima;
        }
    }
}

TEST(Impagina, TearsNoTableOfFewRows) {
    for (int prima = righePerPagina() - 20; prima <= righePerPagina(); ++prima) {
        const Impaginato fatto = posto({righe(prima), Tavola{test::larga(3, 8)}});
        for (std::size_t i = 0; i < fatto.pagine.size(); ++i) {
            const std::string pagina = testi(fatto, i);
            EXPECT_EQ(pagina.find("Tirante 1|") == std::string::npos,
                      pagina.find("Tirante 8|") == std::string::npos)
                << prima;
        }
    }
}

TEST(Impagina, KeepsAShortTextWithTheTableThatItIntroduces) {
    for (int prima = righePerPagina() - 20; prima <= righePerPagina(); ++prima) {
        const Impaginato fatto =
            posto({righe(prima), Titolo{2, "Tiranti"}, Paragrafo{"Forze"},
                   Paragrafo{"orizzontali", Stile::nota}, Tavola{test::nodi(60)}});
        for (std::size_t i = 0; i < fatto.pagine.size(); ++i) {
            const std::string pagina = testi(fatto, i);
            if (pagina.find("Tiranti|") == std::string::npos) continue;
            EXPECT_NE(pagina.find("Tiranti|Forze|orizzontali|Nodi della fase 2|"),
                      std::string::npos)
                << prima;
        }
    }
}

TEST(Impagina, PartsARowThatIsHigherThanAPageBetweenItsLines) {
    std::string lungo;
    for (int i = 0; i < 2000; ++i) lungo += "parola" + std::to_string(i) + " ";
    tables::Prospetto p;
    p.titolo = "Lunga";
    p.colonne = {{"Nome", "", "", false}, {"Testo", "", "", false}};
    p.righe = {{{.testo = "uno"}, {.testo = lungo}}, {{.testo = "due"}, {.testo = "corto"}}};
    const Impaginato fatto = posto({Tavola{p}});
    EXPECT_EQ(difetti(fatto), "");
    std::string tutti;
    for (std::size_t i = 0; i < fatto.pagine.size(); ++i) tutti += testi(fatto, i) + "|";
    for (const char* parola : {"parola0 ", "parola777 ", "parola1999|", "corto"})
        EXPECT_NE(tutti.find(parola), std::string::npos) << parola;
}

TEST(Impagina, TellsWhyCellsHaveNothingToShow) {
    const std::string pagina = testi(posto({Tavola{test::nodi(5)}}), 0);
    EXPECT_NE(pagina.find("Sopra lo scavo non c'è terreno a valle."), std::string::npos);
}

TEST(Impagina, ShowsTitleAndNotesOfAnEmptyTable) {
    tables::Prospetto p;
    p.titolo = "Tiranti";
    p.colonne = {{"Nome", "", "", false}};
    p.note = {"Il progetto non ha né tiranti né puntoni."};
    EXPECT_EQ(testi(posto({Tavola{p}}), 0), "Tiranti|Il progetto non ha né tiranti né puntoni.");
}

}  // namespace
}  // namespace korven::document
