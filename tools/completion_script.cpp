#include "tools/completion_script.hpp"

#include <algorithm>
#include <set>
#include <string_view>

#include "base/process/program_questions.hpp"

namespace korven::tools {

namespace {

using base::Gemelli;
using batch::RigaComando;
using batch::RigaOpzione;

// How the value of an option is completed; the script has a case for each word.
struct Kind {
    std::string_view option, kind;
};

// Options whose value is a file of one kind: by the name in Italian.
constexpr Kind kinds[] = {
    {"--pdf", "file:pdf"},   {"--svg", "file:svg"},    {"--png", "file:png"},
    {"--dxf", "file:dxf"},   {"--doc", "file:doc"},    {"--txt", "file:txt"},
    {"--csv", "file:csv"},   {"--xlsx", "file:xlsx"},  {"--piano", "file:csv"},
    {"--stampa", "printer"}, {"--griglia", "field:="}, {"--legge", "field:="},
    {"--rho", "field:,"},    {"--norma", "code"},
};

std::string joined(const std::set<std::string>& words) {
    std::string all;
    for (const auto& word : words) all += (all.empty() ? "" : " ") + word;
    return all;
}

std::string kind(const RigaOpzione& row) {
    if (row.valore.inglese == "DIR") return "folder";
    const auto* known = std::find_if(std::begin(kinds), std::end(kinds),
                                     [&](const Kind& k) { return k.option == row.nome.italiano; });
    if (known != std::end(kinds)) return std::string(known->kind);
    return row.valore.inglese == "FILE" || row.valore.inglese == "FILE.kvd" ? "file" : "none";
}

bool takesValue(const RigaOpzione& row) {
    return !std::holds_alternative<batch::Segna>(row.azione);
}

// The values of an option in both languages, parted by a bar; empty without a list of them.
std::string values(const RigaOpzione& row) {
    if (row.valori.empty()) return {};
    std::set<std::string> italian, english;
    for (const auto& value : row.valori) {
        italian.emplace(value.italiano);
        english.emplace(value.inglese);
    }
    return "words:" + joined(italian) + "|" + joined(english);
}

std::string pattern(const Gemelli& names) {
    std::string both(names.italiano);
    if (names.inglese != names.italiano) both.append("|").append(names.inglese);
    return both;
}

std::string line(const std::string& cases, const std::string& answer) {
    return "        " + cases + ") echo '" + answer + "' ;;\n";
}

// What a command takes by its place, after its name.
std::string byPlace(const RigaComando& command) {
    if (command.nome.italiano == "imposta") return "set";
    for (const auto& row : command.opzioni)
        if (row.perPosto()) return "file:kvd";
    return "none";
}

std::string optionNames(const RigaComando& command, bool italian) {
    std::set<std::string> names;
    for (const auto& question : base::domande)
        names.emplace(italian ? question.nome.italiano : question.nome.inglese);
    for (const auto& row : command.opzioni)
        if (!row.perPosto()) names.emplace(italian ? row.nome.italiano : row.nome.inglese);
    return joined(names);
}

// One case for each command, or each option of each: the values of "--diagram" may differ by
// command.
std::string tables(const std::vector<RigaComando>& commands) {
    std::set<std::string> italian, english;
    std::string options, places, valueKinds;
    for (const auto& command : commands) {
        italian.emplace(command.nome.italiano);
        english.emplace(command.nome.inglese);
        const std::string name = pattern(command.nome);
        options += line(name, optionNames(command, true) + "|" + optionNames(command, false));
        places += line(name, byPlace(command));
        for (const auto& row : command.opzioni) {
            if (row.perPosto() || !takesValue(row)) continue;
            std::string cases;
            for (const auto& of : {command.nome.italiano, command.nome.inglese})
                for (const auto& option : {row.nome.italiano, row.nome.inglese}) {
                    const std::string one = std::string(of) + "\\ " + std::string(option);
                    if (("|" + cases + "|").find("|" + one + "|") == std::string::npos)
                        cases += (cases.empty() ? "" : "|") + one;
                }
            const std::string list = values(row);
            valueKinds += line(cases, list.empty() ? kind(row) : list);
        }
    }
    return "_korven32c_commands='" + joined(italian) + "|" + joined(english) + "'\n\n" +
           "_korven32c_options() {\n    case $1 in\n" + options + "    esac\n}\n\n" +
           "_korven32c_place() {\n    case $1 in\n" + places + "    esac\n}\n\n" +
           "_korven32c_value() {\n    case $1 in\n" + valueKinds + "    esac\n}\n";
}

}  // namespace

std::string completionScript(const std::vector<RigaComando>& commands,
                             const std::string& functions) {
    return "# bash completion for korven32c                                       -*- shell-script "
           "-*-\n"
           "# Made from the table of its commands and options.\n\n" +
           tables(commands) + functions;
}

}  // namespace korven::tools
