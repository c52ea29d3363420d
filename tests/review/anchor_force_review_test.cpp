#include <gtest/gtest.h>

#include "review/margins.hpp"
#include "support/wall_files.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;
using safety::Margine;

constexpr double soloTrazione = 0, inDueSensi = 1;

Osservazioni osservate(const DatiProgetto& dati, const Margine& margine) {
    ElencoOsservazioni elenco;
    controlloTiri(dati, margine, elenco);
    return elenco.ordinate();
}

// Two stages 2 m and 4 m deep with one anchor at 1 m.
DatiProgetto conTirante(double rigidezza, double pretensione, double tipo) {
    return test::muro()
        .tirante(1, rigidezza, pretensione, tipo)
        .fase({.scavo = 2, .tiranti = 1})
        .fase({.scavo = 4, .tiranti = 1})
        .dati();
}

// Its true force in the two stages, and the largest that the report prints [t].
Righe conForze(const DatiProgetto& dati, double prima, double seconda, double relazione) {
    Margine m = margineSano(dati);
    conTiro(m, 1, prima, prima);
    conTiro(m, 2, seconda, seconda);
    m.relazione = results::NumeriRelazione{};
    m.relazione->tiriMassimi = {relazione};
    return righe(osservate(dati, m));
}

TEST(ControlloTiri, SaysNothingOfForcesThatTheReportHasRight) {
    EXPECT_EQ(conForze(conTirante(500, 5, soloTrazione), 6, 8, 8), Righe{});
    EXPECT_EQ(conForze(conTirante(500, 5, inDueSensi), 6, 8, 8), Righe{});
}

// A displacement off by half a digit, 5E-8 m, is 0.5 t of a prop of 1E7 t/m: more than 1 kN or 1 %
// of 20 t. One percent of 8 t are 0.8 kN, and 0.08 t / 1E-7 m are 8E5 t/m.
TEST(ControlloTiri, TellsAForceThatSevenDecimalsOfADisplacementAreTooFewFor) {
    const DatiProgetto rigido = conTirante(1e7, 0, inDueSensi);
    EXPECT_EQ(conForze(rigido, 6, 8, 8.07), Righe{});
    EXPECT_EQ(
        conForze(rigido, 6, 8, 8.09),
        Righe{"[da vedere] tiro-impreciso: puntone 1: Rigidezza [kN/m] = 100000000: la relazione "
              "dà il tiro 80.90 kN/m, quello vero è 80.00 kN/m (fase 2): lo calcola da spostamenti "
              "con sette decimali, che bastano fino a una rigidezza di circa 8000000 kN/m"});
    EXPECT_EQ(conForze(rigido, 20, 8, 20.09), Righe{});
    EXPECT_EQ(conForze(rigido, 20, 8, 20.5).size(), 1u);
}

TEST(ControlloTiri, TellsAForceThatIsFarTooSmallAsADanger) {
    const DatiProgetto rigido = conTirante(1e8, 0, inDueSensi);
    EXPECT_EQ(conForze(rigido, 6, 8, 7.21)[0].rfind("[da vedere] tiro-impreciso", 0), 0u);
    EXPECT_EQ(conForze(rigido, 6, 8, 10)[0].rfind("[da vedere] tiro-impreciso", 0), 0u);
    EXPECT_EQ(conForze(rigido, 6, 8.03, 0),
              Righe{"[pericolo] tiro-sbagliato: puntone 1: Rigidezza [kN/m] = 1000000000: la "
                    "relazione dà il tiro 0.00 kN/m, quello vero è 80.30 kN/m (fase 2): lo calcola "
                    "da spostamenti con sette decimali, che bastano fino a una rigidezza di circa "
                    "8000000 kN/m; usare il tiro vero o una rigidezza minore"});
}

TEST(ControlloTiri, TakesNoSmallForceBySharesAlone) {
    const DatiProgetto rigido = conTirante(1e6, 0, inDueSensi);
    EXPECT_EQ(conForze(rigido, 0, 0.05, 0.0595), Righe{});
    EXPECT_EQ(conForze(rigido, 0, 0.05, 0.0605).size(), 1u);
}

// An anchor that is taken away and set again has another zero of its force.
TEST(ControlloTiri, TellsAForceThatIsOfAnotherPlaceOfTheSameAnchor) {
    EXPECT_EQ(conForze(conTirante(500, 5, soloTrazione), 6, 8, 9),
              Righe{"[da vedere] tiro-diverso: tirante 1: la relazione dà il tiro 90.00 kN/m, il "
                    "più grande delle fasi è 80.00 kN/m (fase 2): usare questo"});
    EXPECT_EQ(conForze(conTirante(500, 5, soloTrazione), 6, 8, 8.01), Righe{});
}

