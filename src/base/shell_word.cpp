#include "base/shell_word.hpp"

#include <algorithm>

namespace korven::base {

std::string perLaShell(std::string_view testo) {
    const auto piano = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::string_view("/._-+,:=@%").find(c) != std::string_view::npos;
    };
    if (!testo.empty() && std::all_of(testo.begin(), testo.end(), piano)) return std::string(testo);
    std::string fra = "'";
    for (const char c : testo) fra += c == '\'' ? "'\\''" : std::string(1, c);
    return fra + "'";
}

}  // namespace korven::base
