// make_examples SOURCE FOLDER: makes the example projects of the other languages from the Italian
// ones beside the source, below FOLDER in a folder for each language.

#include <filesystem>
#include <iostream>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "tools/example_source.hpp"

int main(int argc, char** argv) {
    using namespace korven;
    namespace fs = std::filesystem;
    if (argc != 3) {
        std::cerr << "usage: make_examples SOURCE FOLDER\n";
        return 2;
    }
    const fs::path path = argv[1], folder = argv[2];
    try {
        const auto source = tools::readExampleSource(path.string(), base::leggiFile(path.string()));
        for (const auto& project : source.projects) {
            const std::string italian = (path.parent_path() / (project.italian + ".kvd")).string();
            const std::string bytes = base::leggiFile(italian);
            for (std::size_t i = 0; i < tools::exampleTags.size(); ++i) {
                const fs::path below = folder / tools::exampleTags[i];
                fs::create_directories(below);
                base::scriviFile((below / (project.names[i] + ".kvd")).string(),
                                 tools::translatedExample(source, italian, bytes, i));
            }
        }
    } catch (const base::ErroreFile& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
