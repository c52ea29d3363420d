#pragma once

#include <string>
#include <string_view>

#include "support/environment_variable.hpp"
#include "support/temporary_folder.hpp"

namespace korven::test {

/// A folder of the user's data for one test, in place of the real one.
class CartellaUtente {
 public:
    /// A file of the program in it.
    [[nodiscard]] std::string operator/(std::string_view nome) const {
        return dati_ / ("korven32/" + std::string(nome));
    }
    [[nodiscard]] std::string percorso() const { return dati_ / "korven32"; }

 private:
    CartellaProvvisoria dati_;
    VariabileAmbiente variabile_{"XDG_DATA_HOME", dati_.percorso()};
};

}  // namespace korven::test
