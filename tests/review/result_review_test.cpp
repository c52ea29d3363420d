#include "review/result_review.hpp"

#include <gtest/gtest.h>

#include "review/margins.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_files.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;

// A sheet pile of 6 m that nothing holds but its embedment of 1 m: it turns over.
DatiProgetto cheCade() { return test::muro().lungo(6).fase({.scavo = 5}).dati(); }

bool codice(const Osservazioni& osservazioni, std::string_view quale) {
    for (const auto& o : osservazioni)
        if (o.codice == quale) return true;
    return false;
}

TEST(EsaminaRisultati, TellsOfAWallThatFalls) {
    const Osservazioni r = esaminaRisultati(cheCade(), 50);
    ASSERT_EQ(r.size(), 1u);
    EXPECT_EQ(r[0].codice, "meccanismo");
}

TEST(EsaminaRisultati, SaysNothingOfWhatARunWouldRefuse) {
    const auto taciuto = [](auto cambia) {
        DatiProgetto dati = cheCade();
        cambia(dati);
        return esaminaRisultati(dati, 50).empty();
    };
    EXPECT_TRUE(taciuto([](DatiProgetto& d) { d.lunghezzaParatia = 0; }));
    EXPECT_TRUE(taciuto([](DatiProgetto& d) { d.nStrati = 0; }));
    EXPECT_TRUE(taciuto([](DatiProgetto& d) { d.nFasi = 0; }));
    EXPECT_TRUE(taciuto([](DatiProgetto& d) { d.rigidezzaEJ = 0; }));
    EXPECT_TRUE(taciuto([](DatiProgetto& d) { d.tirantiFase[1] = 21; }));
    EXPECT_TRUE(taciuto([](DatiProgetto& d) {
        d.sezione = structure::paliArmati();
        d.sezione.armNumLong = 1e9;
    }));
    EXPECT_FALSE(taciuto([](DatiProgetto&) {}));
}

TEST(EsaminaRisultati, TakesTheSegmentsThatARunCanTake) {
    DatiProgetto dati = cheCade();
    for (const int nSeg : {-1, 0, 2, 250}) EXPECT_TRUE(esaminaRisultati(dati, nSeg).empty());
    for (const int nSeg : {3, 249}) EXPECT_FALSE(esaminaRisultati(dati, nSeg).empty()) << nSeg;
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    dati.rigidezzaEJ = -1;
    EXPECT_TRUE(esaminaRisultati(dati, 249).empty());
    EXPECT_FALSE(esaminaRisultati(dati, 248).empty());
}

TEST(EsaminaRisultati, TakesAMissingStiffnessFromTheSection) {
    DatiProgetto dati = cheCade();
    dati.rigidezzaEJ = 0;
    dati.sezione = structure::diaframmaSimmetrico();
    EXPECT_TRUE(codice(esaminaRisultati(dati, 50), "meccanismo"));
}

TEST(EsaminaRisultati, TellsWhereTheSpecifiedRunEnds) {
    const auto sta = [](const std::string& nome) {
        return codice(
            esaminaRisultati(test::leggiMuro(std::string(KORVEN_WALLS) + "/" + nome + ".kvd"), 50),
            "iterazione-che-oscilla");
    };
    EXPECT_TRUE(sta("oscilla_1"));    // flips without end
    EXPECT_TRUE(sta("singolare_1"));  // meets a system without solution
    EXPECT_FALSE(sta("acqua_1000"));  // comes to rest
    EXPECT_FALSE(sta("meccanismo"));  // no wall that stands
}

// Ground that is not dug out, an element at 1 m and a force at the head.
Osservazioni conElemento(double pretensione, double tipo, double forza) {
    return esaminaRisultati(test::muro()
                                .tirante(1, 5000, pretensione, tipo)
                                .con(&DatiProgetto::forzaTesta, forza)
                                .fase({.tiranti = 1})
                                .dati(),
                            50);
}

TEST(EsaminaRisultati, TellsAnElementThatTheWallPushesUphillByItsKind) {
    constexpr double soloTrazione = 0, inDueSensi = 1;
    EXPECT_TRUE(codice(conElemento(0, soloTrazione, -20), "tirante-lento-nel-taglio"));
    EXPECT_FALSE(codice(conElemento(0, soloTrazione, 20), "tirante-lento-nel-taglio"));
    EXPECT_TRUE(codice(conElemento(0, inDueSensi, -20), "tiro-di-segno-opposto"));
    EXPECT_FALSE(codice(conElemento(0, inDueSensi, 20), "tiro-di-segno-opposto"));
    EXPECT_TRUE(codice(conElemento(20, inDueSensi, 0), "puntone-scaricato"));
    EXPECT_FALSE(codice(conElemento(20, soloTrazione, 0), "puntone-scaricato"));
}

// 10 t at the head are 200 kN in the report's first node.
TEST(EsaminaRisultati, TellsTheDoubleForceAtTheHead) {
    const auto mensola = [](double forza) {
        return esaminaRisultati(
            test::muro().con(&DatiProgetto::forzaTesta, forza).fase({.scavo = 1}).dati(), 50);
    };
    const Osservazioni doppia = mensola(10);
    ASSERT_TRUE(codice(doppia, "taglio-maggiore-della-statica"));
    for (const auto& o : doppia)
        if (o.codice == "taglio-maggiore-della-statica") {
            EXPECT_NE(o.testo.find("taglio massimo del diagramma -200.0 kN/m (fase 1, a 0.00 m)"),
                      std::string::npos)
                << o.testo;
            EXPECT_NE(o.testo.find("conta due volte la forza in testa"), std::string::npos);
            EXPECT_EQ(o.campi, std::vector<std::string>{"forzaTesta"});
        }
    EXPECT_FALSE(codice(mensola(0), "taglio-maggiore-della-statica"));
}

}  // namespace
}  // namespace korven::review
