#include "base/process/restart.hpp"

#include <unistd.h>

#include <cassert>

namespace korven::base {

void ricomincia(const std::vector<std::string>& argomenti) {
    assert(!argomenti.empty());
    std::vector<std::string> copie = argomenti;  // execv wants texts that it could change
    std::vector<char*> puntatori;
    for (auto& copia : copie) puntatori.push_back(copia.data());
    puntatori.push_back(nullptr);
    ::execv("/proc/self/exe", puntatori.data());
}

}  // namespace korven::base
