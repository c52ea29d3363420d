#include "base/similar_name.hpp"

#include <algorithm>
#include <numeric>
#include <vector>

#include "base/code_page.hpp"

namespace korven::base {

namespace {

std::size_t distanza(std::string_view a, std::string_view b) {
    std::vector<std::size_t> sopra(b.size() + 1), riga(b.size() + 1);
    std::iota(sopra.begin(), sopra.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        riga[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j)
            riga[j + 1] =
                std::min({sopra[j] + (a[i] == b[j] ? 0 : 1), sopra[j + 1] + 1, riga[j] + 1});
        std::swap(sopra, riga);
    }
    return sopra.back();
}

// The only name that is as near as the nearest.
class Cercato {
 public:
    void prova(const std::string& nome, std::size_t lontano) {
        if (lontano > limite_) return;
        unico_ = lontano < limite_ || trovato_ == nullptr;
        limite_ = lontano;
        trovato_ = &nome;
    }
    explicit Cercato(std::size_t limite) : limite_(limite) {}
    /// False for lengths that alone put two names too far apart: what is no name at all, a line of
    /// a file of another kind, costs nothing then.
    [[nodiscard]] bool possibile(std::size_t una, std::size_t altra) const {
        return std::max(una, altra) - std::min(una, altra) <= limite_;
    }
    [[nodiscard]] std::optional<std::string> esito() const {
        return trovato_ != nullptr && unico_ ? std::optional(*trovato_) : std::nullopt;
    }

 private:
    std::size_t limite_;
    const std::string* trovato_ = nullptr;
    bool unico_ = false;
};

}  // namespace

std::optional<std::string> nomeVicino(std::string_view nome, std::span<const std::string> nomi) {
    constexpr std::size_t perLettera = 4, massimo = 3;
    const std::string piccolo = minuscolo(nome);
    if (piccolo.size() < perLettera) return {};
    Cercato inizio(0), vicino(std::min(piccolo.size() / perLettera, massimo));
    for (const std::string& uno : nomi) {
        const std::string suo = minuscolo(uno);
        if (suo.starts_with(piccolo)) inizio.prova(uno, 0);
        if (vicino.possibile(piccolo.size(), suo.size())) vicino.prova(uno, distanza(piccolo, suo));
    }
    const auto trovato = vicino.esito();
    return trovato ? trovato : inizio.esito();
}

}  // namespace korven::base
