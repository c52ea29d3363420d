// make_hatches SOURCE FOLDER: turns the readable hatch patterns into the library of the program.

#include <iostream>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/language.hpp"
#include "tools/hatch_files.hpp"

int main(int argc, char** argv) {
    using namespace korven;
    if (argc != 3) {
        std::cerr << "usage: make_hatches SOURCE FOLDER\n";
        return 2;
    }
    const std::string source = argv[1];
    const std::string set = std::string(argv[2]) + "/set";
    try {
        const auto library = tools::makeHatchLibrary(
            source, tools::readHatchSource(source, base::leggiFile(source)));
        base::scriviFile(set + "1.rtn", tools::strokeCountBytes(library));
        base::scriviFile(set + "2.rtn", tools::hatchUnitBytes(library));
        for (int language = 1; language <= 6; ++language)
            base::scriviFile(set + "3" + std::string(base::siglaLingua(language)) + ".rtn",
                             tools::hatchNameBytes(library, language));
        base::scriviFile(set + "4.rtn", tools::strokeBytes(library));
    } catch (const base::ErroreFile& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
