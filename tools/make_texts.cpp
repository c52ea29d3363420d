// make_texts SOURCE FOLDER: turns the readable table of texts into the text files of the program.

#include <iostream>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "tools/text_source.hpp"

int main(int argc, char** argv) {
    using namespace korven;
    if (argc != 3) {
        std::cerr << "usage: make_texts SOURCE FOLDER\n";
        return 2;
    }
    const std::string source = argv[1];
    const std::string folder = argv[2];
    try {
        const auto records = tools::readTextSource(source, base::leggiFile(source));
        tools::checkTextRecords(source, records);
        for (const auto& name : tools::textFileNames(records))
            base::scriviFile(folder + "/" + name, tools::textFileBytes(records, name));
    } catch (const base::ErroreFile& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
