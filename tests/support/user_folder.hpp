#pragma once

#include <cstdlib>
#include <optional>
#include <string>

#include "support/temporary_folder.hpp"

namespace korven::test {

/// A folder of the user's data for one test, in place of the real one.
class CartellaUtente {
 public:
    CartellaUtente() {
        if (const char* prima = std::getenv("XDG_DATA_HOME")) prima_ = prima;
        ::setenv("XDG_DATA_HOME", dati_.percorso().c_str(), 1);
    }
    CartellaUtente(const CartellaUtente&) = delete;
    CartellaUtente& operator=(const CartellaUtente&) = delete;
    ~CartellaUtente() {
        if (prima_)
            ::setenv("XDG_DATA_HOME", prima_->c_str(), 1);
        else
            ::unsetenv("XDG_DATA_HOME");
    }

    /// A file of the program in it.
    [[nodiscard]] std::string operator/(std::string_view nome) const {
        return dati_ / ("korven32/" + std::string(nome));
    }
    [[nodiscard]] std::string percorso() const { return dati_ / "korven32"; }

 private:
    CartellaProvvisoria dati_;
    std::optional<std::string> prima_;
};

}  // namespace korven::test
