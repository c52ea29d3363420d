#include "workbook/sheets.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "analysis/node_vector.hpp"
#include "live/envelope.hpp"
#include "support/sample_projects.hpp"
#include "support/wall_files.hpp"

namespace korven::workbook {
namespace {

using dossier::Fascicolo;
using tables::Prospetto;
using test::leggiMuro;
using test::progettoSemplice;

constexpr std::size_t nomeDato = 5, scritto = 2, usato = 3;

const Foglio& foglio(const CartellaFogli& cartella, const std::string& nome) {
    const auto posto = std::find_if(cartella.fogli.begin(), cartella.fogli.end(),
                                    [&](const Foglio& f) { return f.nome.italiano == nome; });
    if (posto == cartella.fogli.end()) throw std::out_of_range(nome);
    return *posto;
}

const std::vector<tables::Cella>& rigaDati(const Prospetto& p, const std::string& nome) {
    const auto posto = std::find_if(p.righe.begin(), p.righe.end(),
                                    [&](const auto& riga) { return riga[nomeDato].testo == nome; });
    if (posto == p.righe.end()) throw std::out_of_range(nome);
    return *posto;
}

Fascicolo esempio(const std::string& nome) {
    return dossier::fascicolo(leggiMuro(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd"));
}

TEST(Fogli, HaveASheetForEachPartAndAChartForEachResult) {
    const CartellaFogli cartella = fogli(dossier::fascicolo(progettoSemplice()));
    std::vector<std::string> nomi;
    for (const Foglio& f : cartella.fogli) nomi.push_back(f.prospetto.titolo);
    EXPECT_EQ(nomi,
              (std::vector<std::string>{"Progetto", "Dati", "Fasi", "Nodi", "Inviluppo", "Tiranti",
                                        "Verifiche", "Errore di maglia", "Osservazioni"}));
    std::vector<std::string> assi;
    for (const Grafico& g : cartella.diagrammi) assi.push_back(g.asse);
    EXPECT_EQ(assi, (std::vector<std::string>{
                        "Spostamento [mm]", "Momento [kN m/m]", "Taglio [kN/m]",
                        "Pressione netta [kN/m²]", "Spostamento [mm]", "Momento [kN m/m]",
                        "Taglio sopra [kN/m]", "Taglio sotto [kN/m]", "Monte [kN/m²]",
                        "Valle [kN/m²]", "Acqua [kN/m²]", "Pressione netta [kN/m²]"}));
    EXPECT_EQ(cartella.diagrammi[0].profondita, "z [m]");
    EXPECT_EQ(cartella.diagrammi[0].fondo, 12);
}

TEST(Fogli, SayWhoseNumbersTheyAre) {
    const CartellaFogli cartella = fogli(dossier::fascicolo(progettoSemplice()));
    for (const char* nome : {"fasi", "nodi", "inviluppo", "tiranti", "verifiche", "maglia"})
        EXPECT_EQ(foglio(cartella, nome).fonte,
                  "Numeri della soluzione di equilibrio, per metro di paratia.");
}

// t to kN and m to mm, in full.
TEST(Fogli, HaveTheNodesOfAllStagesOfTheDossier) {
    const Fascicolo f = esempio("diaframma_due_ordini");
    const CartellaFogli cartella = fogli(f);
    const Prospetto& p = foglio(cartella, "nodi").prospetto;
    const auto nodi = f.parete.fasi[0].y.size();
    ASSERT_EQ(p.righe.size(), nodi * f.parete.fasi.size());
    for (std::size_t r = 0; r < p.righe.size(); ++r) {
        const auto& fase = f.parete.fasi[r / nodi];
        const std::size_t i = r % nodi;
        const double attesi[] = {static_cast<double>(fase.fase),
                                 static_cast<double>(i + 1),
                                 analysis::zNodo(static_cast<int>(i) + 1, f.parete.h),
                                 fase.y[i] * 1000,
                                 fase.momento[i] * 10,
                                 fase.taglioSopra[i] * 10,
                                 fase.taglioSotto[i] * 10,
                                 fase.monte[i] * 10,
                                 fase.valle[i] * 10,
                                 fase.acqua[i] * 10,
                                 live::pressioneNetta(fase, i) * 10};
        for (std::size_t c = 0; c < std::size(attesi); ++c)
            ASSERT_EQ(p.righe[r][c].numero, attesi[c]) << r << ' ' << p.colonne[c].titolo;
    }
}

TEST(Fogli, DrawEachStageFromItsOwnRows) {
    const Fascicolo f = esempio("diaframma_due_ordini");
    const CartellaFogli cartella = fogli(f);
    const Grafico& momento = cartella.diagrammi[5];
    ASSERT_EQ(momento.asse, "Momento [kN m/m]");
    ASSERT_EQ(momento.serie.size(), f.parete.fasi.size());
    for (std::size_t k = 0; k < momento.serie.size(); ++k) {
        const Serie& s = momento.serie[k];
        const Prospetto& p = cartella.fogli[s.foglio].prospetto;
        EXPECT_EQ(s.nome, "Fase " + std::to_string(k + 1));
        EXPECT_EQ(p.colonne[s.dato].titolo, "Momento");
        EXPECT_EQ(p.colonne[s.profondita].titolo, "z");
        for (const std::size_t r : {s.prima, s.ultima})
            EXPECT_EQ(p.righe[r][0].numero, static_cast<double>(k + 1));
        EXPECT_EQ(p.righe[s.prima][s.profondita].numero, 0);
        EXPECT_DOUBLE_EQ(*p.righe[s.ultima][s.profondita].numero, 18);
    }
}

TEST(Fogli, DrawTheEnvelopeBetweenItsLeastAndItsGreatestValues) {
    const CartellaFogli cartella = fogli(dossier::fascicolo(progettoSemplice()));
    const Grafico& taglio = cartella.diagrammi[2];
    ASSERT_EQ(taglio.serie.size(), 2u);
    EXPECT_EQ(taglio.serie[0].nome, "Taglio min.");
    EXPECT_EQ(taglio.serie[1].nome, "Taglio max.");
    EXPECT_EQ(cartella.fogli[taglio.serie[0].foglio].prospetto.titolo, "Inviluppo");
}

TEST(Fogli, HaveTheInputAsTypedAndAsUsed) {
    Fascicolo f;
    f.scritti = progettoSemplice();
    f.parete.dati = f.scritti;
    f.scritti.rigidezzaEJ = 0;
    const CartellaFogli cartella = fogli(f);
    const auto& EJ = rigaDati(foglio(cartella, "dati").prospetto, "rigidezzaEJ");
    EXPECT_EQ(EJ[scritto].numero, 0);
    EXPECT_EQ(EJ[usato].numero, 120000);
}

TEST(Fogli, FollowAnAnchorFromItsFirstStage) {
    const Fascicolo f = esempio("diaframma_due_ordini");
    const CartellaFogli cartella = fogli(f);
    const Prospetto& p = foglio(cartella, "tiranti").prospetto;
    ASSERT_EQ(p.righe.size(), f.tiranti.size());
    const auto n = p.colonne.size();
    EXPECT_EQ(p.colonne[n - 2].testa(), "A fine fase di posa [kN/m]");
    EXPECT_EQ(p.colonne[n - 1].testa(), "Relazione [kN/m]");
    for (std::size_t j = 0; j < p.righe.size(); ++j) {
        const auto& storia = f.tiranti[j];
        EXPECT_EQ(p.righe[j][n - 5].numero, storia.massimo * 10);
        EXPECT_EQ(p.righe[j][n - 4].numero, storia.faseMassimo);
        EXPECT_EQ(p.righe[j][n - 3].numero, storia.posa);
        EXPECT_EQ(p.righe[j][n - 2].numero, storia.allaPosa * 10);
        EXPECT_EQ(p.righe[j][n - 1].numero, *storia.relazione * 10);
    }
}

TEST(Fogli, CheckTheSectionWithTheEquilibriumThoughThereIsAReport) {
    const Fascicolo f = esempio("diaframma_due_ordini");
    ASSERT_TRUE(f.conRelazione());
    const CartellaFogli cartella = fogli(f);
    const Prospetto& p = foglio(cartella, "verifiche").prospetto;
    ASSERT_GE(p.righe.size(), 2u);
    EXPECT_EQ(p.righe[0][1].numero, f.controlli.flessione->mdMax * 10);
    EXPECT_EQ(p.righe[1][1].numero, f.controlli.flessione->mdMin * 10);
    EXPECT_TRUE(p.note.back().starts_with("Verifiche con i numeri della soluzione di equilibrio"));
}

// Which column of a table is headed so.
std::size_t posto(const Prospetto& p, const std::string& titolo) {
    for (std::size_t i = 0; i < p.colonne.size(); ++i)
        if (p.colonne[i].titolo == titolo) return i;
    throw std::out_of_range(titolo);
}

TEST(Fogli, HaveTheReportsNumbersBesideAndTheDepthApartFromItsSide) {
    const Fascicolo f = esempio("pali_armati_staffe");
    const CartellaFogli cartella = fogli(f);
    const Prospetto& p = foglio(cartella, "verifiche").prospetto;
    ASSERT_EQ(p.righe.size(), f.verifiche.size());
    const auto& armatura = p.righe.back();
    const dossier::VerificaDoppia& sua = f.verifiche.back();
    EXPECT_EQ(armatura[posto(p, "Di progetto")].numero, sua.equilibrio->progetto);
    EXPECT_EQ(armatura[posto(p, "Di progetto, relazione")].numero, sua.relazione->progetto);
    EXPECT_EQ(armatura[posto(p, "Sfruttamento, relazione")].testo, "106.0");
    EXPECT_EQ(armatura[posto(p, "Esito")].testo, "NON verificata");
    EXPECT_EQ(armatura[posto(p, "z")].testo, "1.60");
    EXPECT_TRUE(armatura[posto(p, "z") + 1].testo == "sopra" ||
                armatura[posto(p, "z") + 1].testo == "sotto");
    EXPECT_EQ(p.colonne[posto(p, "z") + 1].titolo, "Lato");
}

// Programs read a CSV by position: no column comes and goes with the project.
TEST(Fogli, HaveTheSameColumnsWhetherOrNotADepthHasASide) {
    const Fascicolo conTiranti = esempio("pali_armati_staffe"),
                    senza = esempio("palancola_mensola");
    for (const char* nome : {"fasi", "verifiche"}) {
        const CartellaFogli una = fogli(conTiranti), altra = fogli(senza);
        EXPECT_EQ(foglio(una, nome).prospetto.colonne, foglio(altra, nome).prospetto.colonne)
            << nome;
    }
    const CartellaFogli cartella = fogli(senza);
    const Prospetto& p = foglio(cartella, "verifiche").prospetto;
    EXPECT_EQ(p.righe.at(0)[posto(p, "Lato")], tables::Cella{});
}

// The report says that it holds, and all three meshes too.
TEST(Fogli, GiveACheckTheOutcomeThatFinerMeshesLeaveIt) {
    const Fascicolo f = esempio("paratia_lunga_incastro");
    const CartellaFogli cartella = fogli(f);
    for (const auto& [nome, riga] : {std::pair("verifiche", 1), std::pair("maglia", 6)}) {
        const Prospetto& p = foglio(cartella, nome).prospetto;
        const auto& celle = p.righe.at(static_cast<std::size_t>(riga));
        EXPECT_EQ(celle[posto(p, "Esito")].testo, "non a convergenza") << nome;
        EXPECT_EQ(celle[posto(p, "Tendenza")].testo, "101.9") << nome;
    }
    const Prospetto& osservazioni = foglio(cartella, "osservazioni").prospetto;
    EXPECT_TRUE(std::ranges::any_of(osservazioni.righe, [](const auto& riga) {
        return riga[3].testo == "verdetto-con-la-maglia";
    }));
}

// What nobody checks has a row all the same, with the number to check.
TEST(Fogli, HaveTheDesignShearOfASectionWithoutACheckOfIt) {
    const Fascicolo f = esempio("diaframma_due_ordini");
    const CartellaFogli cartella = fogli(f);
    const Prospetto& p = foglio(cartella, "verifiche").prospetto;
    ASSERT_EQ(p.righe.size(), 3u);
    EXPECT_EQ(p.righe[2][0].testo, "Taglio [kN/m]");
    EXPECT_EQ(p.righe[2][1].testo, "301.42");
    EXPECT_EQ(p.righe[2][2].perche, "Il programma non ha una verifica a taglio per i diaframmi.");
    EXPECT_EQ(p.righe[2][posto(p, "Esito")].testo, "nessuna verifica");
}

TEST(Fogli, NameTheMethodsInUse) {
    const CartellaFogli cartella = fogli(esempio("diaframma_due_ordini"));
    std::vector<std::string> voci;
    for (const auto& riga : foglio(cartella, "progetto").prospetto.righe)
        voci.push_back(riga[0].testo);
    for (const char* voce : {"Metodo delle spinte usato", "Metodo di ks usato"})
        EXPECT_EQ(std::ranges::count(voci, voce), 1) << voce;
}

TEST(Fogli, HaveTheNumbersAndTheUsesOfThreeMeshes) {
    const Fascicolo f = esempio("paratia_lunga_incastro");
    const CartellaFogli cartella = fogli(f);
    const Prospetto& p = foglio(cartella, "maglia").prospetto;
    const safety::ErroreMaglia& e = *f.margine->maglia;
    ASSERT_EQ(p.righe.size(), 5u + e.usi.size());
    EXPECT_EQ(p.colonne[2].titolo, "100 segmenti");
    EXPECT_EQ(p.righe[1][1].numero, e.momentoNegativo.valore * 10);
    EXPECT_EQ(p.righe[1][2].numero, e.momentoNegativo.doppia * 10);
    EXPECT_EQ(p.righe[1][3].numero, e.momentoNegativo.fine * 10);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(*p.righe[6][1 + i].numero, *e.usi[1].maglie[i]->uso() * 100, 1e-9);
    ASSERT_EQ(p.note.size(), 1u);  // at the fixed toe finer meshes use more and more
    EXPECT_TRUE(p.note[0].starts_with("Il verdetto non è a convergenza"));
}

TEST(Fogli, SayWhyAWallThatDoesNotStandHasNoNumbers) {
    const Fascicolo f =
        dossier::fascicolo(leggiMuro(std::string(KORVEN_WALLS) + "/meccanismo.kvd"));
    const CartellaFogli cartella = fogli(f);
    EXPECT_TRUE(cartella.diagrammi.empty());
    for (const char* nome : {"nodi", "inviluppo", "verifiche", "maglia"}) {
        const Prospetto& p = foglio(cartella, nome).prospetto;
        EXPECT_TRUE(p.righe.empty()) << nome;
        ASSERT_FALSE(p.note.empty()) << nome;
        EXPECT_NE(p.note[0].find("meccanismo"), std::string::npos) << p.note[0];
    }
    EXPECT_FALSE(foglio(cartella, "osservazioni").prospetto.righe.empty());
    const auto& progetto = foglio(cartella, "progetto").prospetto.righe;
    EXPECT_TRUE(std::any_of(progetto.begin(), progetto.end(),
                            [](const auto& r) { return r[0].testo == "Nota: Nodi"; }));
}

TEST(Fogli, SayOnceWhyCellsAreEmpty) {
    const CartellaFogli cartella = fogli(dossier::fascicolo(test::progettoSemplice()));
    std::vector<std::string> motivi;
    for (const auto& riga : foglio(cartella, "progetto").prospetto.righe)
        if (riga[0].testo == "Celle vuote: Tiranti") motivi.push_back(riga[1].testo);
    ASSERT_EQ(motivi.size(), 1u);
    EXPECT_EQ(motivi[0], "Non è in opera in questa fase.");
}

TEST(Fogli, AreMadeOfAProjectOfWhichNothingIsKnown) {
    const CartellaFogli cartella = fogli(dossier::fascicolo(test::progettoVuoto()));
    for (const Foglio& f : cartella.fogli)
        for (const auto& riga : f.prospetto.righe)
            ASSERT_EQ(riga.size(), f.prospetto.colonne.size()) << f.prospetto.titolo;
    EXPECT_TRUE(foglio(cartella, "nodi").prospetto.righe.empty());
}

TEST(Fogli, HoldAHundredLayersAndAWallWithoutASection) {
    auto muro = test::muro().lungo(10).fase({.scavo = 2});
    for (int j = 1; j <= 100; ++j) muro.strato({.fondo = 0.2 * j, .descrizione = "1 Strato"});
    const CartellaFogli cartella = fogli(dossier::fascicolo(muro.dati()));
    const Prospetto& dati = foglio(cartella, "dati").prospetto;
    EXPECT_EQ(rigaDati(dati, "profStrato[100]")[scritto].numero, 20);
    EXPECT_FALSE(foglio(cartella, "nodi").prospetto.righe.empty());
    EXPECT_EQ(foglio(cartella, "verifiche").prospetto.note[0],
              "Nessuna verifica: la sezione non è definita.");
    EXPECT_EQ(foglio(cartella, "tiranti").prospetto.note[0],
              "Il progetto non ha né tiranti né puntoni.");
}

}  // namespace
}  // namespace korven::workbook
