#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace korven::tools {

/// One record of data/texts.txt: a text in the six languages, in the order of the language codes.
struct TextRecord {
    std::string file;                 ///< name of the text file that it goes into
    std::array<std::string, 6> text;  ///< Italian (the key), de, fr, es, en, pt; UTF-8
    long line = 0;                    ///< line of the Italian text in the source, from 1
};

/// Reads the source: blocks of six lines "it: ...", "de: ...", "fr: ...", "es: ...", "en: ...",
/// "pt: ..." in this order, parted by empty lines; "# ..." is a comment; "@file NAME" names the
/// file of the records that follow.
///
/// @param path  name of the source in errors
/// @throws base::ErroreFile with the line: a line of another form, an incomplete or empty record, a
/// record before the first "@file"
[[nodiscard]] std::vector<TextRecord> readTextSource(const std::string& path,
                                                     std::string_view content);

/// Refuses what a translator can get wrong: a key that occurs twice (whatever its case), a
/// character that Windows-1252 lacks, outer blanks, an access key ("&") that only some of the
/// languages have, units in brackets that differ, more records than the program takes.
///
/// @throws base::ErroreFile with the line of the record's key
void checkTextRecords(const std::string& path, const std::vector<TextRecord>& records);

/// The bytes of one text file: seven lines a record, the last of them empty, Windows-1252
/// with CR LF.
[[nodiscard]] std::string textFileBytes(const std::vector<TextRecord>& records,
                                        std::string_view file);

/// The names of the files that the records go into, each once.
[[nodiscard]] std::vector<std::string> textFileNames(const std::vector<TextRecord>& records);

}  // namespace korven::tools
