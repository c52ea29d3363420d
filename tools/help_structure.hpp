#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/text_source.hpp"

namespace korven::tools {

/// A field that a page of the help tells of.
struct HelpField {
    std::string name;   ///< its number in the mask, or the name of its control
    std::string label;  ///< what it is called: keys of data/texts.txt, or their translation
    long line = 0;      ///< its line in the source, from 1
};

/// A message of the program that a page lists.
struct HelpMessage {
    std::string name;        ///< by which the page explains it; empty: it says itself what to do
    std::string text;        ///< its key of data/texts.txt, or its translation as it is shown
    long line = 0;           ///< its line in the source, from 1
    std::string after = {};  ///< what the program puts after the text, "?" or "…"
};

/// Messages of one subject, which stand together on a page.
struct HelpMessageGroup {
    std::string name;
    std::vector<HelpMessage> messages;
    long line = 0;  ///< its line in the source, from 1
};

/// What a page of the help has in every language.
struct HelpFrame {
    std::string chapter;  ///< name of the chapter, by which the languages give its title
    std::string name;     ///< by which links name the page
    int entry = 0;        ///< of the table of help contexts; 0: none
    std::vector<HelpField> fields;
    std::vector<HelpMessageGroup> groups = {};  ///< of messages
};

/// The pages in the order in which they are read.
using HelpStructure = std::vector<HelpFrame>;

/// Reads data/guida/struttura.txt, whose head explains the form. Groups of messages have their
/// names alone (help_messages.hpp fills them).
///
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line: a line of another form or out of order, a chapter, page,
/// entry, field or group used twice, no page at all
[[nodiscard]] HelpStructure readHelpStructure(const std::string& path, std::string_view content);

/// The structure with its labels as the forms show them in a language. A label is one key or
/// several parted by ", "; a unit in brackets that is no part of the key stays. Access keys and a
/// colon at the end go; the first letter is a capital where the structure has one ("ks" has none).
///
/// @param path  name of the structure's source in errors
/// @param language  code of the language, 1 to 6
/// @throws base::ErroreFile with the line of a field of which no text is known
[[nodiscard]] HelpStructure withLabels(const std::string& path, HelpStructure structure,
                                       const std::vector<TextRecord>& records, int language);

}  // namespace korven::tools
