#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "project/project_data.hpp"

namespace korven::tools {

/// A text of an example project in the six languages, in the order of the language codes.
struct ExampleText {
    std::array<std::string, 6> text;  ///< Italian first; UTF-8
    long line = 0;                    ///< line of the Italian text in the source, from 1
};

/// One block of data/esempi.txt.
struct ExampleSource {
    std::array<std::string, 6> name;  ///< of the file in each language, without extension
    std::vector<ExampleText> texts;
    long line = 0;  ///< line of "@esempio" in the source, from 1
};

/// Reads the source; its head explains the form.
///
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line: a line of another form or out of order, a name of other
///         characters or used before in its language, a text that occurs twice in an example, that
///         is empty or that Windows-1252 lacks, a "_" in front that only some of the languages have
[[nodiscard]] std::vector<ExampleSource> readExampleSource(const std::string& path,
                                                           std::string_view content);

/// The texts of a project that are translated, each once: its headings, then the descriptions of
/// its layers after the graphic code; the empty ones are left out.
[[nodiscard]] std::vector<std::string> exampleTexts(const project::DatiProgetto& data);

/// Refuses blocks that do not go with the projects one to one.
///
/// @param path      name of the source in errors
/// @param projects  names of all projects, without extension
/// @throws base::ErroreFile: a block without its project, with its line; a project without a block
void checkExampleNames(const std::string& path, const std::vector<ExampleSource>& sources,
                       const std::vector<std::string>& projects);

/// Refuses a block that does not fit its project.
///
/// @param path  name of the source in errors
/// @throws base::ErroreFile: a text of the project that the block lacks, with the line of
/// "@esempio"; a text that the project lacks, with its line
void checkExample(const std::string& path, const ExampleSource& source,
                  const project::DatiProgetto& data);

/// The project in language `index` (from 0, in the order of the codes): its texts replaced, all
/// else as it is.
/// @pre `checkExample` has nothing to refuse
[[nodiscard]] project::DatiProgetto translatedExample(const ExampleSource& source,
                                                      project::DatiProgetto data,
                                                      std::size_t index);

}  // namespace korven::tools
