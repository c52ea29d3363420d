#pragma once

#include <stdlib.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace korven::test {

/// A folder of its own for one test, removed at its end. Its name holds no point, so that the rules
/// that cut a path at its first point do not reach beyond it.
class CartellaProvvisoria {
 public:
    CartellaProvvisoria() {
        std::string modello = (std::filesystem::temp_directory_path() / "korvenXXXXXX").string();
        percorso_ = ::mkdtemp(modello.data());
    }
    CartellaProvvisoria(const CartellaProvvisoria&) = delete;
    CartellaProvvisoria& operator=(const CartellaProvvisoria&) = delete;
    ~CartellaProvvisoria() {
        std::error_code errore;
        std::filesystem::remove_all(percorso_, errore);
    }

    [[nodiscard]] std::string operator/(std::string_view nome) const {
        return (percorso_ / nome).string();
    }
    [[nodiscard]] std::string percorso() const { return percorso_.string(); }

 private:
    std::filesystem::path percorso_;
};

inline std::string contenuto(const std::string& percorso) {
    std::ifstream file(percorso, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void metti(const std::string& percorso, std::string_view testo) {
    std::ofstream(percorso, std::ios::binary) << testo;
}

/// How many files and folders lie in a folder.
inline std::size_t voci(const CartellaProvvisoria& cartella) {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(cartella.percorso()), {}));
}

}  // namespace korven::test
