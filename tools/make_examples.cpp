// make_examples SOURCE FROM TO: lays the Italian example projects of the folder FROM, in the other
// languages, into the folders deu to por below TO, with the names and texts of the table SOURCE.

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/language.hpp"
#include "base/text_lines.hpp"
#include "project/project_file.hpp"
#include "tools/example_source.hpp"

namespace {

namespace fs = std::filesystem;
using namespace korven;

void makeExample(const std::string& path, const tools::ExampleSource& source, const fs::path& from,
                 const fs::path& to) {
    const auto italian = std::make_unique<project::DatiProgetto>();
    project::azzera(*italian);
    auto file = base::LettoreRighe::apri((from / (source.name[0] + ".kvd")).string());
    project::leggiDati(file, *italian);
    tools::checkExample(path, source, *italian);
    for (std::size_t i = 1; i < source.name.size(); ++i) {
        const fs::path folder = to / base::siglaLingua(static_cast<int>(i) + 1);
        fs::create_directories(folder);
        const auto translated = tools::translatedExample(source, *italian, i);
        base::scriviFile((folder / (source.name[i] + ".kvd")).string(),
                         base::inCp1252(project::testoProgetto(translated)));
    }
}

std::vector<std::string> projectNames(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().extension() == ".kvd") names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: make_examples SOURCE FROM TO\n";
        return 2;
    }
    const std::string path = argv[1];
    try {
        const auto sources = tools::readExampleSource(path, base::leggiFile(path));
        tools::checkExampleNames(path, sources, projectNames(argv[2]));
        for (const auto& source : sources) makeExample(path, source, argv[2], argv[3]);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
