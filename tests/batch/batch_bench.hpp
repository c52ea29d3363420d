#pragma once

#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "base/code_page.hpp"
#include "base/disk.hpp"
#include "base/folders/program_folder.hpp"
#include "batch/console_program.hpp"
#include "project/output_guard.hpp"
#include "project/project_data.hpp"
#include "project/project_file.hpp"
#include "support/program_run.hpp"
#include "support/restless_wall.hpp"
#include "support/sample_projects.hpp"
#include "support/temporary_folder.hpp"
#include "support/wall_builder.hpp"

namespace korven::test {

#ifndef KORVEN_CONSOLE
#define KORVEN_CONSOLE "korven32c"  // the build names the program's file; a header alone has none
#endif

/// Keeps what goes to an output of this process.
class UscitaTrattenuta {
 public:
    explicit UscitaTrattenuta(std::ostream& uscita)
        : uscita_(uscita), prima_(uscita.rdbuf(testo_.rdbuf())) {}
    UscitaTrattenuta(const UscitaTrattenuta&) = delete;
    UscitaTrattenuta& operator=(const UscitaTrattenuta&) = delete;
    ~UscitaTrattenuta() { uscita_.rdbuf(prima_); }

    [[nodiscard]] std::string testo() const { return testo_.str(); }

 private:
    std::ostringstream testo_;
    std::ostream& uscita_;
    std::streambuf* prima_;
};

/// The sample wall with its anchor on a node of ten segments, of which no remark is made.
inline project::DatiProgetto progettoSulNodo() {
    auto d = progettoSemplice();
    d.profTirante[1] = 1.2;
    return d;
}

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
    /// The same within this process, whose files that disk takes.
    EsitoProgramma esegui(const std::string& comando, const base::Disco& disco,
                          std::vector<std::string> altri = {}) {
        altri.insert(altri.begin(), {comando, progetto, "--nseg", "10"});
        return console(altri, disco);
    }
    /// Runs korven32c with these arguments alone.
    static EsitoProgramma console(const std::vector<std::string>& argomenti,
                                  const Ambiente& ambiente = {}) {
        return ProgrammaInCorso(KORVEN_CONSOLE, argomenti, ambiente).attendi();
    }

    static EsitoProgramma console(std::vector<std::string> argomenti, const base::Disco& disco) {
        const std::string programmi = std::filesystem::path(KORVEN_CONSOLE).parent_path().string();
        argomenti.insert(argomenti.begin(), KORVEN_CONSOLE);
        argomenti.insert(argomenti.end(), {"--cartella", programmi, "--lingua", "ita"});
        std::vector<const char*> puntatori;
        for (const auto& argomento : argomenti) puntatori.push_back(argomento.c_str());
        const UscitaTrattenuta uscita(std::cout), errori(std::cerr);
        const int codice =
            batch::programma(static_cast<int>(puntatori.size()), puntatori.data(), disco);
        base::impostaCartellaProgramma("");
        project::azzeraProgetto();
        project::fileCorrente.clear();
        project::progettiProtetti = {};
        return {codice, uscita.testo(), errori.testo()};
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

/// A wall in stiff ground whose one stage takes 22 iterations in 30 segments.
inline project::DatiProgetto progettoLento() {
    using project::DatiProgetto;
    return muro()
        .lungo(12)
        .rigido(500)
        .strato({.fondo = 8, .gammaN = 1.69, .phi = 40, .coesione = 2, .ks = 50000})
        .strato({.fondo = 13, .gammaN = 1.71, .phi = 40, .ks = 50000})
        .con(&DatiProgetto::vincoloPiede, 3)
        .con(&DatiProgetto::modoSpinte, 2)
        .sovraccarico(1)
        .con(&DatiProgetto::forzaTesta, 3)
        .con(&DatiProgetto::faldaValle, 5)
        .fase({.scavo = 7.2})
        .dati();
}

}  // namespace korven::test
