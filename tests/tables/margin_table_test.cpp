#include "tables/margin_table.hpp"

#include <gtest/gtest.h>

#include "safety/margin_words.hpp"
#include "safety/short_margin.hpp"
#include "support/result_tables.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::tables {
namespace {

using safety::Margine;
using test::posto;

Margine margine(const std::string& percorso) {
    return safety::margineBreve(test::leggiMuro(percorso), 50)->margine;
}

std::string file(const std::string& nome) {
    return std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd";
}

Margine esempio(const std::string& nome) { return margine(file(nome)); }

project::DatiProgetto dati(const std::string& nome) { return test::leggiMuro(file(nome)); }

TEST(ProspettoMargine, HasAStageInEachRowWithTheWordsOfTheMargin) {
    const Margine m = esempio("diaframma_due_ordini");
    const Prospetto p = prospettoMargine(m);
    ASSERT_EQ(p.righe.size(), 4u);
    const char* const F[] = {"2.98", "2.51", "1.96", "1.64"};  // by an independent calculation
    for (std::size_t i = 0; i < 4; ++i) {
        const auto& riga = p.righe[i];
        const auto& fase = m.fasi[i];
        EXPECT_EQ(riga[posto(p, "F")].testo, F[i]);
        EXPECT_EQ(riga[posto(p, "F")].numero, fase.riduzione.F);
        EXPECT_NEAR(*riga[posto(p, "F")].barra, *fase.riduzione.F / 3, 1e-12);
        EXPECT_EQ(riga[posto(p, "Passiva")].testo, safety::testoQuota(fase.passiva.quota));
        EXPECT_EQ(riga[posto(p, "Al limite [m]")].testo,
                  safety::testoTratti(fase.passiva.alLimite));
        EXPECT_EQ(riga[posto(p, "Piede")].numero, fase.piede.spostamento * 1000 + 0.0);
        EXPECT_EQ(riga[posto(p, "Moto con F")].testo, parole(fase.riduzione, m.paratia));
        EXPECT_FALSE(riga[posto(p, "F")].peso);  // above 1.5
    }
}

TEST(DidascaliaMeccanismo, TellsUnderWhichStrengthAWallThatStandsFalls) {
    EXPECT_EQ(
        didascaliaMeccanismo(esempio("diaframma_due_ordini")),
        "così cade, nella fase 4, con la resistenza del terreno divisa per F = 1.64; com'è, è "
        "in equilibrio");
    EXPECT_EQ(didascaliaMeccanismo(margine(std::string(KORVEN_WALLS) + "/meccanismo.kvd")), "");
}

// The picture has no room for the note that the table puts below a star.
TEST(DidascaliaMeccanismo, HasNoStarWhereTheSlopeEndsTheReduction) {
    Margine m = esempio("diaframma_due_ordini");
    m.fasi[3].riduzione.limitePendio = true;
    const std::string didascalia = didascaliaMeccanismo(m);
    EXPECT_NE(didascalia.find("F = 1.64; com'è, è in equilibrio"), std::string::npos) << didascalia;
    EXPECT_EQ(didascalia.find('*'), std::string::npos) << didascalia;
}

// A star sends to a note; where the last column says the same there is neither.
TEST(ProspettoMargine, SaysOnceThatTheSlopeOfTheGroundIsTheLimit) {
    Margine m = esempio("diaframma_due_ordini");
    m.fasi[3].riduzione.limitePendio = true;
    const std::size_t note = prospettoMargine(m).note.size();
    EXPECT_EQ(prospettoMargine(m).righe[3][posto(prospettoMargine(m), "F")].testo, "1.64 *");
    m.fasi[3].riduzione.moto.reset();
    const Prospetto p = prospettoMargine(m);
    EXPECT_EQ(p.righe[3][posto(p, "F")].testo, "1.64");
    EXPECT_EQ(p.righe[3][posto(p, "Moto con F")].testo,
              "oltre F l'angolo di attrito ridotto è minore della pendenza del terreno");
    EXPECT_EQ(p.note.size(), note - 1);
}

TEST(ProspettoMargine, WeighsAFactorAsTheRemarksDo) {
    const Margine m = margine(std::string(KORVEN_WALLS) + "/quasi_meccanismo.kvd");
    const Prospetto p = prospettoMargine(m);
    const Cella& F = p.righe[0][posto(p, "F")];
    ASSERT_LT(F.numero.value(), 1.25);
    EXPECT_EQ(F.peso, review::Peso::pericolo);
}

// Nobody is given a 10 that was never found.
TEST(ProspettoMargine, OfAFactorBeyondTheRangeHasNoNumberButAFullBar) {
    const Margine m = esempio("paratia_lunga_incastro");
    const Prospetto p = prospettoMargine(m);
    const Cella& F = p.righe[0][posto(p, "F")];
    EXPECT_EQ(F.testo, "> 10");
    EXPECT_FALSE(F.numero);
    EXPECT_EQ(F.ordine, 10);
    EXPECT_EQ(F.barra, 1);
    EXPECT_FALSE(p.note.empty());
}

TEST(ProspettoMargine, OfAMechanismShowsWhatItIsShortOf) {
    const Margine m = margine(std::string(KORVEN_WALLS) + "/meccanismo.kvd");
    const Prospetto p = prospettoMargine(m);
    EXPECT_EQ(p.righe[0][posto(p, "Moto con F")].testo,
              "ruota attorno alla profondità di 8.93 m, la testa verso lo scavo");
    EXPECT_EQ(p.righe[0][posto(p, "Piede")].testo, "-");
    EXPECT_LT(p.righe[0][posto(p, "F")].numero.value(), 1);
    EXPECT_EQ(verdetto(m).find("La paratia è un meccanismo nella fase 1"), 0u) << verdetto(m);
    EXPECT_TRUE(prospettoStatica(m, {}).righe.empty());
    EXPECT_TRUE(prospettoMaglia(m).righe.empty());
}

TEST(ProspettoStatica, HasAMomentAShearAndTheAnchorsOfEachStage) {
    const Margine m = esempio("diaframma_due_ordini");
    const Prospetto p = prospettoStatica(m, dati("diaframma_due_ordini"));
    ASSERT_EQ(p.righe.size(), 13u);  // two each, and 0 + 1 + 2 + 2 anchors
    const auto& ultima = m.fasi[3].confronto;
    EXPECT_EQ(p.righe[9][1].testo, "Momento [kN m/m]");
    EXPECT_EQ(p.righe[9][2].numero, ultima.momento.statica.valore * 10);
    EXPECT_EQ(p.righe[9][4].numero, ultima.momento.relazione->valore * 10);
    EXPECT_EQ(p.righe[10][3].numero, ultima.taglio.statica.z);
    EXPECT_EQ(p.righe[12][1].testo, "Tirante 2 [kN/m]");
    EXPECT_EQ(p.righe[12][2].numero, ultima.tiri[1].statica * 10);
}

TEST(ProspettoMaglia, HasTheErrorsOfTheMesh) {
    const Margine m = esempio("diaframma_due_ordini");
    const Prospetto p = prospettoMaglia(m);
    ASSERT_EQ(p.righe.size(), 5u + m.maglia->usi.size());
    EXPECT_EQ(p.colonne[1].titolo, "50 segmenti");
    EXPECT_EQ(p.colonne[2].titolo, "100 segmenti");
    EXPECT_EQ(p.colonne[3].titolo, "200 segmenti");
    EXPECT_EQ(p.righe[0][1].numero, m.maglia->momentoPositivo.valore * 10);
    EXPECT_EQ(p.righe[0][4].numero, *m.maglia->momentoPositivo.quota * 100);
    EXPECT_EQ(p.righe[3][3].numero, m.maglia->spostamento.fine * 1000);
    ASSERT_EQ(m.maglia->usi.size(), 2u);  // a diaphragm: bending both ways
    EXPECT_EQ(p.righe[5][0].testo, "Sfruttamento: flessione con momento positivo [%]");
    EXPECT_NEAR(*p.righe[5][3].numero, *m.maglia->usi[0].maglie[2]->uso() * 100, 1e-9);
}

TEST(Frasi, AreSentencesOfTheMargin) {
    const Margine m = esempio("diaframma_due_ordini");
    EXPECT_EQ(verdetto(m), safety::paroleDecisiva(m) + ".");
    const auto tutte = frasi(m);
    ASSERT_EQ(tutte.size(), 3u);
    EXPECT_EQ(tutte[0], safety::paroleLunghezza(m) + ".");
    EXPECT_EQ(tutte[1], safety::paroleMaglia(m) + ".");
    EXPECT_EQ(tutte[2], safety::paroleMetodo(m) + ".");
}

TEST(PercheSenzaOrdine, SaysOfEachCourseWhyItHasNoPower) {
    using enum safety::Andamento;
    EXPECT_EQ(percheSenzaOrdine(avvicinano), "");
    EXPECT_EQ(percheSenzaOrdine(uguali), "Le tre maglie danno lo stesso valore.");
    EXPECT_EQ(percheSenzaOrdine(alternano),
              "Le tre maglie si avvicinano a un valore dalle due parti: l'errore non ha un "
              "ordine.");
    EXPECT_EQ(percheSenzaOrdine(lontane),
              "Fra la seconda maglia e la terza il valore cambia quanto fra le prime due o di "
              "più: a che valore tende non si vede ancora.");
    EXPECT_TRUE(
        percheSenzaOrdine(vicine).starts_with("Le due maglie più fini differiscono di meno di 0."))
        << percheSenzaOrdine(vicine);
    EXPECT_TRUE(percheSenzaOrdine(strette).starts_with("Le tre maglie differiscono di meno di "))
        << percheSenzaOrdine(strette);
}

}  // namespace
}  // namespace korven::tables
