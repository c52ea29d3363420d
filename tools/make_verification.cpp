// make_verification PROGRAM CASES PROJECTS DOCS: writes verification.md and its figures into the
// folder DOCS, from the folder CASES and the projects that they begin with, in the texts of the
// folder PROGRAM.

#include <filesystem>
#include <iostream>

#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/language.hpp"
#include "base/translated_texts.hpp"
#include "tools/verification_page.hpp"
#include "verification/collection.hpp"

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    using namespace korven;
    if (argc != 5) {
        std::cerr << "usage: make_verification PROGRAM CASES PROJECTS DOCS\n";
        return 2;
    }
    try {
        const fs::path program = argv[1], docs = argv[4];
        base::impostaCartellaProgramma(program.string());
        base::caricaTesti((program / "texts01.txt").string(), (program / "texts06.txt").string(),
                          (program / "texts32.txt").string());
        base::impostaLingua(base::codiceLingua("eng"));
        const auto groups = verification::leggiCasi(argv[2], argv[3]);
        base::scriviFile((docs / "verification.md").string(),
                         tools::verificationPage(verification::esegui(groups)));
        fs::create_directories(docs / "verification");
        for (const auto& [name, svg] : tools::verificationFigures(groups))
            base::scriviFile((docs / "verification" / name).string(), svg);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
