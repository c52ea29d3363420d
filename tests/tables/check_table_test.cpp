#include "tables/check_table.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "base/number_text.hpp"
#include "safety/short_margin.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::tables {
namespace {

using live::PareteViva;

struct Muro {
    PareteViva parete;
    safety::Margine margine;
};

Muro muro(const std::string& percorso) {
    const auto dati = test::leggiMuro(percorso);
    PareteViva parete = live::calcola(dati);
    return {parete, safety::margineBreve(dati, parete.nSeg)->margine};
}

std::string esempio(const std::string& nome) {
    return std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd";
}

// The report of this example: design moment 1.4 times the largest of all stages, shear 1.4 times
// the largest of the last stage.
TEST(ProspettoVerifiche, HasTheNumbersTheDigitsAndTheVerdictsOfTheReport) {
    const Muro m = muro(esempio("pali_armati_staffe"));
    ASSERT_TRUE(m.margine.relazione);
    const auto& relazione = *m.margine.relazione;
    const Prospetto p = prospettoVerifiche(m.parete, m.margine);
    ASSERT_EQ(p.righe.size(), 4u);
    EXPECT_EQ(p.righe[0][0].testo, "Flessione, momento positivo [kN m/m]");
    EXPECT_EQ(p.righe[0][1].testo, base::formattaDecimali(relazione.flessione->mdMax * 10, 2));
    EXPECT_EQ(p.righe[0][2].testo, base::formattaDecimali(relazione.flessione->mrPos * 10, 2));
    EXPECT_DOUBLE_EQ(*p.righe[0][3].numero,
                     relazione.flessione->mdMax / relazione.flessione->mrPos * 100);
    EXPECT_EQ(p.righe[0][4].numero, relazione.momentoMassimo().fase);
    EXPECT_EQ(p.righe[0][5].numero, relazione.momentoMassimo().z);
    EXPECT_EQ(p.righe[1][0].testo, "Flessione, momento negativo [kN m/m]");
    EXPECT_EQ(p.righe[1][1].numero, relazione.flessione->mdMin * 10);
    EXPECT_EQ(p.righe[2][0].testo, "Taglio, bielle di calcestruzzo [kN/m]");
    EXPECT_EQ(p.righe[2][2].numero, relazione.taglioSezione->Vrd2);
    EXPECT_EQ(p.righe[3][2].numero, relazione.taglioSezione->Vrd3);
    EXPECT_EQ(p.righe[3][1].numero, relazione.taglioSezione->Vsd);
    EXPECT_EQ(p.righe[3][4].numero, static_cast<double>(relazione.fasi.size()));
    ASSERT_EQ(p.note.size(), 1u);
    EXPECT_EQ(p.note[0].find("Numeri e regole della relazione"), 0u);
}

TEST(ProspettoVerifiche, MarksAVerdictThatFails) {
    const auto dati = test::leggiMuro(esempio("pali_armati_staffe"));
    project::DatiProgetto debole = dati;
    debole.sezione.armDiamLong /= 4;
    const PareteViva parete = live::calcola(debole);
    const auto breve = safety::margineBreve(debole, parete.nSeg);
    const Prospetto p = prospettoVerifiche(parete, breve->margine);
    EXPECT_EQ(p.righe[0][6].testo, "NON verificata");
    EXPECT_EQ(p.righe[0][6].peso, review::Peso::pericolo);
    const Prospetto q = prospettoVerificheRelazione(parete, breve->margine);
    EXPECT_EQ(q.righe[0][6].testo, "CONDIZIONI DI SICUREZZA NON VERIFICATE (momento positivo)");
    EXPECT_EQ(q.righe[0][6].peso, review::Peso::pericolo);
    EXPECT_GT(*p.righe[0][3].numero, 100);
}

// The report says that it holds.
TEST(ProspettoVerifiche, TellsAVerdictThatAFinerMeshTurns) {
    const Muro m = muro(esempio("paratia_lunga_incastro"));
    const Prospetto p = prospettoVerifiche(m.parete, m.margine);
    EXPECT_EQ(p.righe[0][6].testo, "verificata");
    EXPECT_EQ(p.righe[1][6].testo, "non a convergenza");
    EXPECT_EQ(p.righe[1][6].peso, review::Peso::pericolo);
    EXPECT_EQ(p.note.back().find("Il verdetto non è a convergenza"), 0U);
    EXPECT_EQ(prospettoVerificheRelazione(m.parete, m.margine).righe[1][6].testo,
              "Condizioni di sicurezza verificate (momento negativo)");
}

// A wall that stands and of which the specified run finds no rest.
TEST(ProspettoVerifiche, TakesTheEquilibriumWhereThereIsNoReportAndSaysSo) {
    auto dati = test::leggiMuro(std::string(KORVEN_WALLS) + "/oscilla_2.kvd");
    dati.sezione = test::leggiMuro(esempio("pali_armati_staffe")).sezione;
    const PareteViva parete = live::calcola(dati);
    const auto breve = safety::margineBreve(dati, parete.nSeg);
    ASSERT_TRUE(parete.sta() && breve && !breve->margine.relazione);
    const Prospetto p = prospettoVerifiche(parete, breve->margine);
    ASSERT_GE(p.righe.size(), 3u);
    const auto& e = parete.estremi;
    EXPECT_EQ(p.righe[0][1].numero, 1.4 * e.momentoMassimo.valore * 10);
    EXPECT_EQ(p.righe[0][5].numero, e.momentoMassimo.z);
    const auto& taglio = p.righe.back();
    EXPECT_NEAR(*taglio[1].numero, 1.4 * std::fabs(e.taglio.valore) * 10, 1e-9);
    EXPECT_EQ(taglio[4].numero, e.taglio.fase);
    ASSERT_EQ(p.note.size(), 2u);
    EXPECT_EQ(p.note[0].find("La relazione non ha numeri"), 0u) << p.note[0];
    EXPECT_EQ(p.note[1].find("Verifiche con i numeri della soluzione di equilibrio"), 0u);
}

TEST(ProspettoVerifiche, OfAWallThatFallsOrWithoutASectionHasNoRows) {
    const Muro caduto = muro(std::string(KORVEN_WALLS) + "/meccanismo.kvd");
    const Prospetto p = prospettoVerifiche(caduto.parete, caduto.margine);
    EXPECT_TRUE(p.righe.empty());
    EXPECT_EQ(p.note.back(), "Nessuna verifica: la paratia non è in equilibrio.");

    const PareteViva nudo = live::calcola(test::progettoSemplice());
    const auto breve = safety::margineBreve(test::progettoSemplice(), nudo.nSeg);
    const Prospetto q = prospettoVerifiche(nudo, breve->margine);
    EXPECT_TRUE(q.righe.empty());
    ASSERT_EQ(q.note.size(), 1u);
    EXPECT_EQ(q.note[0], "Nessuna verifica: la sezione non è definita.");
}

TEST(Cifre, HaveANoughtBeforeThePointThoughTheReportHasNone) {
    EXPECT_EQ(cifre(-0.06).testo, "-0.06");
    EXPECT_EQ(cifre(0.5).testo, "0.50");
    EXPECT_EQ(cifre(-12.34).testo, "-12.34");
}

}  // namespace
}  // namespace korven::tables
