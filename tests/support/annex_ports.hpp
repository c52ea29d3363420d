#pragma once

#include <memory>
#include <string>
#include <vector>

#include "shell/annex/annex_window.hpp"
#include "support/sample_document.hpp"

namespace korven::test {

/// Names the files that a test says, one after the other, and keeps what it was asked.
class SalvataggioDiProva : public shell::PorteGrafica {
 public:
    std::optional<std::string> fileDaSalvare(const shell::FileDaSalvare& richiesta) override {
        chiesta = richiesta;
        if (nomi.empty()) return {};
        const std::string nome = nomi.front();
        nomi.erase(nomi.begin());
        return nome;
    }
    [[nodiscard]] const base::Disco& disco() const override { return base::discoDiSistema(); }
    void scritto(const std::string& percorso) override { scritti.push_back(percorso); }
    plot::Foglio foglioStampante() override { return {}; }
    std::unique_ptr<plot::Stampante> stampante(const std::string&) override { return nullptr; }

    shell::FileDaSalvare chiesta;
    std::vector<std::string> nomi, scritti;
};

/// The annex that is there at once: nothing is computed for it.
inline shell::CalcoloAllegato giaFatto(const document::Documento& documento) {
    return [documento](const std::atomic<bool>&) -> shell::ComposizioneAllegato {
        return [documento] { return documento; };
    };
}

/// What a window of the annex needs, with a document that is always the same; nothing is printed.
inline shell::PorteAllegato porteAllegato(base::Dialogo& dialogo) {
    return {dialogo, [](const auto&) { return giaFatto(documentoCompleto()); },
            [] { return factors::Catalogo(); }, std::make_shared<SalvataggioDiProva>(),
            [](const document::Documento&) {}};
}

}  // namespace korven::test
