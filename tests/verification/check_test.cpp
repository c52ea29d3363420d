#include "verification/check.hpp"

#include <gtest/gtest.h>

#include "base/files.hpp"
#include "verification/case_reader.hpp"
#include "verification/table.hpp"
#include "verification/words.hpp"

namespace korven::verification {
namespace {

const std::string sbagliato = std::string(KORVEN_CASES_OF_TESTS) + "/deve_fallire.txt";

Caso letto(std::string testo) { return leggiCaso("prova.txt", testo, KORVEN_EXAMPLES); }

TEST(EseguiCaso, FailsWhereTheExpectedValueIsWrong) {
    const Caso caso = leggiCaso(sbagliato, base::leggiFile(sbagliato), KORVEN_EXAMPLES);
    const EsitoCaso esito = esegui(caso);
    EXPECT_EQ(esito.verdetto, Verdetto::fallito);
    // Two methods for each of the two values; the moment is right.
    ASSERT_EQ(esito.confronti.size(), 4U);
    EXPECT_FALSE(esito.confronti[0].buono);
    EXPECT_FALSE(esito.confronti[1].buono);
    EXPECT_TRUE(esito.confronti[2].buono);
    EXPECT_NEAR(*esito.confronti[0].quota(), -0.5, 0.01);
}

TEST(EseguiCaso, PassesOnceTheValueIsRight) {
    std::string testo = base::leggiFile(sbagliato);
    testo.replace(testo.find("= 288"), 5, "= 144");
    const Caso caso = letto(testo);
    EXPECT_EQ(esegui(caso).verdetto, Verdetto::buono);
}

TEST(EseguiCaso, ListsAKnownMissAndDoesNotCountIt) {
    Gruppo gruppo;
    gruppo.casi.push_back(letto("noto: because\n" + base::leggiFile(sbagliato)));
    const std::vector<Gruppo> gruppi = {gruppo};
    const EsitoVerifica esito = esegui(gruppi);
    EXPECT_EQ(esito.conta(Verdetto::noto), 1);
    EXPECT_EQ(esito.conta(Verdetto::fallito), 0);
    EXPECT_TRUE(esito.superata());
}

// A known miss that is met would hide the next one.
TEST(EseguiCaso, TellsAKnownMissThatIsOneNoLonger) {
    std::string testo = "noto: because\n" + base::leggiFile(sbagliato);
    Gruppo gruppo;
    gruppo.casi.push_back(letto(testo));
    testo.replace(testo.find("= 288"), 5, "= 144");
    gruppo.casi.push_back(letto(testo));
    const std::vector<Gruppo> gruppi = {gruppo};
    const EsitoVerifica esito = esegui(gruppi);
    EXPECT_FALSE(esito.gruppi[0].casi[0].rientrato());
    EXPECT_TRUE(esito.gruppi[0].casi[1].rientrato());
    EXPECT_TRUE(esito.superata());
    EXPECT_EQ(sommario(esito),
              "Casi: 2; buoni: 0; falliti: 0; differenze note: 2. Differenze note che non ci sono "
              "più: 1.");
    const tables::Prospetto p = prospetto(esito.gruppi[0]);
    ASSERT_EQ(p.righe.size(), 8U);
    EXPECT_EQ(p.righe[0].back().testo, "noto");
    EXPECT_EQ(p.righe[2].back().testo, "buono");  // the moment was right all along
    EXPECT_EQ(p.righe[4].back().testo, "noto, ma rientra");
    ASSERT_EQ(p.note.size(), 2U);
    EXPECT_EQ(p.note[0], "prova: because");
    EXPECT_EQ(p.note[1].find("prova: la differenza nota non c'è più"), 0U) << p.note[1];
}

TEST(EseguiCaso, FailsWhereThereIsNoNumber) {
    // The wall falls: nothing below the excavation holds it.
    const Caso caso = letto(
        "titolo: T\nfonte: F\n[parete]\nlunghezzaParatia = 5\nrigidezzaEJ = 5000\n"
        "profStrato = 20\ngammaN = 18\nphiStrato = 30\nksStrato = 20000\nprofFase = 4.5\n"
        "[attesi]\nmomento_massimo = 10 kN m/m entro 1000 %\nesito = meccanismo\n");
    const EsitoCaso esito = esegui(caso);
    EXPECT_EQ(esito.verdetto, Verdetto::fallito);
    EXPECT_FALSE(esito.confronti[0].ottenuto);
    EXPECT_EQ(ottenuto(esito.confronti[0]), "-");
    EXPECT_FALSE(esito.confronti[1].ottenuto);
    EXPECT_TRUE(esito.confronti[2].buono);
}

TEST(EseguiCaso, ComparesTwoRuns) {
    const std::string inizio =
        "titolo: T\nfonte: F\n[parete]\nlunghezzaParatia = 10\nrigidezzaEJ = 5000\n"
        "profStrato = 100\ncoesione = 10000\nksStrato = 2000\nsovraccMonte = 5000\n"
        "sovraccFase = 5000\nprofFase = 0\nforzaTesta = 50\n"
        "[variante]\nforzaTesta = 100\n[attesi]\n";
    EXPECT_EQ(esegui(letto(inizio + "spostamento z 0 = variante x 0.5 entro 0.001 %\n")).verdetto,
              Verdetto::buono);
    EXPECT_EQ(esegui(letto(inizio + "spostamento z 0 = variante entro 1 %\n")).verdetto,
              Verdetto::fallito);
}

TEST(Sommario, CountsTheCases) {
    Gruppo gruppo;
    gruppo.casi.push_back(letto(base::leggiFile(sbagliato)));
    const std::vector<Gruppo> gruppi = {gruppo};
    EXPECT_EQ(sommario(esegui(gruppi)), "Casi: 1; buoni: 0; falliti: 1; differenze note: 0.");
}

TEST(Parole, HaveANameForPeopleAndOneForPrograms) {
    EXPECT_EQ(parole(Metodo::corsa), "Relazione");
    EXPECT_EQ(parole(Metodo::equilibrio), "Equilibrio");
    EXPECT_EQ(parole(Metodo::sezione), "Sezione");
    EXPECT_EQ(codice(Metodo::corsa), "relazione");
    EXPECT_EQ(codice(Metodo::equilibrio), "equilibrio");
    EXPECT_EQ(codice(Metodo::sezione), "sezione");
}

}  // namespace
}  // namespace korven::verification
