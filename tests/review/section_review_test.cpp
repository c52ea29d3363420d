#include <gtest/gtest.h>

#include <set>

#include "project/codes.hpp"
#include "review/remark_list.hpp"
#include "structure/offered_stiffness.hpp"
#include "structure/section_millimetres.hpp"
#include "support/run_harness.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;
using project::Sezione;
using project::VincoloPiede;

// What other files and tests of their own are about.
const std::set<std::string_view> altrove = {
    "ferri-scritti-e-calcolati", "ferri-troppo-pochi",      "misura-non-costruibile", "ferri-fitti",
    "pali-sovrapposti",          "sezione-senza-resistenza"};

std::vector<std::string> righe(const Sezione& sezione, double rigidezzaEJ) {
    DatiProgetto d = test::progettoSemplice();
    d.sezione = sezione;
    d.rigidezzaEJ = rigidezzaEJ;
    ElencoOsservazioni elenco;
    controlloSezione(d, elenco);
    std::vector<std::string> testo;
    for (const auto& r : elenco.ordinate())
        if (!altrove.contains(r.codice)) testo.push_back((r.impedisce() ? "! " : "") + r.testo);
    return testo;
}

// With the stiffness that the section itself has.
std::vector<std::string> righe(const Sezione& sezione) {
    const bool troppi = sezione.armNumLong > structure::massimoFerri;
    return righe(sezione, troppi ? 10000 : structure::rigidezzaOfferta(sezione).value_or(10000));
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
    EXPECT_EQ(righe({}, -3), (Righe{"Rigidezza EJ diaframma [kN m²] = -30: valore negativo"}));
}

TEST(ControlloSezione, TellsASectionThatIsDefinedOnlyInPart) {
    for (auto s : {structure::diaframmaSimmetrico(), structure::paliTubolari(),
                   structure::palancola(), structure::paliArmati()}) {
        s.fyk = 0;
        EXPECT_EQ(righe(s), inParte);
    }
    auto senzaFacce = structure::diaframmaArmatoAValle();
    senzaFacce.copriferroValle = 0;
    EXPECT_EQ(righe(senzaFacce), inParte);  // no word of bars that the computation would count
    senzaFacce = structure::diaframmaSimmetrico();
    senzaFacce.copriferroMonte = senzaFacce.copriferroValle = 0;
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
              (Righe{"numero di ferri memorizzato non intero (scheda e relazione mostrano dieci "
                     "volte il numero usato nel calcolo) (1.2)"}));
    s.armNumLong = 0.8;
    EXPECT_EQ(
        righe(s),
        (Righe{"numero di ferri memorizzato minore di 1: i pali contano come non armati "
               "(scheda e relazione mostrano dieci volte il numero usato nel calcolo) (0.8)"}));
    s.armNumLong = 1;
    EXPECT_EQ(righe(s), niente);
}

TEST(ControlloSezione, TellsTheBarsAsTheyAreShownAndAsTheyAreCounted) {
    const auto ferri = [](double numero) {
        DatiProgetto d = test::progettoSemplice();
        d.sezione = structure::paliArmati();
        d.sezione.armNumLong = numero;
        ElencoOsservazioni elenco;
        controlloSezione(d, elenco);
        for (const auto& r : elenco.ordinate())
            if (r.codice.starts_with("ferri")) return std::string(r.codice) + ": " + r.testo;
        return std::string();
    };
    EXPECT_EQ(ferri(12),
              "ferri-scritti-e-calcolati: numero di ferri: scheda e relazione ne mostrano 120, il "
              "calcolo ne conta 12");
    EXPECT_EQ(ferri(3),
              "ferri-troppo-pochi: numero di ferri: scheda e relazione ne mostrano 30, il calcolo "
              "ne conta 3, troppo pochi per un palo: scrivere nella scheda dieci volte il numero "
              "dei ferri");
    EXPECT_TRUE(ferri(4).starts_with("ferri-scritti-e-calcolati"));
}