TEST(ControlloTiri, TellsAPropThatPulls) {
    EXPECT_EQ(conForze(conTirante(500, 0, inDueSensi), 12.5, -1.5, 12.5),
              Righe{"[da vedere] tiro-di-segno-opposto: puntone 1: nella fase 2 il tiro cambia "
                    "segno, -15.00 kN/m, e la relazione non lo dice, dà 125.00 kN/m: verificare "
                    "l'elemento nei due sensi o indicarlo solo a trazione"});
    EXPECT_EQ(conForze(conTirante(500, 0, inDueSensi), 12.5, -0.12, 12.5), Righe{});  // 1 %
    EXPECT_EQ(conForze(conTirante(500, 0, inDueSensi), 5, -0.1, 5), Righe{});
}

// The report shows the prestress of one that never moves towards the excavation. Of an anchor that
// is the force at which it was stressed.
TEST(ControlloTiri, TellsAPropOfWhichThePrestressIsGone) {
    EXPECT_EQ(conForze(conTirante(500, 10, inDueSensi), 6, 4, 10),
              Righe{"[da vedere] puntone-scaricato: puntone 1: Pretens. [kN] = 100: la relazione "
                    "dà la pretensione, 100.00 kN/m, ma in nessuna fase il tiro supera 60.00 kN/m "
                    "(fase 1): la paratia torna verso monte e lo scarica"});
    EXPECT_EQ(conForze(conTirante(500, 10, soloTrazione), 6, 4, 10), Righe{});
    EXPECT_EQ(conForze(conTirante(500, 10, inDueSensi), 9.05, 4, 10), Righe{});
    EXPECT_EQ(conForze(conTirante(500, 10, inDueSensi), 8.95, 4, 10).size(), 1u);
}

// True force and force in the shear of the second stage [t].
Righe conTaglio(double tipo, double vera, double nelTaglio, bool sulNodo) {
    const DatiProgetto dati = conTirante(500, 0, tipo);
    Margine m = margineSano(dati);
    conTiro(m, 1, 6, 6);
    conTiro(m, 2, vera, nelTaglio, sulNodo);
    m.relazione = results::NumeriRelazione{};
    m.relazione->tiriMassimi = {6};
    return righe(osservate(dati, m));
}

TEST(ControlloTiri, TellsASlackAnchorThatTheShearCounts) {
    EXPECT_EQ(
        conTaglio(soloTrazione, 0, -2.5, true),
        Righe{
            "[da vedere] tirante-lento-nel-taglio: tirante 1: è lento nella fase 2, ma il taglio "
            "massimo del diagramma conta un tiro di -25.00 kN/m: usare il taglio dell'equilibrio"});
    EXPECT_EQ(
        conTaglio(soloTrazione, 0, -2.5, false),
        Righe{
            "[da vedere] tirante-lento-nel-taglio: tirante 1: è lento nella fase 2, ma il "
            "diagramma del taglio conta un tiro di -25.00 kN/m: usare il taglio dell'equilibrio"});
    EXPECT_EQ(conTaglio(soloTrazione, 0, -0.1, true), Righe{});
    EXPECT_EQ(conTaglio(soloTrazione, 3, 3, true), Righe{});
    EXPECT_EQ(conTaglio(inDueSensi, -0.09, -0.09, true), Righe{});
}

TEST(ControlloTiri, NamesTheFieldOfTheAnchor) {
    const DatiProgetto dati = conTirante(1e8, 0, inDueSensi);
    Margine m = margineSano(dati);
    conTiro(m, 1, 8, 8);
    m.relazione = results::NumeriRelazione{};
    m.relazione->tiriMassimi = {0};
    const Osservazioni una = osservate(dati, m);
    ASSERT_EQ(una.size(), 1u);
    EXPECT_EQ(una[0].campi, std::vector<std::string>{"rigTirante[1]"});
}

TEST(ControlloTiri, SaysNothingWithoutAReportOrOfAWallThatDoesNotStand) {
    const DatiProgetto dati = conTirante(1e8, 0, inDueSensi);
    Margine m = margineSano(dati);
    conTiro(m, 1, 8, 8);
    EXPECT_TRUE(osservate(dati, m).empty());
    m.relazione = results::NumeriRelazione{};
    m.relazione->tiriMassimi = {0};
    m.fasi[1].esito = equilibrium::EsitoFase::meccanismo;
    EXPECT_TRUE(osservate(dati, m).empty());
}

}  // namespace
}  // namespace korven::review
