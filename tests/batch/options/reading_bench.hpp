#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"
#include "batch/batch_bench.hpp"
#include "batch/command_table.hpp"
#include "batch/options/command_line.hpp"
#include "batch/options/language_in_use.hpp"

namespace korven::test {

/// What the reading of a command line gave and wrote.
struct Lettura {
    batch::EsitoLettura esito;
    std::string uscita, errori;
};

/// Reads "korven32c ARGOMENTI" without starting the program.
inline Lettura leggi(std::vector<std::string> argomenti) {
    argomenti.insert(argomenti.begin(), "korven32c");
    std::vector<const char*> puntatori;
    for (const auto& argomento : argomenti) puntatori.push_back(argomento.c_str());
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    Lettura lettura;
    lettura.esito =
        batch::leggiOpzioni(static_cast<int>(puntatori.size()), puntatori.data(), batch::comandi());
    lettura.uscita = ::testing::internal::GetCapturedStdout();
    lettura.errori = ::testing::internal::GetCapturedStderr();
    return lettura;
}

/// Speaks a language with the texts beside the program, and Italian again afterwards.
class InLingua {
 public:
    explicit InLingua(const std::string& sigla) {
        base::impostaCartellaProgramma(
            std::filesystem::path(KORVEN_CONSOLE).parent_path().string());
        batch::scegliLingua(sigla);
    }
    InLingua(const InLingua&) = delete;
    InLingua& operator=(const InLingua&) = delete;
    ~InLingua() {
        base::impostaLingua(1);
        base::impostaCartellaProgramma("");
    }
};

}  // namespace korven::test
