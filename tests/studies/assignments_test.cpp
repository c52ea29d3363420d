#include "studies/assignments.hpp"

#include <gtest/gtest.h>

#include "project/codes.hpp"
#include "project/project_file.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_builder.hpp"

namespace korven::studies {
namespace {

using project::DatiProgetto;
using Testi = std::vector<std::string>;

// Two layers to 4 and 20 m, an anchor at 1.5 m, stages at 2 and 5 m.
DatiProgetto prima() { return project::comeRiletto(test::progettoSemplice()); }

Testi difetti(const Testi& scritte) { return assegna(prima(), scritte).difetti; }

TEST(Assegnazioni, ChangeTheFieldsThatTheyNameAndNoOthers) {
    const auto esito = assegna(prima(), Testi{"phiStrato[2]=31.5", "sovraccMonte=15",
                                              "vincoloPiede=cerniera", "titoli[1]=a = b, c"});
    EXPECT_EQ(esito.difetti, Testi{});
    DatiProgetto attesi = prima();
    attesi.phiStrato[2] = 31.5;
    attesi.sovraccMonte = 1.5;
    attesi.vincoloPiede = valore(project::VincoloPiede::cerniera);
    attesi.titoli[1] = "a = b, c";
    EXPECT_EQ(esito.dati, attesi);
}

TEST(Assegnazioni, GiveTheProjectThatItsFileGivesBack) {
    const auto esito = assegna(prima(), Testi{"coesione[1]=0.07", "phiStrato[1]=30.123456789"});
    EXPECT_EQ(esito.difetti, Testi{});
    EXPECT_EQ(esito.dati, project::comeRiletto(esito.dati));
    EXPECT_EQ(esito.dati.coesione[1], 0.007);
}

TEST(Assegnazioni, MayFillARowThatAnotherOneAdds) {
    const auto esito = assegna(prima(), Testi{"profFase[3]=6", "tirantiFase[3]=1", "nFasi=3"});
    EXPECT_EQ(esito.difetti, Testi{});
    EXPECT_EQ(esito.dati.nFasi, 3);
    EXPECT_EQ(esito.dati.profFase[3], 6);
    EXPECT_EQ(esito.dati.tirantiFase[3], 1);
    EXPECT_EQ(esito.dati.faldaFase[3], 0);
}

TEST(Assegnazioni, SayOfEachWhatIsWrongAndWhatMayBeWritten) {
    const std::pair<const char*, const char*> casi[] = {
        {"lunghezza=9", "lunghezza: nessun campo si chiama così; forse lunghezzaParatia?"},
        {"altezza=9",
         "altezza: nessun campo si chiama così; i nomi sono quelli di «korven32c campi»"},
        {"phistrato[2]=31", "phistrato[2]: nessun campo si chiama così; forse phiStrato[2]?"},
        {"phiStrato=31", "phiStrato: manca il numero della riga: phiStrato[1]"},
        {"phiStrato[3]=31",
         "phiStrato[3]: questa riga non c'è: le righe sono 2, numero che nStrati cambia"},
        {"titoli[7]=x", "titoli[7]: le righe vanno da 1 a 6"},
        {"gammaN[2]=diciotto", "gammaN[2] [kN/m³] = diciotto: non è un numero"},
        {"gammaN[2]=18,5", "gammaN[2] [kN/m³] = 18,5: il segno decimale è il punto: 18.5"},
        {"phiStrato[2]=70", "phiStrato[2] [°] = 70: ammessi valori da 0 a 60"},
        {"sezione.tipoPali=2", "sezione.tipoPali = 2: ammessi valori da 0 a 1"},
        {"sezione.fck=1e999", "sezione.fck [N/mm²] = 1e999: numero troppo grande"},
        {"nFasi=1.5", "nFasi = 1.5: deve essere un numero intero"},
        {"vincoloTesta=3", "vincoloTesta = 3: valori ammessi: 1 (libera), 2 (cerniera)"},
        {"metodoSpinte=rankine",
         "metodoSpinte = rankine: un file si riapre sempre con Coulomb; scegliere il metodo con "
         "--metodo-spinte"},
        {"titoli[1]=φ",
         "titoli[1] = φ: un testo sta in una riga e ha solo i caratteri di Windows-1252"},
        {"phiStrato[2]", "phiStrato[2]: manca il valore: campo=valore"},
    };
    for (const auto& [scritta, detto] : casi) EXPECT_EQ(difetti({scritta}), Testi{detto});
    const std::string lungo(81, 'x');
    EXPECT_EQ(difetti({"titoli[1]=" + lungo}),
              Testi{"titoli[1] = " + lungo + ": al massimo 80 caratteri"});
}

TEST(Assegnazioni, TellAllFaultsAtOnce) {
    EXPECT_EQ(difetti({"phiStrato[2]=70", "sovraccMonte=1", "gammaN[1]=", "phiStrato[2]=31"}),
              (Testi{"phiStrato[2]: assegnato più di una volta",
                     "phiStrato[2] [°] = 70: ammessi valori da 0 a 60",
                     "gammaN[1] [kN/m³] = : non è un numero"}));
}

TEST(Assegnazioni, KeepDepthsInOrderAndSortNothing) {
    EXPECT_EQ(difetti({"profFase[1]=5.5"}),
              Testi{"profFase[2] = 5 m viene dopo profFase[1] = 5.5 m: le righe vanno in ordine di "
                    "profondità"});
    EXPECT_EQ(difetti({"profStrato[2]=3"}),
              Testi{"profStrato[2] = 3 m viene dopo profStrato[1] = 4 m: le righe vanno in ordine "
                    "di profondità"});
    EXPECT_EQ(difetti({"nTiranti=2"}),
              Testi{"profTirante[2] = 0 m viene dopo profTirante[1] = 1.5 m: le righe vanno in "
                    "ordine di profondità"});
    EXPECT_EQ(difetti({"profFase[1]=5.5", "profFase[2]=6"}), Testi{});
}

TEST(Assegnazioni, LeaveAWallThatIsFilledUpAgainAsItIs) {
    DatiProgetto colmata = prima();
    colmata.profFase[2] = 1;
    EXPECT_EQ(assegna(colmata, Testi{"sovraccMonte=12"}).difetti, Testi{});
    EXPECT_EQ(assegna(colmata, Testi{"profFase[2]=1.5"}).difetti.size(), 1U);
}

TEST(Assegnazioni, ChooseOneTypeOfSection) {
    DatiProgetto d = prima();
    d.sezione.tipoDiaframma = true;
    const auto esito = assegna(d, Testi{"sezione.tipoDiaframma=0", "sezione.tipoPalancola=1"});
    EXPECT_EQ(esito.difetti, Testi{});
    EXPECT_TRUE(esito.dati.sezione.tipoPalancola);
    const Testi uno = {
        "uno solo di questi deve essere 1, gli altri 0: sezione.tipoDiaframma, "
        "sezione.tipoPali, sezione.tipoPalancola, sezione.tipoPaliArmati"};
    EXPECT_EQ(assegna(d, Testi{"sezione.tipoPalancola=1"}).difetti, uno);
    EXPECT_EQ(assegna(d, Testi{"sezione.tipoDiaframma=0"}).difetti, uno);
    d.sezione.tipoPali = true;  // as a file may have it
    EXPECT_EQ(assegna(d, Testi{"sovraccMonte=12"}).difetti, Testi{});
}

}  // namespace
}  // namespace korven::studies
