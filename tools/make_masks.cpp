// make_masks SOURCE FOLDER: turns the readable masks of the input forms into the mask files proper.

#include <iostream>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "tools/mask_source.hpp"

int main(int argc, char** argv) {
    using namespace korven;
    if (argc != 3) {
        std::cerr << "usage: make_masks SOURCE FOLDER\n";
        return 2;
    }
    const std::string path = argv[1];
    const std::string folder = argv[2];
    try {
        for (const auto& mask : tools::readMaskSource(path, base::leggiFile(path)))
            base::scriviFile(folder + "/" + mask.file, tools::maskFileBytes(mask));
    } catch (const base::ErroreFile& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
