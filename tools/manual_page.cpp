#include "tools/manual_page.hpp"

#include <algorithm>
#include <cassert>
#include <cctype>
#include <string_view>

#include "base/process/program_questions.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"

namespace korven::tools {

namespace {

using base::Gemelli;
using base::traduttore;

// What the manual says beside the rows: Italian, English.
constexpr Gemelli name{"NOME", "NAME"}, synopsis{"SINTASSI", "SYNOPSIS"},
    description{"DESCRIZIONE", "DESCRIPTION"}, options{"OPZIONI", "OPTIONS"},
    arguments{"ARGOMENTI", "ARGUMENTS"}, commands{"COMANDI", "COMMANDS"},
    status{"STATO DI USCITA", "EXIT STATUS"}, environment{"AMBIENTE", "ENVIRONMENT"},
    files{"FILE", "FILES"}, seeAlso{"VEDERE ANCHE", "SEE ALSO"}, optionsWord{"opzioni", "options"},
    commandWord{"comando", "command"}, required{"obbligatorio", "required"},
    without{"senza l'opzione", "without the option"},
    eachHas{"Ogni comando ha una pagina propria e dà il proprio aiuto con",
            "Each command has a page of its own and tells its options with"},
    manual{"Manuale di KORVEN 32", "KORVEN 32 manual"},
    consoleSummary{"dimensiona paratie e diaframmi dalla riga di comando",
                   "designs embedded retaining walls from the command line"},
    desktopSummary{"dimensionamento di paratie e diaframmi", "design of embedded retaining walls"},
    outdocSummary{"scrive una relazione di KORVEN 32 per elaboratori di testi",
                  "writes a report of KORVEN 32 for word processors"},
    desktopText{
        "Apre la finestra del programma, con un progetto se ne è indicato uno. La guida del "
        "programma (F1) spiega ogni finestra.",
        "Opens the window of the program, with a project if one is named. The help of the "
        "program (F1) explains every window."},
    outdocText{
        "Scrive accanto alla relazione (TAB) il documento per elaboratori di testi (DOC). "
        "korven32 e korven32c lo chiamano da sé.",
        "Writes the document for word processors (DOC) beside the report (TAB). korven32 and "
        "korven32c call it by themselves."};

struct Entry {
    std::string_view term;
    Gemelli text;
};

constexpr Entry consoleCodes[] = {
    {"0", {"fatto", "done"}},
    {"1",
     {"il calcolo è rifiutato, fermato o non trova equilibrio; una verifica chiesta non è "
      "soddisfatta",
      "the run is refused, stopped or finds no equilibrium; a check that was asked for is not "
      "met"}},
    {"2", {"uso sbagliato", "wrong usage"}},
    {"3",
     {"un file manca, non si può leggere o scrivere, o il suo contenuto è rotto",
      "a file is missing, can't be read or written, or its content is broken"}},
};
constexpr Entry consoleVariables[] = {
    {"KORVEN32_HOME", {"la cartella del programma", "the program folder"}},
    {"SOURCE_DATE_EPOCH",
     {"la data dei documenti, in secondi dal 1970",
      "the date of documents, in seconds since 1970"}},
    {"LC_ALL, LC_MESSAGES, LANG",
     {"la lingua, finché nessuna è stata scelta", "the language, until one was chosen"}},
};
constexpr Entry programFiles[] = {
    {"~/.local/share/korven32",
     {"quello che il programma ricorda di chi lo usa", "what the program remembers of its user"}},
    {"~/korven32",
     {"i progetti, la prima volta con gli esempi", "the projects, with the examples at first"}},
    {"/usr/share/korven32", {"quello che viene con il programma", "what comes with the program"}},
    {"/usr/share/korven32/data", {"gli esempi, lingua per lingua", "the examples, by language"}},
    {"/usr/share/doc/korven32-data/html/index.html",
     {"i documenti, in inglese, per un browser", "the documents, for a browser"}},
};

// Broken at its blanks into lines that a screen shows whole; no line of it begins as markup does.
std::string broken(const std::string& text) {
    constexpr std::size_t width = 78;
    std::string lines;
    std::size_t used = 0, at = 0;
    while (at < text.size()) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        const std::string word = text.substr(at, end - at);
        if (used > 0 && used + 1 + word.size() > width && !word.starts_with('.')) {
            lines += '\n';
            used = 0;
        } else if (used > 0) {
            lines += ' ';
            ++used;
        }
        lines += word;
        used += word.size();
        at = end + 1;
    }
    return lines;
}

// The page with long lines of text broken; those of markup stay.
std::string brokenLines(const std::string& page) {
    std::string lines;
    for (std::size_t at = 0; at < page.size();) {
        const std::size_t end = std::min(page.find('\n', at), page.size());
        const std::string line = page.substr(at, end - at);
        lines += (line.starts_with('.') ? line : broken(line)) + "\n";
        at = end + 1;
    }
    return lines;
}

std::string shown(const Gemelli& words) { return words.mostrato(); }

std::string section(const Gemelli& title) { return ".SH " + shown(title) + "\n"; }

// Without hyphenation: the name of a page or an option is to be typed as it stands.
std::string header(const std::string& page, const std::string& date) {
    std::string capitals;
    for (const char c : page)
        capitals += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return ".TH \"" + capitals + "\" \"1\" \"" + date + "\" \"" + std::string(base::nomeEVersione) +
           "\" \"" + shown(manual) + "\"\n.nh\n";
}

// A term in bold, the word for its value in italics, and what it means.
std::string item(const std::string& term, const std::string& value, const std::string& text) {
    std::string lines = ".TP\n\\fB" + escaped(term) + "\\fR";
    if (!value.empty()) lines += " \\fI" + escaped(value) + "\\fR";
    return lines + "\n" + escaped(text) + "\n";
}

template <std::size_t n>
std::string list(const Gemelli& title, const Entry (&entries)[n]) {
    std::string lines = section(title);
    for (const auto& [term, text] : entries) lines += item(std::string(term), "", shown(text));
    return lines;
}

std::string questions() {
    std::string lines;
    for (const auto& question : base::domande) {
        std::string names(question.breve);
        for (const auto word : {question.nome.inglese, question.nome.italiano})
            if (word != question.taciuto()) names.append(names.empty() ? "" : ", ").append(word);
        lines += item(names, "", traduttore(question.spiegazione));
    }
    return lines;
}

std::string value(const batch::RigaOpzione& row) {
    return row.valoreMostrato() + (row.ripetibile ? " ..." : "");
}

std::string explanation(const batch::RigaOpzione& row) {
    std::string text = traduttore(row.spiegazione) + row.coda;
    if (!row.predefinito.empty()) text += " (" + shown(without) + ": " + row.predefinito + ")";
    if (row.obbligatoria && !row.perPosto()) text += " (" + shown(required) + ")";
    return text;
}

std::string rows(const batch::RigaComando& command, bool byPlace) {
    std::string lines;
    for (const auto& row : command.opzioni)
        if (row.perPosto() == byPlace)
            lines += item(row.nome.mostrato(), value(row), explanation(row));
    return lines;
}

std::string title(const std::string& page, const std::string& summary, const std::string& date) {
    return header(page, date) + section(name) + escaped(page) + " \\- " + escaped(summary) + "\n" +
           section(synopsis);
}

std::string pageName(const batch::RigaComando& command) {
    return "korven32c-" + command.nome.mostrato();
}

ManualPage commandPage(const batch::RigaComando& command, const std::string& date) {
    const std::string page = pageName(command), byPlace = rows(command, true);
    std::string text = title(page, traduttore(command.spiegazione), date);
    text += "\\fBkorven32c " + escaped(command.nome.mostrato()) + "\\fR [\\fI" +
            shown(optionsWord) + "\\fR]";
    for (const auto& row : command.opzioni)
        if (row.perPosto())
            text +=
                " \\fI" + escaped(row.nome.mostrato() + (row.ripetibile ? " ..." : "")) + "\\fR";
    text += "\n";
    if (!byPlace.empty()) text += section(arguments) + byPlace;
    text += section(options) + questions() + rows(command, false);
    text += list(status, consoleCodes) + section(seeAlso) + ".BR korven32c (1)\n";
    return {page, brokenLines(text)};
}

ManualPage consolePage(const std::vector<batch::RigaComando>& all, const std::string& date) {
    std::string text = title("korven32c", shown(consoleSummary), date);
    text += "\\fBkorven32c\\fR \\fI" + shown(commandWord) + "\\fR [\\fI" + shown(optionsWord) +
            "\\fR] ...\n" + section(description);
    text += escaped(shown(eachHas)) + " \\fB" + escaped(base::domande.front().nome.mostrato()) +
            "\\fR.\n" + section(commands);
    for (const auto& command : all)
        text += item(command.nome.mostrato(), "", traduttore(command.spiegazione));
    text += section(options) + questions();
    text += list(status, consoleCodes) + list(environment, consoleVariables) +
            list(files, programFiles) + section(seeAlso);
    for (const auto& command : all) text += ".BR " + escaped(pageName(command)) + " (1),\n";
    return {"korven32c", brokenLines(text + ".BR korven32 (1)\n")};
}

}  // namespace

