#pragma once

#include <string>

namespace korven::test {

/// The bytes of a help file of four pages: the first without an entry, then those of the entries 3,
/// 5 and 28.
inline std::string guidaPiccola() {
    std::string lunga;
    for (int i = 0; i < 120; ++i) lunga += "<p>riga</p>\r\n";
    return "KORVEN 32 HLP 1\r\n"
           "@capitolo Primo\r\n"
           "@pagina 0 inizio\r\nInizio\r\nindice\r\n"
           "<p>Vai a <a href=\"strati#campo4\">Gamma</a></p>\r\n"
           "@pagina 3 apri\r\nApri\r\naprire\r\n<p>Un progetto: <a "
           "href=\"documento:docs/theory\">teoria</a></p>\r\n"
           "@capitolo Secondo\r\n"
           "@pagina 5 strati\r\nStrati\r\nterreno\r\n" +
           lunga + "<h3><a name=\"campo4\"></a>Gamma</h3>\r\n<p>Densit\xE0.</p>\r\n" + lunga +
           "@pagina 28 visore\r\nVisore\r\nzoom\r\n"
           "<h3><a name=\"campoText1\"></a>Spessore</h3>\r\n<p>Delle linee.</p>\r\n";
}

}  // namespace korven::test
