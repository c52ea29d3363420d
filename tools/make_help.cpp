// make_help SOURCE FILE: turns the readable help of one language into the help file of the program.

#include <iostream>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "tools/help_source.hpp"

int main(int argc, char** argv) {
    using namespace korven;
    if (argc != 3) {
        std::cerr << "usage: make_help SOURCE FILE\n";
        return 2;
    }
    const std::string path = argv[1];
    try {
        base::scriviFile(argv[2],
                         tools::helpFileBytes(tools::readHelpSource(path, base::leggiFile(path))));
    } catch (const base::ErroreFile& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
