#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "batch/batch_bench.hpp"

// What the tests of the command `serie` share.

#ifndef KORVEN_EXAMPLES
#define KORVEN_EXAMPLES "data/examples"  // the build names the folder; a header alone has none
#endif

namespace korven::test {

namespace fs = std::filesystem;

/// Without their ends.
inline std::vector<std::string> linee(const std::string& testo) {
    std::vector<std::string> tutte;
    std::istringstream flusso(testo);
    for (std::string riga; std::getline(flusso, riga);) {
        if (!riga.empty() && riga.back() == '\r') riga.pop_back();
        tutte.push_back(riga);
    }
    return tutte;
}

class Serie : public BancoConsole {
 protected:
    void SetUp() override { prendi("diaframma_due_ordini"); }

    void prendi(const std::string& nome) {
        fs::copy_file(std::string(KORVEN_EXAMPLES) + "/" + nome + ".kvd", progetto,
                      fs::copy_options::overwrite_existing);
    }
    [[nodiscard]] EsitoProgramma serie(std::vector<std::string> altri) const {
        altri.insert(altri.begin(), {"serie", progetto});
        return console(altri);
    }
    // A study of 60 variants, some of which fall.
    [[nodiscard]] static std::vector<std::string> studio(std::vector<std::string> altri = {}) {
        altri.insert(altri.begin(), {"--griglia", "lunghezzaParatia=9:18.5:0.5", "--griglia",
                                     "sovraccMonte=0:40:20"});
        return altri;
    }

    const std::string file = cartella / "studio.csv";
    const std::string parziale = file + ".parziale";
};

}  // namespace korven::test
