// No table has a blank without a reason.

#include <gtest/gtest.h>

#include <filesystem>

#include "safety/short_margin.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_files.hpp"
#include "tables/anchor_table.hpp"
#include "tables/check_table.hpp"
#include "tables/margin_table.hpp"
#include "tables/node_table.hpp"
#include "tables/section_table.hpp"
#include "tables/stage_table.hpp"

namespace korven::tables {
namespace {

struct Conto {
    int vuote = 0;  // cells that have nothing to show

    void guarda(const Prospetto& p, const std::string& quale) {
        if (p.righe.empty()) {
            EXPECT_FALSE(p.note.empty()) << quale << ": " << p.titolo;
        }
        for (const auto& riga : p.righe)
            for (const Cella& c : riga) {
                if (c.testo != nessuno) continue;
                ++vuote;
                EXPECT_FALSE(c.perche.empty()) << quale << ": " << p.titolo << " " << riga[0].testo
                                               << " column " << &c - riga.data();
            }
    }
    void tutte(const project::DatiProgetto& dati, const std::string& quale) {
        const auto parete = live::calcola(dati);
        guarda(prospettoFasi(parete), quale);
        guarda(prospettoNodi(parete, dati.nFasi), quale);
        guarda(prospettoInviluppo(parete), quale);
        const auto breve = safety::margineBreve(dati, parete.nSeg);
        if (!breve) return;
        const safety::Margine& m = breve->margine;
        guarda(prospettoTiranti(parete, &m), quale);
        guarda(prospettoVerifiche(parete, m), quale);
        guarda(prospettoMargine(m), quale);
        guarda(prospettoStatica(m, dati), quale);
        guarda(prospettoMaglia(m), quale);
        if (live::calcola(dati).dati.sezione.tipoPalancola)
            guarda(quadroSezione(dati, parete, &m).verifiche, quale);
    }
};

TEST(PerchePerProspetto, IsGivenForEachBlankOfEveryExample) {
    Conto conto;
    for (const auto& voce : std::filesystem::directory_iterator(KORVEN_EXAMPLES))
        if (voce.path().extension() == ".kvd")
            conto.tutte(test::leggiMuro(voce.path().string()), voce.path().filename().string());
    EXPECT_GT(conto.vuote, 10);
}

TEST(PerchePerProspetto, IsGivenForEachBlankOfAWallThatFalls) {
    Conto conto;
    auto dati = test::progettoSemplice();
    dati.sezione = structure::palancola();
    dati.tirantiFase[2] = 0;
    dati.profFase[2] = 9;
    conto.tutte(dati, "second stage falls");
    dati.profFase[1] = dati.profFase[2];
    dati.tirantiFase[1] = 0;
    conto.tutte(dati, "first stage falls");
    EXPECT_GT(conto.vuote, 10);
}

}  // namespace
}  // namespace korven::tables
