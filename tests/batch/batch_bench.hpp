#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "base/code_page.hpp"
#include "project/project_file.hpp"
#include "support/program_run.hpp"
#include "support/sample_projects.hpp"
#include "support/temporary_folder.hpp"

namespace korven::test {

#ifndef KORVEN_CONSOLE
#define KORVEN_CONSOLE "korven32c"  // the build names the program's file; a header alone has none
#endif

/// A folder with a project, and korven32c beside it.
class BancoConsole : public ::testing::Test {
 protected:
    void SetUp() override { scrivi(progettoSemplice()); }

    void scrivi(const project::DatiProgetto& dati) {
        metti(progetto, base::inCp1252(project::testoProgetto(dati)));
    }

    /// Runs "korven32c COMANDO muro.kvd --nseg 10 ALTRI".
    EsitoProgramma esegui(const std::string& comando, std::vector<std::string> altri = {},
                          const Ambiente& ambiente = {}) {
        altri.insert(altri.begin(), {comando, progetto, "--nseg", "10"});
        return console(altri, ambiente);
    }
    /// Runs korven32c with these arguments alone.
    static EsitoProgramma console(const std::vector<std::string>& argomenti,
                                  const Ambiente& ambiente = {}) {
        return ProgrammaInCorso(KORVEN_CONSOLE, argomenti, ambiente).attendi();
    }

    /// All files of the folder and what they hold.
    [[nodiscard]] std::map<std::string, std::string> file() const {
        std::map<std::string, std::string> tutti;
        for (const auto& voce : std::filesystem::directory_iterator(cartella.percorso()))
            if (voce.is_regular_file())
                tutti[voce.path().filename().string()] = contenuto(voce.path().string());
        return tutti;
    }
    [[nodiscard]] std::string nomi() const {
        std::string testo;
        for (const auto& [nome, byte] : file()) testo += nome + ' ';
        return testo;
    }

    CartellaProvvisoria cartella;
    std::string progetto = cartella / "muro.kvd";
};

inline bool dice(const std::string& testo, std::string_view parte) {
    return testo.find(parte) != std::string::npos;
}

/// A wall whose first stage flips for ever between two states in 10 segments.
inline project::DatiProgetto progettoSenzaPace() {
    project::DatiProgetto d;
    project::azzera(d);
    d.nStrati = 1;
    d.profStrato[1] = 5;
    d.gammaN[1] = 1.67;
    d.gammaSat[1] = 2;
    d.phiStrato[1] = 25;
    d.ksStrato[1] = 3000;
    d.vincoloTesta = d.modoSpinte = d.modoKs = d.modoTensioni = d.metodoSpinte = 1;
    d.vincoloPiede = 2;
    d.metodoKs = 3;
    d.lunghezzaParatia = 10;
    d.rigidezzaEJ = 500;
    d.sovraccMonte = 1;
    d.momentoTesta = 5;
    d.faldaMonte = 2;
    d.faldaValle = 5;
    d.nTiranti = 2;
    d.profTirante[1] = 2.8;
    d.rigTirante[1] = d.rigTirante[2] = 1000;
    d.profTirante[2] = 4.4;
    d.pretTirante[2] = 1;
    d.nFasi = 1;
    d.profFase[1] = 6;
    d.tirantiFase[1] = 1;
    d.faldaFase[1] = 50;
    return d;
}

/// A wall in stiff ground whose one stage takes 22 iterations in 30 segments.
inline project::DatiProgetto progettoLento() {
    project::DatiProgetto d;
    project::azzera(d);
    d.nStrati = 2;
    d.profStrato[1] = 8;
    d.profStrato[2] = 13;
    d.gammaN[1] = 1.69;
    d.gammaN[2] = 1.71;
    d.coesione[1] = 2;
    for (int j = 1; j <= 2; ++j) {
        d.gammaSat[j] = 2;
        d.phiStrato[j] = 40;
        d.ksStrato[j] = 50000;
    }
    d.vincoloTesta = d.modoKs = d.modoTensioni = d.metodoSpinte = 1;
    d.modoSpinte = 2;
    d.vincoloPiede = d.metodoKs = 3;
    d.lunghezzaParatia = 12;
    d.rigidezzaEJ = 500;
    d.sovraccMonte = 1;
    d.forzaTesta = 3;
    d.faldaMonte = 50;
    d.faldaValle = 5;
    d.nFasi = 1;
    d.profFase[1] = 7.2;
    d.faldaFase[1] = 50;
    return d;
}

}  // namespace korven::test
