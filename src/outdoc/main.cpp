#include <exception>
#include <iostream>

#include "base/closed_pipe.hpp"
#include "base/files.hpp"
#include "base/language.hpp"
#include "base/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "outdoc/document_renderer.hpp"

// outdoc REPORT.TAB: writes REPORT.doc beside it.

namespace korven::outdoc {
namespace {

enum ExitCode { done = 0, wrongUse = 2, brokenInput = 3 };

// The language speaks in errors alone: one that can't be had must not keep a report from its file.
void chooseLanguage() {
    try {
        const std::string choice = base::fileProgramma("language.cfg");
        if (!base::esisteFile(choice)) return;
        const int code = base::leggiLingua(choice);
        if (code == 1 || base::siglaLingua(code).empty()) return;
        base::caricaTesti(base::fileProgramma("texts01.txt"), base::fileProgramma("texts06.txt"),
                          base::fileProgramma("texts32.txt"));
        base::impostaLingua(code);
    } catch (const std::exception&) {
        base::impostaLingua(1);
    }
}

int work(int argc, const char* const* argv) {
    base::resistiAiTubiChiusi();
    chooseLanguage();
    if (argc != 2) {
        std::cerr << base::traduttore("Uso") << ": outdoc FILE.TAB\n";
        return wrongUse;
    }
    convertReport(argv[1]);
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
