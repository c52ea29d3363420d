#pragma once

#include <string>
#include <string_view>

namespace korven::test {

/// Pages of a PDF file: objects of that type, which "/Pages", their list, is not.
inline int paginePdf(const std::string& pdf) {
    constexpr std::string_view tipo = "/Type /Page";
    int trovate = 0;
    for (auto i = pdf.find(tipo); i != std::string::npos; i = pdf.find(tipo, i + 1))
        if (pdf.compare(i + tipo.size(), 1, "s") != 0) ++trovate;
    return trovate;
}

}  // namespace korven::test
