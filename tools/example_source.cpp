#include "tools/example_source.hpp"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "base/language.hpp"
#include "tools/source_lines.hpp"

namespace korven::tools {

namespace {

constexpr std::string_view exampleMark = "@esempio";
constexpr std::string_view nameMark = "@nome";
constexpr std::size_t languages = languageMarks.size();

std::string tag(std::size_t index) {
    return std::string(base::siglaLingua(static_cast<int>(index) + 1));
}

// A name that every file system takes and that the name rules of the program, which look for dots,
// leave whole.
bool plainName(std::string_view name) {
    return name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") ==
           std::string_view::npos;
}

class Reader {
 public:
    explicit Reader(SourceLines lines) : lines_(std::move(lines)) {}

    std::vector<ExampleSource> all() {
        advance();
        while (line_) {
            if (line_->starts_with('@'))
                example();
            else
                text();
        }
        return std::move(examples_);
    }

 private:
    // The next line that is neither empty nor a comment, if there is one.
    void advance() {
        while ((line_ = lines_.next()))
            if (line_->find_first_not_of(' ') != std::string_view::npos && !line_->starts_with('#'))
                return;
    }

    void example() {
        const auto word = words(*line_);
        if (word.size() != 2 || word[0] != exampleMark)
            lines_.refuse("attesa una riga \"@esempio NOME\"");
        ExampleSource& made = examples_.emplace_back();
        made.line = lines_.number();
        made.name[0] = newName(word[1], 0);
        advance();
        for (std::size_t i = 1; i < languages; ++i) made.name[i] = name(i);
    }

    std::string name(std::size_t index) {
        const auto word = line_ ? words(*line_) : std::vector<std::string_view>{};
        if (word.size() != 3 || word[0] != nameMark || word[1] != tag(index))
            lines_.refuse("attesa una riga \"@nome " + tag(index) + " NOME\"");
        std::string made = newName(word[2], index);
        advance();
        return made;
    }

    std::string newName(std::string_view name, std::size_t index) {
        if (!plainName(name))
            lines_.refuse("atteso un nome di sole lettere minuscole senza accenti, cifre e \"_\"");
        const auto [known, isNew] = lineOfName_[index].emplace(std::string(name), lines_.number());
        if (!isNew)
            lines_.refuse("atteso un nome nuovo, questo sta già alla riga " +
                          std::to_string(known->second));
        return std::string(name);
    }

    void text() {
        if (examples_.empty()) lines_.refuse("attesa prima una riga \"@esempio NOME\"");
        ExampleText made;
        for (std::size_t i = 0; i < languages; ++i) {
            made.text[i] = languageText(lines_, line_.value_or(""), i);
            if (i == 0) made.line = lines_.number();
            if (made.text[i].starts_with('_') != made.text[0].starts_with('_'))
                lines_.refuse("atteso \"_\" davanti in tutte le lingue o in nessuna");
            // Only the six lines of a block follow one another.
            line_ = lines_.next();
        }
        for (const auto& known : examples_.back().texts)
            if (known.text[0] == made.text[0])
                lines_.refuse(made.line, "atteso un testo nuovo, questo sta già alla riga " +
                                             std::to_string(known.line));
        examples_.back().texts.push_back(std::move(made));
        if (line_ && !line_->empty()) lines_.refuse("attesa una riga vuota dopo le sei lingue");
        advance();
    }

    SourceLines lines_;
    std::optional<std::string_view> line_;
    std::array<std::map<std::string, long>, languages> lineOfName_;
    std::vector<ExampleSource> examples_;
};

// Where the text of a description begins: after the graphic code and the blanks that follow it.
std::size_t startOfText(std::string_view description) {
    const auto code = description.find_first_not_of(' ');
    const auto end = description.find(' ', std::min(code, description.size()));
    return std::min(description.find_first_not_of(' ', std::min(end, description.size())),
                    description.size());
}

// Calls `take` with each text that is translated; what it does to the text is put back.
template <typename Take>
void eachText(project::DatiProgetto& data, Take take) {
    const auto piece = [&take](std::string& whole, std::size_t start) {
        std::string text = whole.substr(start);
        if (text.empty()) return;
        take(text);
        whole.replace(start, std::string::npos, text);
    };
    for (int i = 1; i <= 6; ++i) piece(data.titoli[i], 0);
    for (int j = 1; j <= data.nStrati; ++j)
        piece(data.descrStrato[j], startOfText(data.descrStrato[j]));
}

const ExampleText* blockOf(const ExampleSource& source, std::string_view italian) {
    const auto found = std::find_if(source.texts.begin(), source.texts.end(),
                                    [&](const auto& block) { return block.text[0] == italian; });
    return found == source.texts.end() ? nullptr : &*found;
}

}  // namespace

std::vector<ExampleSource> readExampleSource(const std::string& path, std::string_view content) {
    return Reader(SourceLines(path, content)).all();
}

std::vector<std::string> exampleTexts(const project::DatiProgetto& data) {
    std::vector<std::string> texts;
    project::DatiProgetto copy = data;
    eachText(copy, [&texts](const std::string& text) {
        if (std::find(texts.begin(), texts.end(), text) == texts.end()) texts.push_back(text);
    });
    return texts;
}

void checkExampleNames(const std::string& path, const std::vector<ExampleSource>& sources,
                       const std::vector<std::string>& projects) {
    const SourceLines lines(path, "");
    for (const auto& source : sources)
        if (std::find(projects.begin(), projects.end(), source.name[0]) == projects.end())
            lines.refuse(source.line, "atteso il nome di un progetto di esempio");
    for (const auto& project : projects)
        if (std::none_of(sources.begin(), sources.end(),
                         [&](const auto& source) { return source.name[0] == project; }))
            lines.refuse(0, "attesa una riga \"@esempio " + project + "\"");
}

void checkExample(const std::string& path, const ExampleSource& source,
                  const project::DatiProgetto& data) {
    const SourceLines lines(path, "");
    const auto texts = exampleTexts(data);
    for (const auto& text : texts)
        if (blockOf(source, text) == nullptr)
            lines.refuse(source.line, "attesa la traduzione di: " + text);
    for (const auto& block : source.texts)
        if (std::find(texts.begin(), texts.end(), block.text[0]) == texts.end())
            lines.refuse(block.line, "atteso un testo dell'esempio " + source.name[0]);
}

project::DatiProgetto translatedExample(const ExampleSource& source, project::DatiProgetto data,
                                        std::size_t index) {
    eachText(data, [&](std::string& text) { text = blockOf(source, text)->text[index]; });
    return data;
}

}  // namespace korven::tools
