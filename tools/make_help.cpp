// make_help STRUCTURE MESSAGES TEXTS LANGUAGE SOURCE FILE: turns the readable help of one language,
// "ita" for example, into the help file of the program. TEXTS has the labels of the forms and the
// messages that MESSAGES names.

#include <iostream>

#include "base/file_error.hpp"
#include "base/files.hpp"
#include "base/language.hpp"
#include "tools/help_messages.hpp"
#include "tools/help_source.hpp"

int main(int argc, char** argv) {
    using namespace korven;
    const int language = argc == 7 ? base::codiceLingua(argv[4]) : 0;
    if (language == 0) {
        std::cerr << "usage: make_help STRUCTURE MESSAGES TEXTS LANGUAGE SOURCE FILE\n";
        return 2;
    }
    const std::string frame = argv[1], messages = argv[2], texts = argv[3], source = argv[5];
    try {
        const auto records = tools::readTextSource(texts, base::leggiFile(texts));
        const auto structure = tools::withMessages(
            messages,
            tools::withLabels(frame, tools::readHelpStructure(frame, base::leggiFile(frame)),
                              records, language),
            tools::readHelpMessages(messages, base::leggiFile(messages)), records, language);
        base::scriviFile(argv[6], tools::helpFileBytes(tools::readHelpSource(
                                      source, base::leggiFile(source), structure)));
    } catch (const base::ErroreFile& error) {
        std::cerr << error.what() << '\n';
        return 3;
    }
    return 0;
}
