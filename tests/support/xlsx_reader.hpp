#pragma once

#include <cstdlib>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "support/unpacked.hpp"

namespace korven::test {

/// A cell as it stands in a workbook; nothing else is in the map of its sheet.
struct CellaLetta {
    bool numero = false;
    std::string testo;  ///< of a number its digits
};

struct FoglioLetto {
    std::string nome, xml;
    std::map<std::pair<int, int>, CellaLetta> celle;  ///< by row and column, from 0

    /// Empty for one that is not there.
    [[nodiscard]] CellaLetta a(std::size_t riga, std::size_t colonna) const {
        const auto posto = celle.find({static_cast<int>(riga), static_cast<int>(colonna)});
        return posto == celle.end() ? CellaLetta{} : posto->second;
    }
};

inline std::string senzaEntita(std::string testo) {
    const std::pair<const char*, const char*> tutte[] = {
        {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}};
    for (const auto& [entita, carattere] : tutte)
        for (auto qui = testo.find(entita); qui != std::string::npos; qui = testo.find(entita, qui))
            testo.replace(qui++, std::string(entita).size(), carattere);
    return testo;
}

/// What stands between `prima` and `dopo`, each time.
inline std::vector<std::string> brani(const std::string& xml, const std::string& prima,
                                      const std::string& dopo) {
    std::vector<std::string> tutti;
    for (auto qui = xml.find(prima); qui != std::string::npos; qui = xml.find(prima, qui)) {
        qui += prima.size();
        const auto fine = xml.find(dopo, qui);
        tutti.push_back(xml.substr(qui, fine - qui));
    }
    return tutti;
}

/// "AB12" is row 11, column 27.
inline std::pair<int, int> postoCella(const std::string& nome) {
    int colonna = 0;
    std::size_t i = 0;
    for (; i < nome.size() && nome[i] >= 'A' && nome[i] <= 'Z'; ++i)
        colonna = colonna * 26 + nome[i] - 'A' + 1;
    return {std::atoi(nome.c_str() + i) - 1, colonna - 1};
}

/// All sheets of a workbook in their order.
inline std::vector<FoglioLetto> leggiXlsx(const std::string& byte) {
    std::vector<std::string> testi;
    for (const std::string& voce : brani(unpacked(byte, "xl/sharedStrings.xml"), "<si>", "</si>")) {
        const auto inizio = voce.find('>') + 1;  // of <t> or <t xml:space="preserve">
        testi.push_back(senzaEntita(voce.substr(inizio, voce.rfind("</t>") - inizio)));
    }
    std::vector<FoglioLetto> fogli;
    for (const std::string& nome :
         brani(unpacked(byte, "xl/workbook.xml"), "<sheet name=\"", "\"")) {
        FoglioLetto foglio{.nome = senzaEntita(nome), .xml = {}, .celle = {}};
        foglio.xml =
            unpacked(byte, "xl/worksheets/sheet" + std::to_string(fogli.size() + 1) + ".xml");
        for (const std::string& c : brani(foglio.xml, "<c r=\"", "</c>")) {
            const auto valore = brani(c, "<v>", "</v>");
            if (valore.empty()) continue;
            const bool parola = c.find(" t=\"s\"") < c.find("<v>");
            foglio.celle[postoCella(c)] = {!parola,
                                           parola ? testi.at(std::stoul(valore[0])) : valore[0]};
        }
        fogli.push_back(std::move(foglio));
    }
    return fogli;
}

}  // namespace korven::test
