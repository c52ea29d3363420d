#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/process/avvia_programma.hpp"

namespace korven::test {

/// Starts nothing, keeps what was to be started and answers as told.
class StartedPrograms : public base::AvviaProgramma {
 public:
    bool avvia(const std::string& programma, const std::vector<std::string>& argomenti,
               base::Finestra finestra) override {
        constexpr const char* finestre[] = {"normale", "massima", "minima"};
        chiamate.push_back(std::string("avvia ") + finestre[static_cast<int>(finestra)] +
                           riga(programma, argomenti));
        return parte;
    }
    std::optional<int> esegui(const std::string& programma,
                              const std::vector<std::string>& argomenti) override {
        chiamate.push_back("esegui" + riga(programma, argomenti));
        if (alPosto) alPosto();
        return codice;
    }
    bool apri(const std::string& file) override {
        chiamate.push_back("apri " + file);
        return predefinito;
    }

    bool parte = true;
    bool predefinito = true;
    std::optional<int> codice = 0;
    std::function<void()> alPosto;  ///< what a program that is waited for does
    std::vector<std::string> chiamate;

 private:
    static std::string riga(const std::string& programma,
                            const std::vector<std::string>& argomenti) {
        std::string parole = " " + programma;
        for (const auto& argomento : argomenti) parole += " [" + argomento + "]";
        return parole;
    }
};

}  // namespace korven::test
