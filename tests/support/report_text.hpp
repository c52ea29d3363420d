#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "base/translated_texts.hpp"
#include "report/lines.hpp"

namespace korven::test {

/// The lines that a section of the report writes, without their ends.
inline std::vector<std::string> righe(const auto& sezione) {
    report::RigheRelazione scritte;
    sezione(scritte);
    std::vector<std::string> elenco;
    std::string_view resto = scritte.testo();
    for (std::size_t fine = resto.find("\r\n"); fine != std::string_view::npos;
         fine = resto.find("\r\n")) {
        elenco.emplace_back(resto.substr(0, fine));
        resto.remove_prefix(fine + 2);
    }
    return elenco;
}

inline bool contiene(const std::vector<std::string>& righe, std::string_view riga) {
    return std::find(righe.begin(), righe.end(), riga) != righe.end();
}

/// The lines in one text, each followed by "|".
inline std::string unite(const std::vector<std::string>& righe) {
    std::string testo;
    for (const auto& riga : righe) testo += riga + '|';
    return testo;
}

/// One text of the program and its German translation, German being the language as long
/// as this lives.
class UnTesto {
 public:
    UnTesto(std::string_view italiano, std::string_view tedesco) {
        base::tabellaTesti.nTesti = 0;
        auto& record = base::tabellaTesti.nuovaRiga();
        record.testo[1] = italiano;
        record.testo[2] = tedesco;
        base::ordinaTesti(base::tabellaTesti);
        base::impostaLingua(2);
    }
    UnTesto(const UnTesto&) = delete;
    UnTesto& operator=(const UnTesto&) = delete;
    ~UnTesto() {
        base::tabellaTesti.nTesti = 0;
        base::impostaLingua(1);
    }
};

}  // namespace korven::test
