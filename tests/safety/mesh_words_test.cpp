#include "safety/mesh_words.hpp"

#include <gtest/gtest.h>

namespace korven::safety {
namespace {

using results::Uso;
using results::Verifica;

Margine inEquilibrio() {
    Margine m;
    m.nSeg = 50;
    m.fasi.resize(1);
    m.fasi[0].esito = equilibrium::EsitoFase::equilibrio;
    return m;
}

// Uses of a resistance of 100.
UsoMaglia usi(Verifica cosa, double n, double doppia, double quadrupla) {
    const auto uso = [](double u) { return Uso{u, 100, u >= 100}; };
    return {cosa, {uso(n), uso(doppia), uso(quadrupla)}};
}

Margine con(std::vector<UsoMaglia> usi) {
    Margine m = inEquilibrio();
    m.maglia = ErroreMaglia{};
    m.maglia->usi = std::move(usi);
    return m;
}

TEST(ParoleUsiMaglia, TellTheUsesOfThreeMeshes) {
    EXPECT_EQ(paroleUsiMaglia(con({usi(Verifica::momentoPositivo, 90.2, 95.14, 98.9),
                                   usi(Verifica::bielle, 40, 40.04, 40)})),
              "Sfruttamenti con 50, 100 e 200 segmenti: flessione con momento positivo 90.2, 95.1 "
              "e 98.9 %; taglio delle bielle di calcestruzzo 40.0, 40.0 e 40.0 %");
    EXPECT_EQ(paroleUsiMaglia(con({})), "");
    EXPECT_EQ(paroleUsiMaglia(inEquilibrio()), "");
}

TEST(AvvisiMaglia, TellAUseThatGrowsByMoreThanATwentiethOfItself) {
    const auto avvisi = avvisiMaglia(
        con({usi(Verifica::momentoPositivo, 80.2, 85.1, 87.9),
             usi(Verifica::momentoNegativo, 60, 62, 62.9), usi(Verifica::armatura, 50, 49, 40)}));
    ASSERT_EQ(avvisi.size(), 1U);
    EXPECT_FALSE(avvisi[0].verdetto);
    EXPECT_EQ(avvisi[0].testo,
              "Una maglia più fine dà uno sfruttamento maggiore: flessione con momento positivo "
              "da 80.2 % con 50 segmenti a 87.9 % con 200. Tenere conto della differenza, o "
              "aumentare i segmenti.");
}

// It holds with all three meshes, and would fail with finer ones.
TEST(AvvisiMaglia, TellAVerdictThatIsNotSettled) {
    const auto avvisi = avvisiMaglia(con({usi(Verifica::momentoNegativo, 90.2, 94.5, 98.2),
                                          usi(Verifica::momentoPositivo, 80, 85, 87.5)}));
    ASSERT_EQ(avvisi.size(), 2U);
    EXPECT_TRUE(avvisi[0].verdetto);
    EXPECT_EQ(avvisi[0].testo,
              "Il verdetto non è a convergenza: lo sfruttamento cresce, flessione con momento "
              "negativo da 90.2 % "
              "con 50 segmenti a 98.2 % con 200, verso 101.9 % con maglie sempre più fini. Con "
              "queste maglie la sezione è verificata, con il valore a cui tendono no: verificarla "
              "con quello.");
    EXPECT_FALSE(avvisi[1].verdetto);
}

TEST(AvvisiMaglia, AreSilentOnASmallUse) {
    EXPECT_TRUE(avvisiMaglia(con({usi(Verifica::momentoNegativo, 2, 2.4, 2.9)})).empty());
    EXPECT_EQ(avvisiMaglia(con({usi(Verifica::momentoNegativo, 2, 2.4, 3.1)})).size(), 1U);
}

TEST(AvvisiMaglia, TellAVerdictThatAFinerMeshChangesEitherWay) {
    for (const auto& [n, doppia, quadrupla, detto] :
         {std::tuple(99.0, 99.5, 101.3, "da 99.0 % con 50 segmenti a 101.3 % con 200"),
          std::tuple(99.0, 101.3, 99.5, "da 99.0 % con 50 segmenti a 101.3 % con 100"),
          std::tuple(101.0, 99.9, 98.0, "da 101.0 % con 50 segmenti a 98.0 % con 200")}) {
        const auto avvisi =
            avvisiMaglia(con({usi(Verifica::momentoPositivo, n, doppia, quadrupla)}));
        ASSERT_EQ(avvisi.size(), 1U);
        EXPECT_TRUE(avvisi[0].verdetto);
        EXPECT_NE(avvisi[0].testo.find(detto), std::string::npos) << avvisi[0].testo;
        EXPECT_EQ(avvisi[0].testo.find("Una maglia più fine cambia il verdetto: "), 0U);
    }
}

TEST(AvvisiMaglia, TellAFinerMeshWithoutEquilibrium) {
    const auto avvisi = avvisiMaglia(inEquilibrio());
    ASSERT_EQ(avvisi.size(), 1U);
    EXPECT_TRUE(avvisi[0].verdetto);
    EXPECT_EQ(avvisi[0].testo.find("Con una maglia più fine una fase non è in equilibrio"), 0U);
    Margine caduto = inEquilibrio();
    caduto.fasi[0].esito = equilibrium::EsitoFase::meccanismo;
    EXPECT_TRUE(avvisiMaglia(caduto).empty());
}

}  // namespace
}  // namespace korven::safety
