#include "tools/help_source.hpp"

#include <algorithm>

#include "base/code_page.hpp"
#include "tools/source_lines.hpp"

namespace korven::tools {

namespace {

// Goes through the text of a language beside the structure, which says what comes next.
class Reader {
 public:
    Reader(const std::string& path, std::string_view content, const HelpStructure& structure)
        : lines_(path, content), structure_(structure) {}

    std::vector<HelpPage> all() {
        while (const auto line = lines_.next()) {
            if (line->starts_with("#")) continue;
            if (line->starts_with("@capitolo ")) {
                closePage();
                openChapter(line->substr(10));
            } else if (line->starts_with("@pagina ")) {
                closePage();
                openPage(line->substr(8));
            } else if (open_) {
                body_.push_back(*line);
            } else if (!line->empty()) {
                lines_.refuse("attesa una riga \"@capitolo\" o \"@pagina\"");
            }
        }
        closePage();
        if (pages_.size() < structure_.size()) lines_.refuse("attesa la pagina " + frame().name);
        checkLinks();
        return std::move(pages_);
    }

 private:
    /// The page that the structure has next.
    [[nodiscard]] const HelpFrame& frame() const { return structure_[pages_.size()]; }

    // Titles are no HTML and must do with the characters of the file.
    std::string plain(std::string_view text) {
        if (text.empty() || base::senzaSpaziEsterni(text) != text)
            lines_.refuse("atteso un testo senza spazi esterni");
        if (!base::rappresentabile(text)) lines_.refuse("attesi solo caratteri di Windows-1252");
        return std::string(text);
    }

    std::string labelled(std::string_view label) {
        const auto line = lines_.next();
        if (!line || !line->starts_with(label))
            lines_.refuse("attesa la riga \"" + std::string(label) + "...\"");
        return plain(line->substr(label.size()));
    }

    void openChapter(std::string_view name) {
        chapter_ = name;
        chapterTitle_ = labelled("titolo: ");
    }

    void openPage(std::string_view name) {
        if (pages_.size() == structure_.size()) lines_.refuse("attese solo le pagine di struttura");
        if (chapter_ != frame().chapter) lines_.refuse("atteso il capitolo " + frame().chapter);
        if (name != frame().name) lines_.refuse("attesa la pagina " + frame().name);
        HelpPage page;
        page.chapter = chapterTitle_;
        page.name = name;
        page.entry = frame().entry;
        page.line = lines_.number();
        page.title = labelled("titolo: ");
        page.words = labelled("parole: ");
        bodyStart_ = lines_.number() + 1;
        pages_.push_back(std::move(page));
        open_ = true;
    }

    void closePage() {
        if (!open_) return;
        open_ = false;
        HelpPage& page = pages_.back();
        page.body = helpBody(body_, structure_[pages_.size() - 1]);
        if (!page.body.fault.empty())
            lines_.refuse(bodyStart_ + static_cast<long>(page.body.faultLine), page.body.fault);
        if (page.body.html.empty()) lines_.refuse(page.line, "attesa una pagina non vuota");
        body_.clear();
    }

    void checkLinks() {
        for (const auto& page : pages_)
            for (const auto& link : page.body.links)
                if (!leadsSomewhere(link))
                    lines_.refuse(page.line,
                                  "rimando a una pagina o a un campo che non esiste: " + link);
    }

    // The documents lie outside: docs/help.md tells which they are, a test looks for them.
    [[nodiscard]] bool leadsSomewhere(std::string_view link) const {
        if (link.starts_with("documento:")) return true;
        const auto hash = std::min(link.find('#'), link.size());
        const auto page = std::find_if(pages_.begin(), pages_.end(), [&](const HelpPage& p) {
            return p.name == link.substr(0, hash);
        });
        if (page == pages_.end()) return false;
        const auto& anchors = page->body.anchors;
        return hash == link.size() ||
               std::find(anchors.begin(), anchors.end(), link.substr(hash + 1)) != anchors.end();
    }

    SourceLines lines_;
    std::vector<HelpPage> pages_;
    const HelpStructure& structure_;
    std::string chapter_, chapterTitle_;
    std::vector<std::string_view> body_;
    long bodyStart_ = 0;
    bool open_ = false;
};

}  // namespace

std::vector<HelpPage> readHelpSource(const std::string& path, std::string_view content,
                                     const HelpStructure& structure) {
    return Reader(path, content, structure).all();
}

std::string helpFileBytes(const std::vector<HelpPage>& pages) {
    std::string text = "KORVEN 32 HLP 1\n";
    std::string chapter;
    for (const auto& page : pages) {
        if (page.chapter != chapter) text += "@capitolo " + page.chapter + "\n";
        chapter = page.chapter;
        text += "@pagina " + std::to_string(page.entry) + " " + page.name + "\n" + page.title +
                "\n" + page.words + "\n" + page.body.html;
    }
    std::string bytes;
    for (const char c : base::inCp1252(text)) {
        if (c == '\n') bytes += '\r';
        bytes += c;
    }
    return bytes;
}

}  // namespace korven::tools
