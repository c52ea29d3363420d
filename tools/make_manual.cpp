#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>

#include "base/files.hpp"
#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "batch/command_table.hpp"
#include "tools/completion_script.hpp"
#include "tools/manual_page.hpp"

// make_manual PROGRAM_FOLDER FOLDER: writes into a folder the pages of the manual in English (man1)
// and Italian (it/man1), and the script with which bash completes the command line.

namespace {

namespace fs = std::filesystem;
using korven::tools::ManualPage;

void write(const fs::path& folder, const std::vector<ManualPage>& pages) {
    for (const auto& page : pages)
        korven::base::scriviFile((folder / (page.name + ".1")).string(), page.text);
}

void pages(const fs::path& folder, const std::string& date) {
    korven::base::creaCartella(folder.string());
    write(folder, korven::tools::commandLinePages(korven::batch::comandi(), date));
    write(folder, korven::tools::plainProgramPages(date));
}

int make(const std::string& programFolder, const std::string& functions, const std::string& date,
         const fs::path& folder) {
    namespace base = korven::base;
    pages(folder / "it" / "man1", date);
    base::impostaCartellaProgramma(programFolder);
    base::caricaTesti(base::fileProgramma("texts01.txt"), base::fileProgramma("texts06.txt"),
                      base::fileProgramma("texts32.txt"));
    base::impostaLingua(5);
    pages(folder / "man1", date);
    base::scriviFile(
        (folder / "korven32c.bash").string(),
        korven::tools::completionScript(korven::batch::comandi(), base::leggiFile(functions)));
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::cerr << "usage: make_manual PROGRAM_FOLDER FUNCTIONS DATE FOLDER\n";
        return 2;
    }
    try {
        return make(argv[1], argv[2], argv[3], argv[4]);
    } catch (const std::exception& error) {
        std::cerr << "make_manual: " << error.what() << '\n';
        return 1;
    }
}
