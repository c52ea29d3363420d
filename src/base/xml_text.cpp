#include "base/xml_text.hpp"

namespace korven::base {

std::string inXml(std::string_view testo) {
    std::string scritto;
    for (const char c : testo) {
        if (c == '&')
            scritto += "&amp;";
        else if (c == '<')
            scritto += "&lt;";
        else if (c == '>')
            scritto += "&gt;";
        else if (c == '"')
            scritto += "&quot;";
        else if ((c >= '\0' && c < ' ') || c == '\x7F')
            scritto += "\xEF\xBF\xBD";
        else
            scritto += c;
    }
    return scritto;
}

std::string attributoXml(std::string_view nome, std::string_view valore) {
    return std::string(" ").append(nome).append("=\"").append(valore).append("\"");
}

}  // namespace korven::base
