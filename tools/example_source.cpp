#include "tools/example_source.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "tools/source_lines.hpp"

namespace korven::tools {

namespace {

// Where the languages of a block stand among those of the program: it, fr, es, en.
constexpr std::size_t italianMark = 0;
constexpr std::array<std::size_t, exampleTags.size()> marks = {2, 3, 4};

std::string nextText(SourceLines& lines, std::size_t mark) {
    const auto line = lines.next();
    if (!line) lines.refuse("atteso un testo in ogni lingua");
    return languageText(lines, *line, mark);
}

std::array<std::string, exampleTags.size()> others(SourceLines& lines) {
    std::array<std::string, exampleTags.size()> texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = nextText(lines, marks[i]);
    return texts;
}

bool speaks(std::string_view text) {
    const auto letter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c & 0x80) != 0;
    };
    return std::count_if(text.begin(), text.end(), letter) > 2;
}

// The code of a hatch with the blank behind it: "125C4 ", "-103C3 ". Empty if the line has none.
std::string_view hatchCode(std::string_view line) {
    const auto end = line.find(' ');
    if (end == std::string_view::npos) return {};
    const std::string_view word = line.substr(0, end);
    const bool code = word.find_first_not_of("-0123456789C") == std::string_view::npos &&
                      word.find_first_of("0123456789") != std::string_view::npos;
    return code ? line.substr(0, end + 1) : std::string_view();
}

}  // namespace

ExampleSource readExampleSource(const std::string& path, std::string_view content) {
    SourceLines lines(path, content);
    ExampleSource source;
    while (const auto line = lines.next()) {
        constexpr std::string_view project = "@progetto ";
        if (line->empty() || line->starts_with('#')) continue;
        if (line->starts_with(project)) {
            const std::string name(line->substr(project.size()));
            source.projects.push_back({name, others(lines)});
        } else if (*line == "@testo") {
            const std::string italian = nextText(lines, italianMark);
            source.texts.push_back({italian, others(lines)});
        } else {
            lines.refuse("atteso \"@progetto NOME\" o \"@testo\"");
        }
    }
    return source;
}

std::string translatedExample(const ExampleSource& source, const std::string& path,
                              std::string_view project, std::size_t language) {
    const std::string text = base::daCp1252(project);
    SourceLines lines(path, text);
    std::string translated;
    while (const auto line = lines.next()) {
        const std::string_view code = hatchCode(*line);
        const std::string_view words = line->substr(code.size());
        translated += base::inCp1252(code);
        const auto found = std::find_if(source.texts.begin(), source.texts.end(),
                                        [&](const auto& t) { return t.italian == words; });
        if (found == source.texts.end() && speaks(words))
            lines.refuse("atteso un testo tradotto: " + std::string(words));
        translated += base::inCp1252(found == source.texts.end() ? words : found->texts[language]);
        translated += "\r\n";
    }
    return translated;
}

}  // namespace korven::tools