TEST(ControlloSezione, TellsABarCountThatLooksCopiedFromTheReport) {
    auto s = structure::paliArmati();
    s.armNumLong = 120;  // the report's number for twelve bars
    EXPECT_EQ(righe(s),
              (Righe{"numero di ferri memorizzato di 100 o più: sembra quello della "
                     "relazione, che mostra dieci volte il numero usato nel calcolo (120)"}));
}

// The tubes give 40999 t m2.
TEST(ControlloSezione, TellsATypedStiffnessThreeTimesAwayFromTheSections) {
    const auto s = structure::paliTubolari();
    EXPECT_EQ(righe(s, 3 * 40999), niente);
    EXPECT_EQ(righe(s, 40999 / 3.0), niente);
    EXPECT_EQ(righe(s, 130000), (Righe{"Rigidezza EJ diaframma [kN m²] = 1300000: è lontana da "
                                       "quella della sezione (409990)"}));
    EXPECT_EQ(righe(s, 4100), (Righe{"Rigidezza EJ diaframma [kN m²] = 41000: è lontana da quella "
                                     "della sezione (409990)"}));
    EXPECT_EQ(righe({}, 4100), niente);
}

TEST(ControlloSezione, TellsAFaceOfTheDiaphragmThatIsFilledInByHalf) {
    const auto senza = [](double Sezione::*campo) {
        auto s = structure::diaframmaSimmetrico();
        s.*campo = 0;
        return righe(s);
    };
    EXPECT_EQ(senza(&Sezione::diametroMonte),
              (Righe{"lato monte: Interasse armature [mm] = 200, Diametro armature [mm] = 0: la "
                     "faccia conta come non armata"}));
    EXPECT_EQ(senza(&Sezione::interasseValle),
              (Righe{"lato valle: Interasse armature [mm] = 0, Diametro armature [mm] = 24: la "
                     "faccia conta come non armata"}));
    EXPECT_EQ(senza(&Sezione::copriferroValle),
              (Righe{"lato valle: Copriferro [mm] = 0: senza copriferro il calcolo conta le "
                     "armature ma la relazione non le mostra"}));
    auto soloCopriferro = structure::diaframmaArmatoAValle();
    soloCopriferro.copriferroMonte = 5;
    EXPECT_EQ(righe(soloCopriferro),
              (Righe{"lato monte: Copriferro [mm] = 50: la faccia conta come non armata"}));
}

TEST(ControlloSezione, TellsACoverThatPutsTheBarsBeyondTheMiddle) {
    const std::string oltre = ": l'asse delle armature arriva a metà della sezione o la supera";
    auto s = structure::diaframmaSimmetrico();  // 80 cm thick, bars of 2.4 cm
    s.copriferroMonte = 38.8;
    EXPECT_EQ(righe(s), (Righe{"lato monte: Copriferro [mm] = 388" + oltre}));
    s.copriferroMonte = 38.7;
    EXPECT_EQ(righe(s), niente);
    auto pali = structure::paliArmati();
    pali.armCopriferro = 39;
    EXPECT_EQ(righe(pali), (Righe{"Copriferro armature logitudinali [mm] = 390" + oltre}));
    pali.armCopriferro = 38;
    EXPECT_EQ(righe(pali), niente);
}

TEST(ControlloSezione, TellsStirrupsGivenByHalf) {
    auto s = structure::paliArmati();
    s.armDiamStaffe = 1;
    EXPECT_EQ(righe(s), (Righe{"Diametro staffe [mm] = 10, Passo staffe [mm] = 0: senza l'uno o "
                               "l'altro non c'è verifica a taglio"}));
    s.armPassoStaffe = 20;
    EXPECT_EQ(righe(s), niente);
    s.armDiamStaffe = 0;
    EXPECT_EQ(righe(s), (Righe{"Diametro staffe [mm] = 0, Passo staffe [mm] = 200: senza l'uno o "
                               "l'altro non c'è verifica a taglio"}));
}

