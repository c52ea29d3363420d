#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace korven::help {

/// A page of the help.
struct PaginaGuida {
    int voce = 0;              ///< its entry of the table of help contexts; 0: none
    std::string nome;          ///< by which links name it
    std::string titolo;        ///< plain text
    std::string parole;        ///< further words under which a search finds it, parted by commas
    std::string html;          ///< all below the title, in the tags of QTextBrowser
    std::size_t capitolo = 0;  ///< index of its chapter
};

/// The help of one language: chapters, and their pages in the order in which they are read.
struct Guida {
    std::vector<std::string> capitoli;
    std::vector<PaginaGuida> pagine;
};

/// First line of every help file.
inline constexpr std::string_view primaRigaGuida = "KORVEN 32 HLP 1";

/// Reads a help file (docs/help.md tells its form): structure alone, the tags are taken unread.
/// @throws base::ErroreFile with file, line and what was expected: a file missing or cut short, a
///         page outside a chapter or without title or body, an entry or a name used twice
[[nodiscard]] Guida leggiGuida(const std::string& percorso);

/// The same for bytes already read. @param percorso  name of the file in errors
[[nodiscard]] Guida leggiGuida(const std::string& percorso, std::string contenuto);

/// The page of a help context number (contexts.hpp); nullptr if there is none.
[[nodiscard]] const PaginaGuida* paginaDelContesto(const Guida& guida, int contesto);

/// The page of a name; nullptr if there is none.
[[nodiscard]] const PaginaGuida* paginaDiNome(const Guida& guida, std::string_view nome);

/// True if the page has that place to jump to.
[[nodiscard]] bool haAncora(const PaginaGuida& pagina, std::string_view ancora);

}  // namespace korven::help
