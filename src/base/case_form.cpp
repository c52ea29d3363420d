#include "base/case_form.hpp"

#include "base/code_page.hpp"

namespace korven::base {

namespace {

struct Divisa {
    std::string_view prima, resto;
};

Divisa dividi(std::string_view s) {
    const std::size_t n = s.empty() ? 0 : lunghezzaPrimoCarattere(s);
    return {s.substr(0, n), s.substr(n)};
}

bool tuttoMinuscolo(std::string_view s) { return minuscolo(s) == s; }

}  // namespace

std::string conFormaDi(std::string_view modello, std::string_view testo) {
    const Divisa m = dividi(modello);
    if (!tuttoMinuscolo(m.resto)) return maiuscolo(testo);
    if (tuttoMinuscolo(m.prima)) return minuscolo(testo);
    const Divisa t = dividi(testo);
    return maiuscolo(t.prima) + minuscolo(t.resto);
}

}  // namespace korven::base