TEST(ControlloSezione, TellsShearsAtTheEndsThatTheShearCheckTakesAtTheirFaceValue) {
    DatiProgetto d = test::progettoSemplice();
    d.sezione = structure::paliArmati();
    d.rigidezzaEJ = structure::rigidezzaOfferta(d.sezione).value_or(0);
    d.vincoloPiede = valore(VincoloPiede::incastro);
    d.forzaTesta = -2;
    const auto trovate = [&d] {
        ElencoOsservazioni elenco;
        controlloSezione(d, elenco);
        Righe testo;
        for (const auto& r : elenco.ordinate())
            if (r.codice.starts_with("taglio")) testo.push_back(r.testo);
        return testo;
    };
    EXPECT_EQ(trovate(), niente);  // no stirrups, no check
    d.sezione.armDiamStaffe = 1;
    d.sezione.armPassoStaffe = 20;
    const std::string piede =
        "vincolo al piede = incastro: la verifica a taglio conta anche il valore al piede "
        "incastrato, che "
        "non è un taglio della paratia e cresce con il numero di segmenti";
    const std::string testa =
        "Forza orizzontale esterna applicata alla sommità del diaframma [kN] = -20: la verifica a "
        "taglio conta anche il valore in testa, che è il doppio della forza e non è il taglio "
        "della "
        "paratia";
    EXPECT_EQ(trovate(), (Righe{piede, testa}));
    d.vincoloPiede = valore(VincoloPiede::cerniera);
    EXPECT_EQ(trovate(), Righe{testa});
    d.forzaTesta = 0;
    EXPECT_EQ(trovate(), niente);
    d.vincoloPiede = valore(VincoloPiede::incastro);
    EXPECT_EQ(trovate(), Righe{piede});
    d.sezione.tipoPaliArmati = false;
    d.sezione.tipoPali = true;
    for (const auto& riga : trovate()) EXPECT_EQ(riga.find("taglio conta"), std::string::npos);
}

TEST(ControlloSezione, TellsTubesWithoutAWall) {
    auto s = structure::paliTubolari();
    s.paliDiamInt = 60;
    EXPECT_EQ(righe(s), (Righe{"Diametro interno [mm] = 600: non è minore del diametro esterno"}));
}

TEST(ControlloSezione, LooksAtTheBarsOfReinforcedPilesAlone) {
    auto s = structure::palancola();
    s.armNumLong = 0.5;
    EXPECT_EQ(righe(s), niente);
}

TEST(ControlloSezione, RefusesMoreBarsThanARunTakesInTheWordsOfTheRun) {
    auto s = structure::paliArmati();
    const std::pair<double, const char*> casi[] = {
        {100001, "numero di ferri oltre la capacità (100000) (100001)"},
        {1e15, "numero di ferri oltre la capacità (100000) (1000000000000000)"}};
    for (const auto& [ferri, detto] : casi)
        for (const double EJ : {10000.0, 0.0}) {
            s.armNumLong = ferri;
            const auto trovate = righe(s, EJ);
            EXPECT_NE(std::find(trovate.begin(), trovate.end(), std::string("! ") + detto),
                      trovate.end());
            DatiProgetto d = test::progettoSemplice();
            d.sezione = s;
            d.rigidezzaEJ = EJ;
            test::Banco banco(d, 20);
            banco.calcola();
            EXPECT_TRUE(analysis::erroreCalcolo);
            ASSERT_EQ(banco.dialogo.messaggi.size(), 1u);
            EXPECT_EQ(banco.dialogo.messaggi[0].testo, detto);
            EXPECT_FALSE(banco.haRisultati());
        }
    s.armNumLong = 99;
    EXPECT_EQ(righe(s), niente);
}

}  // namespace
}  // namespace korven::review
