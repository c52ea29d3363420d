#include "tables/input_table.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

#include "project/codes.hpp"
#include "project/field_table.hpp"
#include "support/report_text.hpp"
#include "support/sample_projects.hpp"

namespace korven::tables {
namespace {

using project::DatiProgetto;

constexpr std::size_t scritto = 2, usato = 3, unita = 4, nome = 5;

const std::vector<Cella>& riga(const Prospetto& p, const std::string& quale) {
    const auto posto = std::find_if(p.righe.begin(), p.righe.end(),
                                    [&](const auto& r) { return r[nome].testo == quale; });
    if (posto == p.righe.end()) throw std::out_of_range(quale);
    return *posto;
}

live::PareteViva parete(const DatiProgetto& dati) {
    live::PareteViva fatta;
    fatta.dati = dati;
    return fatta;
}

TEST(ProspettoDati, HasEachFieldOnceInTheUnitThatPeopleRead) {
    const DatiProgetto dati = test::progettoSemplice();
    const Prospetto p = prospettoDati(dati, parete(dati));
    std::set<std::string> nomi;
    for (const auto& r : p.righe) EXPECT_TRUE(nomi.insert(r[nome].testo).second) << r[nome].testo;
    for (const auto& campo : project::campi()) {
        EXPECT_TRUE(nomi.contains(project::nomeStabile(campo))) << campo.nome;
    }
    const auto& gamma = riga(p, "gammaSat[2]");
    EXPECT_EQ(gamma[0].testo, "Peso saturo dello strato");
    EXPECT_EQ(gamma[1].numero, 2);
    EXPECT_EQ(gamma[scritto].numero, 21);
    EXPECT_EQ(gamma[scritto].testo, "21");
    EXPECT_EQ(gamma[unita].testo, "kN/m³");
    EXPECT_EQ(riga(p, "metodoSpinte")[usato].testo, "Coulomb");
    EXPECT_EQ(riga(p, "titoli[1]")[scritto].testo, "Muro di prova");
    EXPECT_EQ(riga(p, "titoli[2]")[scritto], Cella{});
    EXPECT_EQ(riga(p, "nStrati")[usato].numero, 2);
}

// The texts of an editor's values are one record.
TEST(ProspettoDati, SaysFixedValuesInTheLanguage) {
    std::string voci, tedesche;
    for (const auto& codice : project::campo(&DatiProgetto::vincoloPiede).codici) {
        voci.append(voci.empty() ? "" : "|").append(codice.voce);
        tedesche.append(tedesche.empty() ? "" : "|").append("so wie ").append(codice.voce);
    }
    DatiProgetto dati = test::progettoSemplice();
    dati.vincoloPiede = valore(project::VincoloPiede::incastro);
    const test::UnTesto tedesco(voci, tedesche);
    const Prospetto p = prospettoDati(dati, parete(dati));
    EXPECT_EQ(riga(p, "vincoloPiede")[scritto].testo, "so wie incastro");
    EXPECT_EQ(riga(p, "vincoloPiede")[usato].testo, "so wie incastro");
}

TEST(ProspettoDati, TellsWhatTheCalculationPutsInThePlaceOfWhatWasTyped) {
    DatiProgetto scritti = test::progettoSemplice();
    scritti.rigidezzaEJ = 0;
    DatiProgetto usati = scritti;
    usati.rigidezzaEJ = 12000;
    const Prospetto p = prospettoDati(scritti, parete(usati));
    EXPECT_EQ(riga(p, "rigidezzaEJ")[scritto].numero, 0);
    EXPECT_EQ(riga(p, "rigidezzaEJ")[usato].numero, 120000);
    EXPECT_EQ(riga(p, "rigidezzaEJ")[unita].testo, "kN m²/m");
}

// A typed 8 calculates as 0.8.
TEST(ProspettoDati, CountsTheBarsOfAPileAsTheCalculationDoes) {
    DatiProgetto dati = test::progettoSemplice();
    dati.sezione.tipoDiaframma = false;
    dati.sezione.tipoPaliArmati = true;
    dati.sezione.armNumLong = 0.8;
    dati.sezione.armDiamPalo = 60;
    const Prospetto p = prospettoDati(dati, parete(dati));
    EXPECT_EQ(riga(p, "sezione.armNumLong")[scritto].numero, 8);
    EXPECT_EQ(riga(p, "sezione.armNumLong")[usato].numero, 0.8);
    EXPECT_EQ(riga(p, "sezione.armDiamPalo")[usato].numero, 600);
    EXPECT_EQ(riga(p, "sezione.tipoPaliArmati")[scritto].testo, "sì");
}

TEST(ProspettoDati, LeavesOutOfUseWhatIsOfAnotherSection) {
    DatiProgetto dati = test::progettoSemplice();
    dati.sezione.paliDiamEst = 60;
    const Prospetto p = prospettoDati(dati, parete(dati));
    EXPECT_EQ(riga(p, "sezione.paliDiamEst")[scritto].numero, 600);
    EXPECT_EQ(riga(p, "sezione.paliDiamEst")[usato].perche,
              "La sezione in vigore non usa questo dato.");
    EXPECT_NE(riga(p, "sezione.spessoreDiaframma")[usato].testo, nessuno);
}

TEST(ProspettoDati, LeavesOutOfUseWhatNothingReads) {
    DatiProgetto dati = test::progettoSemplice();
    dati.metodoKs = valore(project::MetodoKs::bowles);
    const Prospetto p = prospettoDati(dati, parete(dati));
    EXPECT_EQ(
        riga(p, "suStrato[1]")[usato].perche,
        "Fuori dal calcolo (il terreno resiste con phi e c; Su sta solo nella stratigrafia).");
    EXPECT_EQ(riga(p, "opzioneRiservata")[usato].testo, nessuno);
    EXPECT_EQ(riga(p, "faldaValle")[usato].testo, nessuno);
    EXPECT_EQ(riga(p, "ksStrato[1]")[usato].testo, nessuno);
    EXPECT_EQ(riga(p, "coeffM")[usato].testo, nessuno);
    dati.metodoKs = valore(project::MetodoKs::lancellotta);
    EXPECT_NE(riga(prospettoDati(dati, parete(dati)), "coeffM")[usato].testo, nessuno);
}

}  // namespace
}  // namespace korven::tables
