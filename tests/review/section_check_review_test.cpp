// The checks of the section that fail are told as the report tells them.

#include <gtest/gtest.h>

#include <algorithm>

#include "base/number_text.hpp"
#include "project/field_table.hpp"
#include "project/shown_number.hpp"
#include "results/report_data.hpp"
#include "results/section_uses.hpp"
#include "results/structure_checks.hpp"
#include "review/margins.hpp"
#include "review/result_review.hpp"
#include "structure/partial_factors.hpp"
#include "support/run_harness.hpp"
#include "support/sample_sections.hpp"
#include "support/wall_files.hpp"

namespace korven::review {
namespace {

using project::DatiProgetto;
using safety::Margine;

DatiProgetto conSezione(const project::Sezione& sezione) {
    DatiProgetto dati = paratia({{.scavo = 2}, {.scavo = 4}});
    dati.sezione = sezione;
    return dati;
}

// Moments of 30 and -20 t m in stages 1 and 2, a shear of 20 t in stage 2; the design moments are
// 1.5 times the moments.
Margine conVerifiche(const DatiProgetto& dati, double mrPos, double mrNeg) {
    Margine m = margineSano(dati);
    results::NumeriRelazione r;
    r.fasi.resize(2);
    r.fasi[0].momentoMassimo = {30, 3, 1};
    r.fasi[0].momentoMinimo = {-10, 7, 1};
    r.fasi[1].momentoMassimo = {25, 4, 2};
    r.fasi[1].momentoMinimo = {-20, 8, 2};
    r.fasi[1].taglio = {-20, 5, 2};
    r.flessione = results::confrontaMomenti({.mrd2 = -mrNeg * project::newtonMillimetri,
                                             .mrd1 = -mrPos * project::newtonMillimetri,
                                             .mMaxTotale = 30,
                                             .mMinTotale = -20,
                                             .fsAzioni = 1.5});
    m.relazione = std::move(r);
    return m;
}

Osservazioni osservate(const DatiProgetto& dati, const Margine& margine) {
    ElencoOsservazioni elenco;
    controlloVerifiche(dati, margine, elenco);
    return elenco.ordinate();
}

TEST(ControlloVerifiche, TellsABendingMomentThatJustEqualsItsResistance) {
    const DatiProgetto dati = conSezione(structure::diaframmaSimmetrico());
    EXPECT_EQ(righe(osservate(dati, conVerifiche(dati, 45.001, -30.001))), Righe{});
    const auto pari = osservate(dati, conVerifiche(dati, 45, -30));
    EXPECT_EQ(
        righe(pari),
        (Righe{
            "[pericolo] flessione-non-verificata: momento positivo di progetto 450.00 kN m/m "
            "(fase 1, a 3.00 m), resistenza 450.00 kN m/m, usata per 100.0 %: aumentare i ferri "
            "del lato valle o lo spessore, o ridurre il momento con tiranti, scavo e carichi",
            "[pericolo] flessione-non-verificata: momento negativo di progetto -300.00 kN m/m "
            "(fase 2, a 8.00 m), resistenza -300.00 kN m/m, usata per 100.0 %: aumentare i ferri "
            "del lato monte o lo spessore, o ridurre il momento con tiranti, scavo e carichi"}));
    EXPECT_EQ(pari[0].campi, (Righe{"sezione.diametroValle", "sezione.interasseValle",
                                    "sezione.spessoreDiaframma"}));
    EXPECT_EQ(pari[1].campi, (Righe{"sezione.diametroMonte", "sezione.interasseMonte",
                                    "sezione.spessoreDiaframma"}));
}

// Of a resistance of 0 there is no share.
TEST(ControlloVerifiche, TellsASectionWithoutResistanceOfEachKind) {
    const std::pair<project::Sezione, std::string> sezioni[] = {
        {structure::paliTubolari(), "adottare tubi più grandi, più spessi o più vicini"},
        {structure::palancola(), "adottare palancole più alte, più spesse o di acciaio migliore"},
        {structure::paliArmati(), "aumentare i ferri, o adottare pali più grandi o più vicini"}};
    for (const auto& [sezione, rinforzo] : sezioni) {
        const DatiProgetto dati = conSezione(sezione);
        const auto trovate = osservate(dati, conVerifiche(dati, 0, -31));
        ASSERT_EQ(trovate.size(), 1u);
        EXPECT_EQ(trovate[0].testo.find("usata"), std::string::npos) << trovate[0].testo;
        EXPECT_NE(trovate[0].testo.find(": " + rinforzo + ", o ridurre"), std::string::npos);
        EXPECT_FALSE(trovate[0].campi.empty());
        for (const auto& campo : trovate[0].campi) EXPECT_TRUE(project::campoNominato(campo));
    }
}

TEST(ControlloVerifiche, TellsAShearBeyondTheStrutsOrTheStirrups) {
    const DatiProgetto dati = conSezione(structure::paliArmati());
    Margine m = conVerifiche(dati, 46, -31);
    const auto con = [&](double Vrd2, double Vrd3) {
        m.relazione->taglioSezione = structure::ConfrontoTaglio{
            .Vrd2 = Vrd2, .Vrd3 = Vrd3, .taglioMassimo = 200, .fsAzioni = 1.4, .Vsd = 280};
        return osservate(dati, m);
    };
    EXPECT_EQ(righe(con(280, 280)), Righe{});
    const std::string inizio =
        "[pericolo] taglio-non-verificato: taglio di progetto 280.00 kN/m (fase 2, a 5.00 m), ";
    const std::string fine = ", o ridurre il taglio con tiranti, scavo e carichi";
    const auto bielle = con(250, 280);
    EXPECT_EQ(righe(bielle),
              Righe{inizio +
                    "resistenza delle bielle di calcestruzzo 250.00 kN/m, usata per 112.0 %: "
                    "adottare pali più grandi o più vicini, o un calcestruzzo migliore" +
                    fine});
    EXPECT_EQ(bielle[0].campi,
              (Righe{"sezione.armDiamPalo", "sezione.armInterasse", "sezione.fck"}));
    const auto staffe = con(280, 200);
    EXPECT_EQ(righe(staffe), Righe{inizio +
                                   "resistenza dell'armatura d'anima 200.00 kN/m, usata per 140.0 "
                                   "%: infittire le staffe o aumentarne il diametro" +
                                   fine});
    EXPECT_EQ(staffe[0].campi, (Righe{"sezione.armDiamStaffe", "sezione.armPassoStaffe"}));
    EXPECT_EQ(con(250, 200).size(), 2u);
}

// Under 200 kN/m the resistance of a diaphragm grows with the axial force: by the force as it is to
// that under Nd = 200 kN, which the check takes as 280 kN.
TEST(ControlloVerifiche, TellsABendingMomentThatTheMultipliedAxialForceAloneBears) {
    DatiProgetto dati = conSezione(structure::diaframmaSimmetrico());
    const auto resistenza = [&](double sforzo) {
        DatiProgetto d = dati;
        d.sforzoNormale = sforzo;
        return std::abs(results::momentiResistenti(d)[1]) / project::newtonMillimetri;  // t m
    };
    const double senza = resistenza(0), conFattore = resistenza(20);
    ASSERT_GT(conFattore, 1.05 * senza);
    const auto con = [&](double sforzo, double Md) {
        dati.sforzoNormale = sforzo;
        Margine m = conVerifiche(dati, 0, 0);
        const auto MRd = results::momentiResistenti(dati);
        m.relazione->flessione =
            results::controlli(dati.sezione, MRd, Md / structure::fsAzioniSezione, 0, 0).flessione;
        return osservate(dati, m);
    };
    EXPECT_EQ(righe(con(20, 0.99 * senza)), Righe{});
    const auto detta = con(20, (senza + conFattore) / 2);
    ASSERT_EQ(detta.size(), 1U);
    EXPECT_EQ(detta[0].codice, "flessione-con-sforzo-favorevole");
    EXPECT_NE(detta[0].testo.find(
                  "la resistenza è " +
                  project::numeroRelazione(mostrato(project::unita::momento, senza)) + " kN m/m"),
              std::string::npos)
        << detta[0].testo;
    EXPECT_EQ(detta[0].campi.front(), "sforzoNormale");
    const auto fallita = con(20, 1.01 * conFattore);
    ASSERT_EQ(fallita.size(), 1U);
    EXPECT_EQ(fallita[0].codice, "flessione-non-verificata");
    const auto niente = con(0, (senza + conFattore) / 2);
    ASSERT_EQ(niente.size(), 1U);
    EXPECT_EQ(niente[0].codice, "flessione-non-verificata");
}

TEST(ControlloVerifiche, SayNothingWithoutAReportOrASection) {
    const DatiProgetto dati = conSezione({});
    EXPECT_TRUE(osservate(dati, margineSano(dati)).empty());
    Margine m = conVerifiche(dati, 0, 0);
    m.relazione->flessione.reset();
    EXPECT_TRUE(osservate(dati, m).empty());
}

int quante(const Osservazioni& osservazioni, std::string_view codice) {
    return static_cast<int>(std::count_if(osservazioni.begin(), osservazioni.end(),
                                          [codice](const auto& o) { return o.codice == codice; }));
}

// The design values and resistances of the report must stand in the text, digit by digit.
void aspettaNumero(const Osservazioni& osservazioni, double mostrato) {
    const std::string numero = " " + base::formattaDecimali(mostrato, 2) + " kN";
    EXPECT_TRUE(std::any_of(osservazioni.begin(), osservazioni.end(), [&](const auto& o) {
        return o.testo.find(numero) != std::string::npos;
    })) << numero;
}

// What is told in memory, against the results that a run leaves in its file.
// @return how many of the report's checks fail
int confronta(const DatiProgetto& dati) {
    const auto dette = esaminaRisultati(dati, 50);
    test::Banco banco(dati);
    banco.calcola();
    DatiProgetto memoria = dati;
    const auto relazione = results::leggiRisultati(banco.risultati(), memoria);
    const int fallite = static_cast<int>(results::verificheFallite(relazione).size());
    EXPECT_EQ(quante(dette, "flessione-non-verificata") + quante(dette, "taglio-non-verificato"),
              fallite);
    if (const auto c = results::verificaMomenti(relazione)) {
        EXPECT_EQ(quante(dette, "flessione-non-verificata"), c->fallitaPos() + c->fallitaNeg());
        if (c->fallitaPos()) {
            aspettaNumero(dette, project::inKilonewton(c->mdMax));
            aspettaNumero(dette, project::inKilonewton(c->mrPos));
        }
        if (c->fallitaNeg()) {
            aspettaNumero(dette, project::inKilonewton(c->mdMin));
            aspettaNumero(dette, project::inKilonewton(c->mrNeg));
        }
    }
    if (const auto c = results::verificaAlTaglio(relazione)) {
        if (c->rotturaBielle() || c->rotturaArmatura()) aspettaNumero(dette, c->Vsd);
        if (c->rotturaBielle()) aspettaNumero(dette, c->Vrd2);
        if (c->rotturaArmatura()) aspettaNumero(dette, c->Vrd3);
    }
    return fallite;
}

std::string file(const std::string& nome) {
    return std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd";
}

DatiProgetto esempio(const std::string& nome) { return test::leggiMuro(file(nome)); }

TEST(ControlloVerifiche, AgreeWithTheReportOnTheExamples) {
    for (const auto& percorso : test::muriIn(KORVEN_EXAMPLES)) {
        SCOPED_TRACE(percorso);
        // The stirrups of one are too few: its report says so.
        EXPECT_EQ(confronta(test::leggiMuro(percorso)),
                  percorso == file("pali_armati_staffe") ? 1 : 0);
    }
}

// Bars from the delivered ones downwards, so that one side fails before the other.
TEST(ControlloVerifiche, AgreeWithTheReportOnABarThatGetsThinner) {
    DatiProgetto dati = esempio("diaframma_due_ordini");
    std::vector<int> fallite;
    for (const double diametro : {2.6, 2.4, 2.0, 1.8, 1.4, 1.0}) {
        SCOPED_TRACE(diametro);
        dati.sezione.diametroMonte = dati.sezione.diametroValle = diametro;
        fallite.push_back(confronta(dati));
    }
    EXPECT_EQ(fallite, (std::vector<int>{0, 0, 1, 1, 2, 2}));
}

TEST(ControlloVerifiche, AgreeWithTheReportOnPilesWithFewerStirrupsAndPoorerConcrete) {
    DatiProgetto dati = esempio("pali_armati_staffe");
    dati.sezione.armDiamStaffe = 0.4;
    dati.sezione.armPassoStaffe = 90;
    EXPECT_EQ(confronta(dati), 1);
    dati.sezione.fck = 3;
    EXPECT_GE(confronta(dati), 2);
    dati.sforzoNormale = 2000;  // crushes the section: no bending resistance is left
    EXPECT_GE(confronta(dati), 3);
}

}  // namespace
}  // namespace korven::review
