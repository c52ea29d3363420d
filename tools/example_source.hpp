#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace korven::tools {

/// The tags of the languages that examples are made in beside Italian, which are also the names of
/// their folders; a text or name in them stands in this order.
inline constexpr std::array<std::string_view, 3> exampleTags = {"fra", "esp", "eng"};

/// A project with its names in the other languages, without extension.
struct ExampleProject {
    std::string italian;
    std::array<std::string, exampleTags.size()> names;
};

struct ExampleText {
    std::string italian;
    std::array<std::string, exampleTags.size()> texts;
};

/// The content of data/examples/lingue.txt.
struct ExampleSource {
    std::vector<ExampleProject> projects;
    std::vector<ExampleText> texts;
};

/// Reads the source; its head explains the form.
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line: an unknown block, a language missing
[[nodiscard]] ExampleSource readExampleSource(const std::string& path, std::string_view content);

/// A project file in another language: the same lines with the words of the source in the place of
/// the Italian ones. The code of a hatch at the head of a line stays.
/// @param path      name of the project in errors
/// @param project   bytes of the Italian project: Windows-1252, CR LF
/// @param language  place in `exampleTags`
/// @throws base::ErroreFile with the line of a text that the source does not have
[[nodiscard]] std::string translatedExample(const ExampleSource& source, const std::string& path,
                                            std::string_view project, std::size_t language);

}  // namespace korven::tools
