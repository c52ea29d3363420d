#include "report/footer.hpp"

#include <cmath>
#include <initializer_list>
#include <vector>

#include "base/code_page.hpp"
#include "base/translated_texts.hpp"
#include "base/version.hpp"
#include "markup/estimated_width.hpp"
#include "markup/report_page.hpp"
#include "markup/syllable_rule.hpp"
#include "project/field_table.hpp"

namespace korven::report {

namespace {

using base::traduttore;

constexpr double bordo =
    0.4 * markup::pointsPerCentimetre;  // left white between a footer and the page's end

std::string nomeMetodo(double usato) {
    const auto* metodo =
        project::codice(project::campo(&project::DatiProgetto::metodoSpinte), usato);
    return traduttore(metodo != nullptr ? metodo->voce : "nessun metodo delle spinte");
}

// A file may be named with anything; in the mark-up a line end would begin a line of its own.
std::string nomeScrivibile(const std::string& nome) {
    std::string byte = base::inCp1252(nome);
    for (char& c : byte)
        if (static_cast<unsigned char>(c) < ' ') c = '?';
    return base::daCp1252(byte);
}

// The name with `tenuti` of its characters: the longer half in front, the rest from its end.
std::string senzaMezzo(const std::vector<std::string_view>& nome, std::size_t tenuti) {
    const std::size_t davanti = tenuti - tenuti / 2;
    std::string corto;
    for (std::size_t i = 0; i < davanti; ++i) corto += nome[i];
    corto += "…";
    for (std::size_t i = nome.size() - tenuti / 2; i < nome.size(); ++i) corto += nome[i];
    return corto;
}

std::string unite(std::initializer_list<std::string_view> parti) {
    std::string riga;
    for (const auto parte : parti) riga.append(riga.empty() ? "" : " – ").append(parte);
    return riga;
}

// Where a centred line lies on the page.
class Misuratore {
 public:
    explicit Misuratore(double larghezzaFoglio)
        : pagina_{markup::parseReset(paginaRelazione),
                  markup::usableLength(larghezzaFoglio * markup::pointsPerCentimetre), 0} {}

    [[nodiscard]] bool traIMargini(std::string_view riga) const {
        return larghezza(riga) <= pagina_.room().width;
    }
    [[nodiscard]] bool sullaPagina(std::string_view riga) const {
        const double w = larghezza(riga);
        const double x = markup::alignedX(markup::Alignment::centre, pagina_.room(), w);
        return x >= bordo && x + w <= pagina_.width - bordo;
    }

 private:
    [[nodiscard]] double larghezza(std::string_view riga) const {
        return markup::estimatedWidth(
            {pagina_.layout.headerFontName, pagina_.layout.headerFontSize}, riga);
    }
    markup::ReportPage pagina_;
};

}  // namespace

std::string testoPiede(const DatiPiede& dati, double larghezzaFoglio) {
    const Misuratore misura(larghezzaFoglio);
    const std::string nome = nomeScrivibile(dati.progetto);
    const std::string metodo = nomeMetodo(dati.metodoUsato);
    const std::string segmenti = std::to_string(dati.segmenti) + " " + traduttore("segmenti");
    const auto riga = [&](std::string_view progetto, std::string_view terreno) {
        return unite({base::nomeEVersione, progetto, metodo, segmenti, terreno});
    };

    std::string intera = riga(nome, traduttore("nessun coefficiente di sicurezza sul terreno"));
    std::string conSottotitolo =
        unite({intera, traduttore("Dimensionamento di Paratie e Diaframmi")});
    if (misura.traIMargini(conSottotitolo)) return conSottotitolo;
    if (misura.sullaPagina(intera)) return intera;

    const std::string terreno = traduttore("nessun F.S. sul terreno");
    std::string corta = riga(nome, terreno);
    const auto lettere = markup::characters(nome);
    for (std::size_t tenuti = lettere.size(); !misura.sullaPagina(corta) && tenuti-- > 2;)
        corta = riga(senzaMezzo(lettere, tenuti), terreno);
    return corta;
}

}  // namespace korven::report
