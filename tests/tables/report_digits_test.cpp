#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "base/text_lines.hpp"
#include "project/shown_number.hpp"
#include "safety/short_margin.hpp"
#include "support/result_tables.hpp"
#include "support/wall_files.hpp"
#include "tables/anchor_table.hpp"
#include "tables/check_table.hpp"
#include "tables/margin_table.hpp"

// What is called the report's number stands in the report, digit by digit: against the reports of
// an independent calculation.

namespace korven::tables {
namespace {

using test::posto;

constexpr int nSeg = 24;  // of those reports

struct Stampati {
    std::vector<std::string> tiri;
    std::map<std::string, std::string> voci;  // of its lists, by caption without the unit
};

Stampati leggi(const std::filesystem::path& percorso) {
    auto file = base::LettoreRighe::apri(percorso.string());
    Stampati stampati;
    bool tiranti = false;
    while (!file.fine()) {
        const std::string riga = file.riga("riga");
        if (riga.starts_with("MASSIME TENSIONI")) tiranti = true;
        if (riga.starts_with("#ENDTABLE")) tiranti = false;
        const auto tab = riga.find('\t');
        if (tab == std::string::npos) continue;
        const std::string valore = riga.substr(tab + 1);
        if (!tiranti)
            stampati.voci[riga.substr(0, riga.find(" ["))] = valore;
        else if (!valore.starts_with("Tensione"))
            stampati.tiri.push_back(valore);
    }
    return stampati;
}

struct Mostrati {
    Prospetto tiranti, verifiche, statica;
};

Mostrati mostra(const std::string& muro, int segmenti) {
    const live::PareteViva parete = live::calcola(test::leggiMuro(muro), segmenti);
    const auto breve = safety::margineBreve(parete.dati, parete.nSeg);
    return {prospettoTiranti(parete, &breve->margine), prospettoVerifiche(parete, breve->margine),
            prospettoStatica(breve->margine, parete.dati)};
}

int confrontaTiri(const Stampati& stampati, const Prospetto& tiranti) {
    const std::size_t colonna = posto(tiranti, "Relazione");
    EXPECT_EQ(tiranti.righe.size(), stampati.tiri.size());
    for (std::size_t j = 0; j < stampati.tiri.size(); ++j)
        EXPECT_EQ(tiranti.righe.at(j)[colonna].testo, stampati.tiri[j]);
    return static_cast<int>(stampati.tiri.size());
}

int confrontaVerifiche(const Stampati& stampati, const Prospetto& verifiche) {
    const std::tuple<const char*, const char*, const char*> righe[] = {
        {"Flessione, momento positivo [kN m/m]", "Momento massimo di calcolo applicato (pos)",
         "Momento resistente di calcolo (pos.)"},
        {"Flessione, momento negativo [kN m/m]", "Momento massimo di calcolo applicato (neg)",
         "Momento resistente di calcolo (neg.)"},
        {"Taglio, bielle di calcestruzzo [kN/m]", "Taglio massimo di calcolo - Vsd",
         "Capacità portante bielle CLS - Vrd2"},
        {"Taglio, armatura d'anima [kN/m]", "Taglio massimo di calcolo - Vsd",
         "Capacità portante armatura d'anima - Vrd3"}};
    for (const auto& riga : verifiche.righe)
        for (const auto& [verifica, progetto, resistenza] : righe)
            if (riga[0].testo == verifica) {
                EXPECT_EQ(riga[1].testo, stampati.voci.at(progetto));
                EXPECT_EQ(riga[2].testo, stampati.voci.at(resistenza));
            }
    return static_cast<int>(verifiche.righe.size());
}

TEST(NumeriDellaRelazione, StandInItDigitByDigit) {
    int tiri = 0, verifiche = 0;
    for (const std::string& muro : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(muro);
        const auto nome = std::filesystem::path(muro).stem().string() + ".TAB";
        const Stampati stampati =
            leggi(std::filesystem::path(KORVEN_GOLDEN_FOLDER) / "examples" / nome);
        const Mostrati mostrati = mostra(muro, nSeg);
        tiri += confrontaTiri(stampati, mostrati.tiranti);
        verifiche += confrontaVerifiche(stampati, mostrati.verifiche);
    }
    EXPECT_EQ(tiri, 10);
    EXPECT_GE(verifiche, 12);
}

// 209.468 kN: the report cuts where the tables round.
TEST(NumeriDellaRelazione, AreCutAsItCutsThem) {
    const Mostrati m = mostra(std::string(KORVEN_EXAMPLES) + "/pali_armati_staffe.kvd", 50);
    EXPECT_EQ(m.tiranti.righe[0][posto(m.tiranti, "Relazione")].testo, "209.46");
    const auto& statica = m.statica;
    EXPECT_EQ(statica.righe.back()[1].testo, "Tirante 1 [kN/m]");
    for (const auto& riga : statica.righe) {
        if (!riga[4].numero) continue;
        EXPECT_EQ(riga[4].testo, project::numeroRelazione(*riga[4].numero));
    }
    const auto taglio = statica.righe[statica.righe.size() - 2][4].testo;
    EXPECT_EQ(taglio.substr(taglio.find_first_not_of('-')), "182.66");
}

}  // namespace
}  // namespace korven::tables
