#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/dialogo.hpp"
#include "base/disk.hpp"
#include "base/process/avvia_programma.hpp"

// The report leaves the program as plain text or as a word-processor file, and a viewer shows it.

namespace korven::commands {

// What the dialog for another name is opened with.
inline constexpr std::string_view filtroTxt = "NotePad|*.txt";
inline constexpr std::string_view estensioneTxt = "txt";

/// Asks for a file name in a dialog to open files, without the box for read-only files.
/// @param proposto  the name that its field shows
/// @return what was chosen or typed; empty when it was given up
using ChiediNome = std::function<std::string(const std::string& proposto)>;

/// Path of the converter outdoc: the one that lies beside this program. The program folder may be
/// anybody's; it is asked for files, never for a program to run.
[[nodiscard]] std::string convertitore();

/// What an export needs of the outside.
struct PorteEsportazione {
    base::Dialogo& dialogo;
    base::AvviaProgramma& programmi;
    ChiediNome chiediNome;
    std::string outdoc = convertitore();
    const base::Disco& disco = base::discoDiSistema();  ///< takes the plain text
};

/// The target that an answer of the dialog means: an extension of at most three characters gives
/// way to ".txt", a longer one keeps its place before it. Nothing for an empty answer and for "*":
/// the export then ends.
[[nodiscard]] std::optional<std::string> nomeTxtScelto(std::string_view risposta);

/// The programs that editor.cfg in the program folder names, for DOC in its first line and TXT in
/// its second. Empty where the file or the line is missing or names no file.
struct Visualizzatori {
    std::string doc;
    std::string txt;
};
[[nodiscard]] Visualizzatori leggiVisualizzatori();

/// Writes a mark-up file as plain text and shows it. An existing text is replaced after a question;
/// on No the dialog asks for another name, which is taken without a further question. It is shown
/// by notepad.exe of the folder that the environment variable windir names; where that is absent by
/// the program of editor.cfg, and then by the one that the desktop has for texts. A box tells when
/// none of them ran, when the file can't be written and when the mark-up opens no document.
///
/// Does nothing if there is no such file.
/// @throws base::ErroreFile if the mark-up is broken
void esportaTxt(const std::string& percorso, const PorteEsportazione& porte);

/// Turns a mark-up file into a word-processor file beside it, by the program outdoc, and shows it
/// with the program of editor.cfg. A file of that name is replaced without a question. A box tells
/// when no viewer ran, and when outdoc failed; a file from earlier is then shown all the same.
///
/// Does nothing if there is no such file.
void esportaDoc(const std::string& percorso, const PorteEsportazione& porte);

/// Runs outdoc.
/// @param outdoc  its path
/// @return the path of the word-processor file
/// @throws base::ErroreFile if outdoc can't be started, fails or leaves no file, or if the file
/// would take the place of the project or of the mark-up
std::string scriviDocumento(const std::string& relazione, base::AvviaProgramma& programmi,
                            const std::string& outdoc = convertitore());

}  // namespace korven::commands
