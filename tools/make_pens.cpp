// make_pens SOURCE FOLDER: turns the readable pens and colours into the files that drawings read.

#include <iostream>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "tools/pen_source.hpp"

int main(int argc, char** argv) {
    using namespace korven;
    if (argc != 3) {
        std::cerr << "usage: make_pens SOURCE FOLDER\n";
        return 2;
    }
    const std::string path = argv[1];
    const std::string folder = argv[2];
    try {
        const auto source = tools::readPenSource(path, base::leggiFile(path));
        for (int language = 1; language <= static_cast<int>(tools::penLanguages); ++language)
            base::scriviFile(folder + "/" + tools::penFileName(language),
                             tools::penFileBytes(source, language));
    } catch (const base::ErroreFile& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
