// The commands for many variants and for the questions of designers as docs/batch.md and the help
// write them: whoever copies one gets an answer.

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>

#include "batch/batch_bench.hpp"

namespace korven::batch {
namespace {

namespace fs = std::filesystem;
using test::contenuto;

// What stands between blanks; quotes hold blanks together, as a shell takes them.
std::vector<std::string> parole(const std::string& riga) {
    std::vector<std::string> tutte;
    std::string parola;
    bool dentro = false;
    for (const char c : riga + ' ') {
        if (c == '"') {
            dentro = !dentro;
        } else if (c != ' ' || dentro) {
            parola += c;
        } else if (!parola.empty()) {
            tutte.push_back(std::move(parola));
            parola.clear();
        }
    }
    return tutte;
}

// All that a text shows as a whole command line, of these commands.
std::vector<std::vector<std::string>> esempi(const std::string& testo, const std::string& riga,
                                             const std::set<std::string>& comandi) {
    std::vector<std::vector<std::string>> trovati;
    const std::regex forma(riga);
    for (std::sregex_iterator r(testo.begin(), testo.end(), forma), fine; r != fine; ++r) {
        auto argomenti = parole((*r)[1]);
        if (argomenti.size() < 2 || !comandi.contains(argomenti[0])) continue;
        if ((argomenti[0] == "serie" || argomenti[0] == "series") && argomenti.size() == 2)
            continue;  // the name of the command, no example
        trovati.push_back(std::move(argomenti));
    }
    return trovati;
}

class EsempiScritti : public test::BancoConsole {
 protected:
    void SetUp() override {
        const std::string muro = std::string(KORVEN_EXAMPLES) + "/diaframma_due_ordini.kvd";
        for (const char* nome : {"muro.kvd", "wall.kvd", "wand.kvd", "mur.kvd"})
            fs::copy_file(muro, fs::path(cartella / nome), fs::copy_options::overwrite_existing);
        for (const char* nome : {"piano.csv", "plan.csv", "plano.csv"})
            test::metti(cartella / nome, "phiStrato[1],lunghezzaParatia\n30,18\n31,19\n");
        prima_ = fs::current_path();
        fs::current_path(fs::path(progetto).parent_path());
    }
    void TearDown() override { fs::current_path(prima_); }

    // A combination may not be met: that is an answer too.
    static void rispondono(const std::string& testo, const std::string& riga,
                           const std::set<std::string>& comandi) {
        std::set<std::string> visti;
        for (auto& argomenti : esempi(testo, riga, comandi)) {
            visti.insert(argomenti[0]);
            std::replace(argomenti.begin(), argomenti.end(), std::string("100000"),
                         std::string("100"));
            const auto esito = console(argomenti);
            const bool norma = argomenti[0].starts_with("combina");
            EXPECT_TRUE(esito.codice == 0 || (norma && esito.codice == 1))
                << ::testing::PrintToString(argomenti) << esito.errori;
        }
        EXPECT_EQ(visti, comandi) << "commands with an example";
    }

 private:
    fs::path prima_;
};

const std::set<std::string> inglesi = {"annex",   "combinations", "fields", "length",
                                       "lockoff", "series",       "set"};
const std::set<std::string> italiani = {"allegato", "bloccaggio", "campi", "combinazioni",
                                        "imposta",  "lunghezza",  "serie"};

TEST_F(EsempiScritti, OfTheDocumentAnswer) {
    rispondono(contenuto(KORVEN_DOCS "/batch.md"), "\nkorven32c ([^\n]*\\.kvd[^\n]*)", inglesi);
}

TEST_F(EsempiScritti, OfTheHelpAnswer) {
    for (const std::string lingua : {"ita", "deu", "fra", "esp", "eng", "por"}) {
        SCOPED_TRACE(lingua);
        rispondono(contenuto(KORVEN_DATA "/guida/" + lingua + ".txt"),
                   "`korven32c ([^`\n]*\\.kvd[^`\n]*)`", lingua == "ita" ? italiani : inglesi);
    }
}

}  // namespace
}  // namespace korven::batch