std::string escaped(const std::string& text) {
    std::string marked;
    for (const char c : text) {
        if (marked.empty() && (c == '.' || c == '\'')) marked += "\\&";
        if (c == '\\')
            marked += "\\e";
        else if (c == '-')
            marked += "\\-";
        else
            marked += c;
    }
    return marked;
}

std::vector<ManualPage> commandLinePages(const std::vector<batch::RigaComando>& all,
                                         const std::string& date) {
    assert(base::linguaCorrente() == 1 || base::linguaCorrente() == 5);
    std::vector<ManualPage> pages = {consolePage(all, date)};
    for (const auto& command : all) pages.push_back(commandPage(command, date));
    return pages;
}

std::vector<ManualPage> plainProgramPages(const std::string& date) {
    std::string desktop = title("korven32", shown(desktopSummary), date);
    desktop += "\\fBkorven32\\fR [\\fI" + base::argomentoProgetto.mostrato() + "\\fR]\n";
    desktop += section(description) + escaped(shown(desktopText)) + "\n" + section(options) +
               questions() + list(files, programFiles) + section(seeAlso) + ".BR korven32c (1)\n";
    std::string outdoc = title("outdoc", shown(outdocSummary), date);
    outdoc += "\\fB/usr/lib/korven32/outdoc\\fR \\fIFILE.TAB\\fR\n";
    outdoc += section(description) + escaped(shown(outdocText)) + "\n" + section(options) +
              questions() + section(seeAlso) + ".BR korven32c (1)\n";
    return {{"korven32", brokenLines(desktop)}, {"outdoc", brokenLines(outdoc)}};
}

}  // namespace korven::tools
