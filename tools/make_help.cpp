// make_help STRUCTURE TEXTS LANGUAGE SOURCE FILE: turns the readable help of one language, "ita"
// for example, into the help file of the program. TEXTS has the labels of the forms.

#include <iostream>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/language.hpp"
#include "tools/help_source.hpp"

int main(int argc, char** argv) {
    using namespace korven;
    const int language = argc == 6 ? base::codiceLingua(argv[3]) : 0;
    if (language == 0) {
        std::cerr << "usage: make_help STRUCTURE TEXTS LANGUAGE SOURCE FILE\n";
        return 2;
    }
    const std::string frame = argv[1], texts = argv[2], source = argv[4];
    try {
        const auto structure =
            tools::withLabels(frame, tools::readHelpStructure(frame, base::leggiFile(frame)),
                              tools::readTextSource(texts, base::leggiFile(texts)), language);
        base::scriviFile(argv[5], tools::helpFileBytes(tools::readHelpSource(
                                      source, base::leggiFile(source), structure)));
    } catch (const base::ErroreFile& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
