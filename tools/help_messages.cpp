#include "tools/help_messages.hpp"

#include <algorithm>
#include <map>
#include <set>

#include "base/file_error.hpp"
#include "base/text_table.hpp"
#include "tools/source_lines.hpp"

namespace korven::tools {

namespace {

// Between a message and what the program puts after it.
constexpr std::string_view continued = " | ";

class Reader {
 public:
    Reader(const std::string& path, std::string_view content) : lines_(path, content) {}

    std::vector<HelpMessageGroup> all() {
        while (const auto line = lines_.next()) {
            if (line->empty() || line->starts_with("#")) continue;
            if (line->starts_with("@gruppo "))
                group(line->substr(8));
            else if (line->starts_with("@messaggio "))
                explained(line->substr(11));
            else
                add("", *line);
        }
        close();
        return std::move(groups_);
    }

 private:
    void close() const {
        if (!groups_.empty() && groups_.back().messages.empty())
            lines_.refuse(groups_.back().line, "attesi i messaggi del gruppo");
    }

    void group(std::string_view name) {
        close();
        if (words(name).size() != 1) lines_.refuse("atteso il nome di un gruppo di messaggi");
        for (const auto& known : groups_)
            if (known.name == name) lines_.refuse("atteso un gruppo non ancora usato");
        groups_.push_back({std::string(name), {}, lines_.number()});
    }

    void explained(std::string_view line) {
        const auto blank = std::min(line.find(' '), line.size());
        if (blank == 0 || blank >= line.size() - 1) lines_.refuse("attesi un nome e il messaggio");
        const auto name = line.substr(0, blank);
        if (!names_.emplace(name).second) lines_.refuse("atteso un nome non ancora usato");
        add(name, line.substr(blank + 1));
    }

    void add(std::string_view name, std::string_view line) {
        if (groups_.empty()) lines_.refuse("attesa una riga \"@gruppo\" prima dei messaggi");
        const auto bar = std::min(line.find(continued), line.size());
        const auto text = line.substr(0, bar);
        const auto after = bar < line.size() ? line.substr(bar + continued.size()) : "";
        if (bar < line.size() && after != "?" && after != "…" && after != "…?")
            lines_.refuse("attesi \"?\", \"…\" o \"…?\" dopo la sbarra");
        if (!texts_.insert(base::chiaveTesto(text)).second)
            lines_.refuse("atteso un messaggio non ancora elencato");
        groups_.back().messages.push_back(
            {std::string(name), std::string(text), lines_.number(), std::string(after)});
    }

    SourceLines lines_;
    std::vector<HelpMessageGroup> groups_;
    std::set<std::string, std::less<>> names_, texts_;
};

// What the program puts in stands for nothing here: "%1" becomes "…".
std::string withEllipses(std::string_view text) {
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool place =
            text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
        if (place) ++i;
        shown += place ? "…" : std::string(1, text[i]);
    }
    return shown;
}

}  // namespace

std::vector<HelpMessageGroup> readHelpMessages(const std::string& path, std::string_view content) {
    return Reader(path, content).all();
}

HelpStructure withMessages(const std::string& path, HelpStructure structure,
                           const std::vector<HelpMessageGroup>& groups,
                           const std::vector<TextRecord>& records, int language) {
    std::map<std::string, std::string> texts;
    for (const auto& record : records)
        texts[base::chiaveTesto(record.text[0])] =
            record.text[static_cast<std::size_t>(language - 1)];
    std::map<std::string, HelpMessageGroup> waiting;
    for (auto group : groups) {
        for (auto& message : group.messages) {
            const auto text = texts.find(base::chiaveTesto(message.text));
            if (text == texts.end())
                throw base::ErroreFile(path, message.line,
                                       "attesa una chiave di texts.txt: " + message.text);
            message.text = withEllipses(text->second);
            if (message.after.starts_with("…")) message.text += ' ';
            message.text += message.after;
        }
        waiting[group.name] = std::move(group);
    }
    for (auto& page : structure)
        for (auto& group : page.groups) {
            const auto found = waiting.find(group.name);
            if (found == waiting.end())
                throw base::ErroreFile(path, 0, "atteso il gruppo " + group.name);
            group = std::move(found->second);
            waiting.erase(found);
        }
    if (!waiting.empty())
        throw base::ErroreFile(path, waiting.begin()->second.line,
                               "attesa una pagina con il gruppo " + waiting.begin()->first);
    return structure;
}

}  // namespace korven::tools
