// Every item of the menu, from its command to what it shows.

#include <gtest/gtest.h>

#include <map>

#include "commands/desktop_program.hpp"
#include "drawings/hatch_library.hpp"
#include "plot/plot_engine.hpp"
#include "support/hatch_files.hpp"
#include "support/plain_masks.hpp"
#include "support/plot_setup.hpp"
#include "support/program_bench.hpp"
#include "support/sample_projects.hpp"

namespace korven::commands {
namespace {

// With a project open, pens and patterns to draw with, and forms that say that they were shown.
class MenuIntero : public test::BancoProgramma {
 protected:
    MenuIntero() {
        plot::scriviConfigurazione(ambiente.programma / "module06ita.cfg",
                                   test::configurazioneDiProva());
        test::scriviLibreria(ambiente.programma, {});
        drawings::dimenticaCampiture();  // those of another test's folder
        plot::statoPlot = {};
        maschere.leggiMaschere(test::maschereSemplici(cartella));
        project::Progetto = test::progettoSemplice();
        project::fileCorrente = ambiente.lavori / "muro.kvd";

        const auto dice = [this](const char* forma) { return [=, this] { mostrate += forma; }; };
        const auto riceve = [this](const char* forma) {
            return [=, this](const std::string&) { mostrate += forma; };
        };
        forme.maschera = [this](masks::Maschere& m) { mostrate += "mask " + m.corrente().titolo; };
        forme.sezione = dice("section");
        forme.grafica = [this] { mostrate += "viewer of " + plot::statoPlot.nome; };
        forme.anteprima = riceve("preview");
        forme.stampa = riceve("printer");
        forme.esportaDoc = riceve("doc");
        forme.esportaTxt = riceve("txt");
        forme.editacfg = dice("pens");
        forme.impostaStampante = dice("printer set-up");
        forme.guida = [this](int contesto) { mostrate += "page " + std::to_string(contesto); };
        forme.sommario = dice("contents");
        forme.informazioni = riceve("about box");
        forme.controlli = dice("remarks");
        forme.risultati = dice("results");
        forme.sicurezza = dice("safety");
        forme.allegato = dice("annex");
        forme.confronto = dice("comparison");
        forme.norme = dice("codes");
        forme.studio = dice("studies");
        forme.nuovo = [this] {
            mostrate += "pattern, ";
            return std::string();
        };
        forme.lingua = [this] {
            mostrate += "languages, ";
            return true;
        };
        forme.riavvia = dice("start again, ");
        forme.tasti = dice("keys");
    }
    ~MenuIntero() override { plot::statoPlot = {}; }

    // What an item brings about.
    std::string esito(std::string_view nome) {
        auto p = programma(forme);
        mostrate.clear();
        nomi.attuali.clear();
        nomi.proposte.clear();
        finestra.ultimoStato.clear();
        nomi.proposteNuovo.clear();
        if (p.esegui(voceMenu(nome))) mostrate += "end";
        if (!nomi.attuali.empty()) mostrate += "open dialog";
        if (!nomi.proposte.empty()) mostrate += "save dialog";
        if (finestra.ultimoStato.starts_with("Nulla")) mostrate += finestra.ultimoStato;
        if (!nomi.proposteNuovo.empty()) mostrate += "name dialog";
        return mostrate;
    }

    test::CartellaProvvisoria cartella;
    FormeProgramma forme;
    std::string mostrate;
};

TEST_F(MenuIntero, BringsAboutWhatEachItemSays) {
    const std::map<std::string_view, std::string> attesi = {
        {"FileApri", "open dialog"},
        {"FileSalva", "save dialog"},
        {"PrintSetup", "printer set-up"},
        {"AiutoFile", "page 24"},
        {"EditStratigrafia", "mask S"},
        {"EditParatia", "mask D"},
        {"EditRigidezza", "section"},
        {"EditTiranti", "mask A"},
        {"EditFasi", "mask F"},
        {"EditTitoli", "mask T"},
        {"AiutoEdit", "page 25"},
        {"GraficaMomenti", "viewer of momenti"},
        {"GraficaSpostamenti", "viewer of spostamenti"},
        {"GraficaTaglio", "viewer of taglio"},
        {"GraficaPressioni", "viewer of pressioni"},
        {"GraficaStruttura", "viewer of sezione"},
        {"GraficaStratigrafia", "viewer of stratigrafia"},
        {"StampaVideo", "preview"},
        {"StampaTabulati", "printer"},
        {"espotab", "doc"},
        {"espotabtxt", "txt"},
        {"configura", "pens"},
        {"AiutoStampa", "page 26"},
        {"annulla", "Nulla da annullare"},
        {"ripeti", "Nulla da ripetere"},
        {"controlli", "remarks"},
        {"risultati", "results"},
        {"sicurezza", "safety"},
        {"allegato", "annex"},
        {"confronto", "comparison"},
        {"norme", "codes"},
        {"studio", "studies"},
        {"nuovo", "pattern, name dialog"},
        {"duplica", "name dialog"},
        {"lingua", "languages, start again, end"},
        {"tasti", "keys"},
        {"fine", "end"},
        {"sommario", "contents"},
        {"about", "about box"},
    };
    std::size_t provate = 0;
    for (const auto& v : albero()) {
        if (apreMenu(v)) continue;
        ++provate;
        ASSERT_TRUE(attesi.contains(v.nome)) << v.nome;
        EXPECT_EQ(esito(v.nome), attesi.at(v.nome)) << v.nome;
    }
    EXPECT_EQ(provate, attesi.size());
    EXPECT_TRUE(dialogo.messaggi.empty());
}

}  // namespace
}  // namespace korven::commands
