#pragma once

#include <stdlib.h>

#include <optional>
#include <string>

namespace korven::test {

/// Gives a variable of the environment another value for the time of a test.
class VariabileAmbiente {
 public:
    VariabileAmbiente(std::string nome, const std::string& valore) : nome_(std::move(nome)) {
        if (const char* prima = ::getenv(nome_.c_str()); prima != nullptr) prima_ = prima;
        ::setenv(nome_.c_str(), valore.c_str(), 1);
    }
    VariabileAmbiente(const VariabileAmbiente&) = delete;
    VariabileAmbiente& operator=(const VariabileAmbiente&) = delete;
    ~VariabileAmbiente() {
        if (prima_)
            ::setenv(nome_.c_str(), prima_->c_str(), 1);
        else
            ::unsetenv(nome_.c_str());
    }

 private:
    std::string nome_;
    std::optional<std::string> prima_;
};

}  // namespace korven::test
