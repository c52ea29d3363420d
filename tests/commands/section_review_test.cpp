#include <gtest/gtest.h>

#include "commands/review_list.hpp"
#include "structure/sample_sections.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

using project::DatiProgetto;
using project::Sezione;

std::vector<std::string> righe(const Sezione& sezione, double rigidezzaEJ = 10000) {
    DatiProgetto d = test::progettoSemplice();
    d.sezione = sezione;
    d.rigidezzaEJ = rigidezzaEJ;
    ElencoRilievi elenco;
    controlloSezione(d, elenco);
    std::vector<std::string> testo;
    for (const auto& r : elenco.ordinato()) testo.push_back((r.impedisce ? "! " : "") + r.testo);
    return testo;
}

using Righe = std::vector<std::string>;
const Righe niente;
const Righe senzaEJ = {"! Il valore di EJ non è ancora stato definito."};
const Righe inParte = {
    "sezione definita solo in parte: nessuna verifica strutturale e nessun ricalcolo di EJ"};

TEST(ControlloSezione, FindsNothingInAWholeSectionOrInNone) {
    for (const auto& s :
         {structure::diaframmaSimmetrico(), structure::diaframmaArmatoAValle(),
          structure::paliTubolari(), structure::palancola(), structure::paliArmati(), Sezione{}})
        EXPECT_EQ(righe(s), niente);
}

TEST(ControlloSezione, RefusesAWallWithoutStiffnessUnlessTheSectionGivesIt) {
    EXPECT_EQ(righe({}, 0), senzaEJ);
    EXPECT_EQ(righe(structure::paliTubolari(), 0), niente);
    auto sottile = structure::palancola();  // so thin that its whole t m2 are none
    sottile.palancolaBase = sottile.palancolaLargAla = sottile.palancolaAltAla = 1;
    sottile.palancolaSpessore = sottile.palancolaSpessAla = 0.01;
    EXPECT_EQ(righe(sottile, 0), senzaEJ);
}

TEST(ControlloSezione, RefusesASectionWhoseStiffnessIsNoNumberAsTheRunDoes) {
    auto enorme = structure::paliTubolari();
    enorme.paliDiamEst = 1e90;
    EXPECT_EQ(righe(enorme, 0), senzaEJ);
    DatiProgetto d = test::progettoSemplice();
    d.sezione = enorme;
    d.rigidezzaEJ = 0;
    test::Banco banco(d, 20);
    banco.calcola();
    EXPECT_TRUE(analysis::erroreCalcolo);
}

TEST(ControlloSezione, TellsANegativeStiffness) {
    EXPECT_EQ(righe({}, -3), (Righe{"la rigidezza EJ è negativa (-3)"}));
}

TEST(ControlloSezione, TellsASectionThatIsDefinedOnlyInPart) {
    for (auto s : {structure::diaframmaSimmetrico(), structure::paliTubolari(),
                   structure::palancola(), structure::paliArmati()}) {
        s.fyk = 0;
        EXPECT_EQ(righe(s), inParte);
    }
    auto senzaFacce = structure::diaframmaArmatoAValle();
    senzaFacce.copriferroValle = 0;
    EXPECT_EQ(righe(senzaFacce), inParte);
    EXPECT_EQ(righe(structure::sezioneConMateriali()),
              (Righe{"sezione senza un tipo: nessuna verifica strutturale e nessun ricalcolo di "
                     "EJ"}));
}

TEST(ControlloSezione, TellsPilesThatTheReportShowsWithoutResistance) {
    auto s = structure::paliTubolari();
    s.paliDiamInt = 0;
    EXPECT_EQ(righe(s), (Righe{"sezione di pali senza diametro interno: la relazione la mostra con "
                               "resistenza nulla"}));
}

TEST(ControlloSezione, TellsTwoTypesAtOnce) {
    auto s = structure::paliTubolari();
    s.tipoPalancola = true;
    EXPECT_EQ(righe(s), (Righe{"sezione: più tipi indicati insieme, vale il primo"}));
}

TEST(ControlloSezione, TellsABarCountThatTheTenfoldOfTheEditorMadeTooSmall) {
    auto s = structure::paliArmati();
    s.armNumLong = 1.2;  // twelve typed
    EXPECT_EQ(righe(s),
              (Righe{"numero di ferri memorizzato non intero (editore e relazione mostrano dieci "
                     "volte il numero che calcola) (1.2)"}));
    s.armNumLong = 0.8;
    EXPECT_EQ(righe(s),
              (Righe{"numero di ferri memorizzato minore di 1: i pali contano come non armati "
                     "(editore e relazione mostrano dieci volte il numero che calcola) (0.8)"}));
    s.armNumLong = 1;
    EXPECT_EQ(righe(s), niente);
}

TEST(ControlloSezione, LooksAtTheBarsOfReinforcedPilesAlone) {
    auto s = structure::palancola();
    s.armNumLong = 0.5;
    EXPECT_EQ(righe(s), niente);
}

TEST(ControlloSezione, RefusesMoreBarsThanARunTakesWhetherOrNotEJIsTyped) {
    auto s = structure::paliArmati();
    for (const double EJ : {10000.0, 0.0}) {
        s.armNumLong = 100001;
        const auto trovate = righe(s, EJ);
        EXPECT_NE(std::find(trovate.begin(), trovate.end(),
                            "! numero di ferri oltre la capacità (100000) (100001)"),
                  trovate.end());
        DatiProgetto d = test::progettoSemplice();
        d.sezione = s;
        d.rigidezzaEJ = EJ;
        test::Banco banco(d, 20);
        EXPECT_THROW(banco.calcola(), base::ErroreIndice);
    }
    s.armNumLong = 1000;
    EXPECT_EQ(righe(s), niente);
}

}  // namespace
}  // namespace korven::commands
