#include "tables/table_text.hpp"

#include <algorithm>
#include <numeric>
#include <vector>

#include "base/number_text.hpp"

namespace korven::tables {

namespace {

// Tabs and line ends part cells and rows.
std::string inUnaRiga(std::string testo) {
    std::replace_if(
        testo.begin(), testo.end(), [](char c) { return c == '\t' || c == '\n'; }, ' ');
    return testo;
}

std::string protetto(const std::string& testo) {
    std::string html;
    for (const char c : testo) switch (c) {
            case '&':
                html += "&amp;";
                break;
            case '<':
                html += "&lt;";
                break;
            case '>':
                html += "&gt;";
                break;
            default:
                html += c;
        }
    return html;
}

std::string copiato(const Cella& cella) {
    return cella.numero ? base::tutteLeCifre(*cella.numero) : inUnaRiga(cella.testo);
}

std::string cellaHtml(const Cella& cella) {
    if (!cella.numero) return "<td>" + protetto(cella.testo) + "</td>";
    const std::string cifre = base::tutteLeCifre(*cella.numero);
    return "<td align=\"right\" sdval=\"" + cifre + "\" sdnum=\"1033;\" x:num=\"" + cifre + "\">" +
           cifre + "</td>";
}

std::vector<std::size_t> tutti(std::size_t quanti) {
    std::vector<std::size_t> posti(quanti);
    std::iota(posti.begin(), posti.end(), std::size_t{0});
    return posti;
}

}  // namespace

std::string testoTabulato(const Prospetto& prospetto, const Parte& parte) {
    std::string testo;
    const auto riga = [&](const auto& cella) {
        const char* segno = "";
        for (const std::size_t c : parte.colonne) {
            testo += segno + cella(c);
            segno = "\t";
        }
        testo += '\n';
    };
    riga([&](std::size_t c) { return inUnaRiga(prospetto.colonne[c].testa()); });
    for (const std::size_t r : parte.righe)
        riga([&](std::size_t c) { return copiato(prospetto.righe[r][c]); });
    return testo;
}

std::string testoTabulato(const Prospetto& prospetto) {
    const auto righe = tutti(prospetto.righe.size()), colonne = tutti(prospetto.colonne.size());
    return testoTabulato(prospetto, {righe, colonne});
}

std::string testoHtml(const Prospetto& prospetto, const Parte& parte) {
    std::string html =
        "<html xmlns:x=\"urn:schemas-microsoft-com:office:excel\"><head><meta charset=\"utf-8\">"
        "</head><body><table><tr>";
    for (const std::size_t c : parte.colonne)
        html += "<th>" + protetto(prospetto.colonne[c].testa()) + "</th>";
    html += "</tr>";
    for (const std::size_t r : parte.righe) {
        html += "<tr>";
        for (const std::size_t c : parte.colonne) html += cellaHtml(prospetto.righe[r][c]);
        html += "</tr>";
    }
    return html + "</table></body></html>";
}

}  // namespace korven::tables
