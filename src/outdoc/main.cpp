#include <exception>
#include <iostream>
#include <string>

#include "base/colon.hpp"
#include "base/folders/user_data.hpp"
#include "base/process/closed_pipe.hpp"
#include "base/process/program_questions.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "outdoc/document_renderer.hpp"

// outdoc REPORT.TAB: writes REPORT.doc beside it.

namespace korven::outdoc {
namespace {

enum ExitCode { done = 0, wrongUse = 2, brokenInput = 3 };

constexpr const char* usage = "outdoc FILE.TAB";

int answer(const std::string& text) {
    std::cout << text << std::flush;
    return std::cout ? done : brokenInput;
}

int refuse(const std::string& why) {
    std::cerr << why << '\n' << base::perAiuto("outdoc") << '\n';
    return wrongUse;
}

int work(int argc, const char* const* argv) {
    base::occupaCanaliChiusi();
    base::resistiAiTubiChiusi();
    base::seguiCartellaUtente();
    base::scegliLinguaSilenziosa();  // it speaks in errors alone, so none may keep it from its work
    const std::string argument = argc > 1 ? argv[1] : "";
    const auto question = base::richiesta(argument);
    if (question == base::Richiesta::versione)
        return answer(std::string(base::nomeEVersione) + '\n');
    if (question == base::Richiesta::aiuto)
        return answer(base::testoAiuto(usage) + '\n' +
                      base::traduttore("Scrive accanto alla relazione (TAB) il documento per "
                                       "elaboratori di testi (DOC).") +
                      '\n');
    if (argc != 2) return refuse(base::traduttore("Uso") + base::duePunti() + usage);
    if (argument.starts_with("--"))
        return refuse("outdoc: " + base::traduttore("argomento sconosciuto") + base::duePunti() +
                      argument);
    const Converted converted = convertReport(argument);
    if (!converted.kept.empty())
        std::cerr << "outdoc: " << base::traduttore("Il documento che c'era è conservato in")
                  << ": " << converted.kept << '\n';
    return done;
}

}  // namespace
}  // namespace korven::outdoc

int main(int argc, char** argv) {
    try {
        return korven::outdoc::work(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "outdoc: " << error.what() << '\n';
        return korven::outdoc::brokenInput;
    }
}
