#include "tools/help_structure.hpp"

#include <algorithm>
#include <map>
#include <optional>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/text_table.hpp"
#include "tools/source_lines.hpp"

namespace korven::tools {

namespace {

constexpr int lastEntry = 200;

class Reader {
 public:
    Reader(const std::string& path, std::string_view content) : lines_(path, content) {}

    HelpStructure all() {
        while (const auto line = lines_.next()) {
            if (line->empty() || line->starts_with("#")) continue;
            if (line->starts_with("@capitolo "))
                chapter(line->substr(10));
            else if (line->starts_with("@pagina "))
                page(line->substr(8));
            else if (line->starts_with("@campo "))
                field(line->substr(7));
            else if (line->starts_with("@gruppo "))
                group(line->substr(8));
            else
                lines_.refuse(
                    "attesa una riga \"@capitolo\", \"@pagina\", \"@campo\" o \"@gruppo\"");
        }
        if (pages_.empty()) lines_.refuse("attesa una pagina");
        return std::move(pages_);
    }

 private:
    void chapter(std::string_view name) {
        if (words(name).size() != 1) lines_.refuse("atteso il nome di un capitolo");
        for (const auto& known : pages_)
            if (known.chapter == name) lines_.refuse("atteso un capitolo non ancora usato");
        chapter_ = name;
    }

    void page(std::string_view head) {
        const auto parts = words(head);
        if (chapter_.empty()) lines_.refuse("atteso un capitolo prima delle pagine");
        if (parts.empty() || parts.size() > 2) lines_.refuse("attesi un nome e una voce");
        HelpFrame frame{chapter_, std::string(parts[0]), 0, {}};
        if (parts.size() == 2) {
            const auto entry = wholeNumber(parts[1]);
            if (!entry || *entry < 1 || *entry > lastEntry)
                lines_.refuse("attesa una voce da 1 a 200");
            frame.entry = *entry;
        }
        for (const auto& known : pages_)
            if (known.name == frame.name || (frame.entry != 0 && known.entry == frame.entry))
                lines_.refuse("attesi un nome e una voce non ancora usati");
        pages_.push_back(std::move(frame));
    }

    void field(std::string_view line) {
        const auto blank = line.find(' ');
        if (blank == 0 || blank >= line.size() - 1) lines_.refuse("attesi un campo e l'etichetta");
        if (pages_.empty()) lines_.refuse("attesa una pagina prima dei campi");
        auto& fields = pages_.back().fields;
        HelpField made{std::string(line.substr(0, blank)), std::string(line.substr(blank + 1)),
                       lines_.number()};
        for (const auto& known : fields)
            if (known.name == made.name) lines_.refuse("atteso un campo non ancora usato");
        fields.push_back(std::move(made));
    }

    void group(std::string_view name) {
        if (words(name).size() != 1) lines_.refuse("atteso il nome di un gruppo di messaggi");
        if (pages_.empty()) lines_.refuse("attesa una pagina prima dei gruppi");
        for (const auto& page : pages_)
            for (const auto& known : page.groups)
                if (known.name == name) lines_.refuse("atteso un gruppo non ancora usato");
        pages_.back().groups.push_back({std::string(name), {}, lines_.number()});
    }

    SourceLines lines_;
    HelpStructure pages_;
    std::string chapter_;
};

/// The labels of the forms in one language.
class Labels {
 public:
    Labels(const std::vector<TextRecord>& records, int language) {
        for (const auto& record : records)
            texts_[base::chiaveTesto(record.text[0])] =
                record.text[static_cast<std::size_t>(language - 1)];
    }

    /// A whole label; nothing when a part of it is no text of the program.
    [[nodiscard]] std::optional<std::string> of(std::string_view keys) const {
        std::string label;
        for (std::size_t start = 0; start <= keys.size();) {
            const auto end = std::min(keys.find(", ", start), keys.size());
            const auto text = part(keys.substr(start, end - start));
            if (!text) return std::nullopt;
            label += (label.empty() ? "" : ", ") + *text;
            start = end + 2;
        }
        label = withoutColon(label);
        return base::conMaiuscola(keys) == keys ? base::conMaiuscola(label) : label;
    }

 private:
    [[nodiscard]] std::optional<std::string> text(std::string_view key) const {
        const auto found = texts_.find(base::chiaveTesto(key));
        if (found == texts_.end()) return std::nullopt;
        std::string shown = found->second;
        std::erase(shown, '&');
        return shown;
    }

    [[nodiscard]] std::optional<std::string> part(std::string_view key) const {
        if (auto whole = text(key)) return whole;
        const auto unit = key.find(" [");
        if (unit == std::string_view::npos) return std::nullopt;
        auto name = text(key.substr(0, unit));
        if (name) *name += key.substr(unit);
        return name;
    }

    // French parts the colon by a blank of its own.
    static std::string withoutColon(std::string label) {
        if (label.ends_with(':')) label.pop_back();
        for (const std::string_view blank : {" ", "\u00a0"})
            if (label.ends_with(blank)) label.resize(label.size() - blank.size());
        return label;
    }

    std::map<std::string, std::string> texts_;
};

}  // namespace

HelpStructure readHelpStructure(const std::string& path, std::string_view content) {
    return Reader(path, content).all();
}

HelpStructure withLabels(const std::string& path, HelpStructure structure,
                         const std::vector<TextRecord>& records, int language) {
    const Labels labels(records, language);
    for (auto& page : structure)
        for (auto& field : page.fields) {
            auto label = labels.of(field.label);
            if (!label)
                throw base::ErroreFile(path, field.line,
                                       "attese chiavi di texts.txt: " + field.label);
            field.label = std::move(*label);
        }
    return structure;
}

}  // namespace korven::tools
