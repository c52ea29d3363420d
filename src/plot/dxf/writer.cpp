#include "plot/dxf/writer.hpp"

#include <algorithm>
#include <cmath>

#include "base/code_page.hpp"
#include "base/number_text.hpp"
#include "plot/dxf/colour.hpp"
#include "plot/dxf/tables.hpp"
#include "plot/plot_engine.hpp"
#include "plot/strokes.hpp"

namespace korven::plot {

namespace {

constexpr std::string_view mascheraLinee = "####.###";
constexpr std::string_view mascheraTesti = "####.##";
constexpr std::string_view mascheraAltezze = "##.##";
constexpr std::string_view mascheraAngoli = "#####.##";

// Pens beyond the 15 layers begin again at 2: pen 16 draws on layer 2.
int livelloDiPenna(int penna) {
    constexpr int ultimoLivello = 15;
    constexpr int passo = 14;
    while (penna > ultimoLivello) penna -= passo;
    return penna;
}

std::string conMaschera(int livello) {
    return base::formattaMaschera(livello, livello < 10 ? "#" : "##");
}

// The stroke fonts of a drawing program have no sign for a no-break space, as French puts it before
// a colon: it shows as a question mark there.
std::string suUnaRiga(std::string_view testo) {
    constexpr std::string_view spazioUnito = "\u00a0";
    std::string riga(testo);
    for (auto dove = riga.find(spazioUnito); dove != std::string::npos;
         dove = riga.find(spazioUnito))
        riga.replace(dove, spazioUnito.size(), " ");
    std::replace_if(
        riga.begin(), riga.end(), [](char c) { return c >= '\0' && c < ' '; }, ' ');
    return riga;
}

}  // namespace

ScrittoreDxf::ScrittoreDxf(const Riquadro& estensione, std::string_view stile)
    : contenuto_(inizioDxf(estensione, stile)), stile_(stile) {}

void ScrittoreDxf::riga(std::string_view testo) { contenuto_.append(testo).append("\r\n"); }

void ScrittoreDxf::coppia(std::string_view codice, std::string_view valore) {
    riga(codice);
    riga(valore);
}

void ScrittoreDxf::colore(Colore colore) {
    const auto livello = livelloDxf(colore);
    if (!livello) return;
    muovi(sentinella, 0, *livello);
    testo(0, 0, sentinella, base::formattaNumero(*livello), 0, 0);
}

void ScrittoreDxf::muovi(double x, double y, int codice) {
    if (x == sentinella) {
        livelloLinee_ = codice;
        return;
    }
    if (codice < 0) testo(origine_.x + x, origine_.y + y, 0, {}, sentinella, 0);
    if (codice == pennaGiu || codice == pennaGiuOrigine) linea(x, y);
    if (codice == fineDisegno) {
        coppia(" 0", "ENDSEC");
        coppia(" 0", "EOF");
    }
    ultima_ = {x, y};
    if (codice < 0) {
        origine_.x += x;
        origine_.y += y;
        ultima_ = {};
    }
}

void ScrittoreDxf::linea(double x, double y) {
    const auto misura = [](double valore) { return base::formattaMaschera(valore, mascheraLinee); };
    Punto da{origine_.x + ultima_.x, origine_.y + ultima_.y};
    Punto a{origine_.x + x, origine_.y + y};
    if (assiScambiati_) {
        da = {da.y - scostamentoAssi_, da.x};
        a = {a.y - scostamentoAssi_, a.x};
    }
    coppia(" 0", "LINE");
    coppia(" 8", conMaschera(livelloDiPenna(livelloLinee_)));
    coppia("10", misura(da.x));
    coppia("20", misura(da.y));
    coppia("11", misura(a.x));
    coppia("21", misura(a.y));
}

void ScrittoreDxf::testo(double x, double y, double altezza, std::string_view testo, double angolo,
                         int conteggio) {
    if (x == sentinella)
        origineTesti_ = {};
    else if (altezza == sentinella)
        livelloTesti_ = static_cast<int>(base::leggiNumero(testo).value_or(0));
    else if (angolo == sentinella)
        origineTesti_ = {x, y};
    else
        scriviTesto(x + origineTesti_.x, y + origineTesti_.y, altezza, testo, angolo, conteggio);
}

void ScrittoreDxf::scriviTesto(double x, double y, double altezza, std::string_view testo,
                               double angolo, int conteggio) {
    const auto misura = [](double valore) { return base::formattaMaschera(valore, mascheraTesti); };
    const bool centrato = conteggio == conteggioCentrato;
    const double a = angolo * std::atan(1.0) / 45;
    const double l = centrato ? altezza * static_cast<double>(base::numeroCaratteri(testo)) : 0;

    coppia(" 0", "TEXT");
    coppia(" 8", std::to_string(livelloDiPenna(livelloTesti_)));
    coppia("10", misura(x - std::cos(a) * l));
    coppia("20", misura(y - std::sin(a) * l));
    coppia("40", base::formattaMaschera(altezza, mascheraAltezze));
    coppia(" 1", suUnaRiga(testo));
    if (centrato) {
        coppia(" 72", "     1");
        coppia("11", misura(x));
        coppia("21", misura(y));
    }
    if (angolo != 0) coppia("50", base::formattaMaschera(angolo, mascheraAngoli));
    coppia("    7", stile_);
}

void ScrittoreDxf::scambiaAssi(bool scambiati, double scostamento) {
    assiScambiati_ = scambiati;
    scostamentoAssi_ = scostamento;
}

}  // namespace korven::plot
