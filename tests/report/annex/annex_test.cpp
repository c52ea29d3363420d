#include "report/annex/annex.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "base/code_page.hpp"
#include "project/codes.hpp"
#include "project/field_table.hpp"
#include "project/project_file.hpp"
#include "report/annex/chapters.hpp"
#include "support/sample_projects.hpp"
#include "support/sample_sections.hpp"

namespace korven::report {
namespace {

using document::Blocco;
using document::Documento;
using dossier::Fascicolo;
using project::DatiProgetto;

Fascicolo fascicoloDi(const DatiProgetto& scritti, const DatiProgetto& usati) {
    class InSilenzio : public analysis::OsservatoreCorsa {
    } osservatore;
    dossier::Identita identita;
    identita.file = "lavori/muro.kvd";
    identita.data = "2026-11-22";
    identita.comando = "korven32c allegato lavori/muro.kvd --nseg 40 --data 2026-11-22";
    return dossier::fascicolo(
        {.scritti = scritti, .usati = usati, .nSeg = 40, .identita = identita, .sulProgetto = {}},
        osservatore);
}

Fascicolo fascicoloDi(const DatiProgetto& dati) { return fascicoloDi(dati, dati); }

DatiProgetto muro() {
    auto dati = test::progettoSemplice();
    dati.sezione = structure::diaframmaSimmetrico();
    dati.titoli[1] = "Muro di prova";
    return dati;
}

std::vector<tables::Prospetto> tavole(const std::vector<Blocco>& blocchi) {
    std::vector<tables::Prospetto> tutte;
    for (const Blocco& b : blocchi)
        if (const auto* t = std::get_if<document::Tavola>(&b)) tutte.push_back(t->prospetto);
    return tutte;
}

std::vector<std::string> titoli(const Documento& d) {
    std::vector<std::string> tutti;
    for (const Blocco& b : d.blocchi)
        if (const auto* t = std::get_if<document::Titolo>(&b); t != nullptr && t->livello == 1)
            tutti.push_back(t->testo);
    return tutti;
}

// The row of a table that has this in one of its first two cells.
std::vector<std::string> riga(const std::vector<Blocco>& blocchi, std::string_view nome) {
    for (const auto& tavola : tavole(blocchi))
        for (const auto& r : tavola.righe)
            if (r[0].testo == nome || (r.size() > 1 && r[1].testo == nome)) {
                std::vector<std::string> testi;
                for (const auto& cella : r) testi.push_back(cella.testo);
                return testi;
            }
    return {};
}

std::vector<Blocco> capitolo(void (*scrivi)(const Contesto&, Blocchi&), Fascicolo f) {
    Blocchi blocchi;
    scrivi({std::make_shared<const Fascicolo>(std::move(f)), {}}, blocchi);
    return blocchi;
}

TEST(Allegato, BeginsWithTheCoverAndEndsWithTheWayToRepeatIt) {
    const Documento d = allegato(fascicoloDi(muro()));
    const auto capitoli = titoli(d);
    EXPECT_EQ(capitoli, (std::vector<std::string>{
                            "Allegato di calcolo", "1. Modello e ipotesi", "2. Osservazioni",
                            "3. Dati", "4. Terreno e rigidezze", "5. Fasi", "6. Tiranti e puntoni",
                            "7. Inviluppi", "8. Verifiche della sezione", "9. Margine di sicurezza",
                            "10. Terreno nodo per nodo", "11. Come ripetere il documento"}));
}

TEST(Allegato, TellsOnEveryPageWhichProjectItIsOf) {
    const Fascicolo f = fascicoloDi(muro());
    const Documento d = allegato(f);
    EXPECT_EQ(d.testata[0], "muro.kvd - Muro di prova");
    EXPECT_EQ(d.testata[1], "KORVEN 32 " + f.identita.versione);
    EXPECT_EQ(d.piede, "SHA-256 " + f.identita.impronta.substr(0, 12));
    EXPECT_EQ(d.data, "2026-11-22");
    EXPECT_EQ(d.lingua, "it");
}

TEST(Allegato, IsMadeOfAWallThatFallsHasNoSectionOrNoStage) {
    DatiProgetto cade = muro();
    cade.lunghezzaParatia = cade.profFase[cade.nFasi] + 0.1;
    cade.nTiranti = 0;
    DatiProgetto nuda = test::progettoSemplice();
    DatiProgetto senzaFasi = muro();
    senzaFasi.nFasi = 0;
    for (const DatiProgetto& dati : {cade, nuda, senzaFasi, DatiProgetto()})
        EXPECT_GE(titoli(allegato(fascicoloDi(dati))).size(), 5U);
}

TEST(Allegato, CarriesTheProjectWhoseImprintItShows) {
    const Fascicolo f = fascicoloDi(muro());
    const Documento d = allegato(f);
    ASSERT_EQ(d.allegati.size(), 1U);
    EXPECT_EQ(d.allegati[0].nome, "muro.kvd");
    EXPECT_EQ(d.allegati[0].byte, base::inCp1252(project::testoProgetto(f.scritti)));
    DatiProgetto rotto = muro();
    rotto.forzaTesta = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(allegato(fascicoloDi(rotto)).allegati.empty());
}

TEST(Copertina, HasAVerdictForEachOfFourThings) {
    const auto blocchi = capitolo(capitoloCopertina, fascicoloDi(muro()));
    EXPECT_EQ(riga(blocchi, "Equilibrio di tutte le fasi")[1], "verificato");
    EXPECT_FALSE(riga(blocchi, "Flessione").empty());
    EXPECT_EQ(riga(blocchi, "Taglio")[1], "nessuna verifica");
    EXPECT_FALSE(riga(blocchi, "Osservazioni di peso pericolo").empty());
}

TEST(Copertina, NamesTheMethodThatWasUsedAndNotTheOneWritten) {
    DatiProgetto usati = muro();
    usati.metodoSpinte = project::valore(project::MetodoSpinte::rankine);
    const auto blocchi = capitolo(capitoloCopertina, fascicoloDi(muro(), usati));
    EXPECT_EQ(riga(blocchi, "Metodo delle spinte usato")[1], "Rankine");
}

TEST(Copertina, SaysOfAWallThatFallsThatItIsNotVerified) {
    DatiProgetto cade = muro();
    cade.nTiranti = 0;
    cade.tirantiFase[1] = cade.tirantiFase[2] = 0;
    cade.lunghezzaParatia = cade.profFase[cade.nFasi] + 0.1;
    const auto blocchi = capitolo(capitoloCopertina, fascicoloDi(cade));
    EXPECT_EQ(riga(blocchi, "Equilibrio di tutte le fasi")[1], "NON verificato");
    EXPECT_EQ(riga(blocchi, "Flessione")[1], "nessuna verifica");
}

TEST(Modello, TellsOfTheMethodsOfThisProjectAlone) {
    DatiProgetto dati = muro();
    dati.metodoSpinte = project::valore(project::MetodoSpinte::bell);
    const auto blocchi = capitolo(capitoloModello, fascicoloDi(dati));
    EXPECT_FALSE(riga(blocchi, "Spinte: Bell").empty());
    EXPECT_TRUE(riga(blocchi, "Spinte: Coulomb").empty());
    EXPECT_TRUE(riga(blocchi, "Spinte: Rankine").empty());
}

TEST(Modello, SaysOfEachThingThatIsNotComputedWhatFollowsAndWhereItsRulesStand) {
    for (const auto& tavola : tavole(capitolo(capitoloModello, fascicoloDi(muro())))) {
        if (tavola.titolo != "Che cosa non si calcola") continue;
        EXPECT_GE(tavola.righe.size(), 9U);
        for (const auto& r : tavola.righe)
            for (const auto& cella : r) EXPECT_GE(cella.testo.size(), 20U) << r[0].testo;
        return;
    }
    FAIL() << "no such table";
}

TEST(Modello, LeavesCohesionOutOfTheLimitsOfBell) {
    DatiProgetto dati = muro();
    EXPECT_EQ(riga(capitolo(capitoloModello, fascicoloDi(dati)), "Limite attivo")[1],
              "pa = ka σ − 2 c tan(45° − φ/2) ≥ 0");
    dati.metodoSpinte = project::valore(project::MetodoSpinte::bell);
    EXPECT_EQ(riga(capitolo(capitoloModello, fascicoloDi(dati)), "Limite attivo")[1], "pa = ka σ");
}

TEST(Dati, SayWhyAFieldIsNotRead) {
    DatiProgetto dati = muro();
    dati.sezione = structure::palancola();
    dati.coeffM = 3;
    const auto blocchi = capitolo(capitoloDati, fascicoloDi(dati));
    EXPECT_EQ(riga(blocchi, "coeffM")[4], "-");
    EXPECT_EQ(riga(blocchi, "coeffM")[5],
              "fuori dal calcolo (lo legge solo il metodo di Lancellotta per ks)");
    EXPECT_EQ(riga(blocchi, "sezione.fck")[5],
              "fuori dal calcolo (la palancola non ha calcestruzzo)");
}

TEST(Osservazioni, AreAllThereEachOnce) {
    const Fascicolo f = fascicoloDi(muro());
    std::size_t righe = 0;
    for (const auto& tavola : tavole(capitolo(capitoloOsservazioni, f)))
        righe += tavola.righe.size();
    EXPECT_EQ(righe, f.osservazioni.size());
}

TEST(Dati, HaveEveryFieldOfTheProject) {
    const DatiProgetto dati = muro();
    const auto blocchi = capitolo(capitoloDati, fascicoloDi(dati));
    std::size_t colonne = 0;
    for (const project::Campo& campo : project::campi()) {
        if (project::colonna(campo))
            ++colonne;
        else
            EXPECT_FALSE(riga(blocchi, project::nomeStabile(campo)).empty()) << campo.nome;
    }
    // The tables of layers, anchors, stages and headings have a column for the row's number.
    std::size_t trovate = 0;
    for (const auto& tavola : tavole(blocchi))
        if (tavola.colonne[0].titolo == "N.") trovate += tavola.colonne.size() - 1;
    EXPECT_EQ(trovate, colonne);
}

TEST(Dati, TellWhatWasWrittenAndWhatIsUsed) {
    DatiProgetto scritti = muro();
    scritti.sezione.armNumLong = 12;
    scritti.rigidezzaEJ = 0;
    DatiProgetto usati = scritti;
    usati.metodoSpinte = project::valore(project::MetodoSpinte::rankine);
    usati.rigidezzaEJ = 1234;
    const auto blocchi = capitolo(capitoloDati, fascicoloDi(scritti, usati));
    EXPECT_EQ(riga(blocchi, "metodoSpinte")[3], "Coulomb");
    EXPECT_EQ(riga(blocchi, "metodoSpinte")[4], "Rankine");
    EXPECT_EQ(riga(blocchi, "rigidezzaEJ")[3], "0");
    EXPECT_EQ(riga(blocchi, "rigidezzaEJ")[4], "12340");
    EXPECT_EQ(riga(blocchi, "faldaValle")[4], "-");
    // The bars of another type of section.
    EXPECT_EQ(riga(blocchi, "sezione.armNumLong")[3], "120");
    EXPECT_EQ(riga(blocchi, "sezione.armNumLong")[4], "-");
}

TEST(Dati, ShowTheBarsThatCalculate) {
    DatiProgetto dati = muro();
    dati.sezione = structure::paliArmati();
    dati.sezione.armNumLong = 12;
    const auto blocchi = capitolo(capitoloDati, fascicoloDi(dati));
    EXPECT_EQ(riga(blocchi, "sezione.armNumLong")[3], "120");
    EXPECT_EQ(riga(blocchi, "sezione.armNumLong")[4], "12");
}

TEST(Dati, TellOfAMetreOfWallWhatActsOnOne) {
    const auto blocchi = capitolo(capitoloDati, fascicoloDi(muro()));
    EXPECT_EQ(riga(blocchi, "rigidezzaEJ")[2], "kN m²/m");
    EXPECT_EQ(riga(blocchi, "momentoTesta")[2], "kN m/m");
    EXPECT_EQ(riga(blocchi, "forzaTesta")[2], "kN/m");
    EXPECT_EQ(riga(blocchi, "sforzoNormale")[2], "kN/m");
    std::string unita;
    for (const auto& tavola : tavole(blocchi))
        if (tavola.titolo == "Tiranti e puntoni")
            for (const auto& colonna : tavola.colonne) unita += colonna.unita + ";";
    EXPECT_EQ(unita, ";m;kN/m/m;kN/m;;");
}

TEST(Dati, ShowSevenDigitsAndTheWeightOfWaterLikeTheOthers) {
    DatiProgetto dati = muro();
    dati.rigidezzaEJ = 1.30846153846154;
    dati.gammaAcqua = 1.02;
    const auto blocchi = capitolo(capitoloDati, fascicoloDi(dati));
    EXPECT_EQ(riga(blocchi, "rigidezzaEJ")[3], "13.08462");
    EXPECT_EQ(riga(blocchi, "gammaAcqua")[3], "1.02");
    EXPECT_EQ(riga(blocchi, "gammaAcqua")[4], "10.2 kN/m³");
}

TEST(Ripetere, HasTheCommandTheImprintAndEachLineOfTheFile) {
    const Fascicolo f = fascicoloDi(muro());
    std::string tutto;
    for (const Blocco& b : capitolo(capitoloRipetere, f))
        if (const auto* p = std::get_if<document::Paragrafo>(&b)) tutto += p->testo + '\n';
    EXPECT_NE(tutto.find(f.identita.comando), std::string::npos);
    EXPECT_NE(tutto.find(f.identita.impronta), std::string::npos);
    EXPECT_NE(tutto.find("1: " + std::to_string(f.scritti.nStrati)), std::string::npos);
    EXPECT_NE(tutto.find(": Muro di prova"), std::string::npos);
}

TEST(CapitoloDati, ListsTheTitlesThatAreWrittenWithTheirNumbers) {
    const auto titoliDi = [](const DatiProgetto& dati) {
        for (const auto& p : tavole(allegato(fascicoloDi(dati)).blocchi))
            if (p.titolo == "Titoli del progetto") return p;
        return tables::Prospetto{};
    };
    auto dati = muro();
    dati.titoli[2].clear();
    dati.titoli[4] = "Tratto B";
    const auto p = titoliDi(dati);
    ASSERT_EQ(p.righe.size(), 2U);
    EXPECT_EQ(p.righe[0][0].testo, "1");
    EXPECT_EQ(p.righe[0][1].testo, "Muro di prova");
    EXPECT_EQ(p.righe[1][0].testo, "4");
    EXPECT_EQ(p.righe[1][1].testo, "Tratto B");
    for (int i = 1; i <= project::numeroTitoli; ++i) dati.titoli[i].clear();
    EXPECT_TRUE(titoliDi(dati).righe.empty());
    EXPECT_EQ(titoliDi(dati).note, std::vector<std::string>{"La tabella è vuota."});
}

}  // namespace
}  // namespace korven::report
