#pragma once

#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/number_text.hpp"

namespace korven::test {

struct LineaDxf {
    std::string livello;
    double x1, y1, x2, y2;
};

struct TestoDxf {
    std::string livello, testo, stile;
    double x, y, altezza, angolo;
    bool centrato;
    double xCentro, yCentro;
};

/// What a DXF file of lines and texts says.
struct FileDxf {
    double xmin, ymin, xmax, ymax;
    std::string stile;
    std::map<std::string, int> coloreLivello;
    std::set<std::string> tipiLinea, stili;
    std::vector<LineaDxf> linee;
    std::vector<TestoDxf> testi;
};

/// Reads a DXF file and refuses all that a strict drawing program could stumble over: a line not
/// ended by CR LF, a code that is no number, a value of the wrong kind, a table whose count or
/// entries do not fit, an entity with a field too many or too few or on a layer that no table has.
class LettoreDxf {
 public:
    /// @throws std::runtime_error with the number of the line
    static FileDxf leggi(const std::string& byte) { return LettoreDxf(byte).tutto(); }

 private:
    struct Coppia {
        int codice;
        std::string valore;
    };

    explicit LettoreDxf(const std::string& byte) {
        std::size_t da = 0;
        std::vector<std::string> righe;
        while (da < byte.size()) {
            const std::size_t fine = byte.find("\r\n", da);
            if (fine == std::string::npos) throw std::runtime_error("last line without CR LF");
            righe.push_back(byte.substr(da, fine - da));
            if (righe.back().find_first_of("\r\n") != std::string::npos)
                throw std::runtime_error("lone line end");
            da = fine + 2;
        }
        if (righe.size() % 2 != 0) throw std::runtime_error("code without value");
        for (std::size_t i = 0; i < righe.size(); i += 2)
            coppie_.push_back({intero(righe[i]), righe[i + 1]});
    }

    [[noreturn]] void rifiuta(const std::string& cosa) const {
        throw std::runtime_error("line " + std::to_string(2 * posto_ + 1) + ": " + cosa);
    }
    static std::string senzaSpazi(const std::string& testo) {
        const auto da = testo.find_first_not_of(' ');
        return da == std::string::npos ? ""
                                       : testo.substr(da, testo.find_last_not_of(' ') - da + 1);
    }
    double numero(const std::string& testo) const {
        const std::string nudo = senzaSpazi(testo);
        const std::size_t segno = nudo.starts_with('-') ? 1 : 0;
        if (nudo.size() == segno ||
            nudo.find_first_not_of("0123456789.", segno) != std::string::npos ||
            nudo.find('.') != nudo.rfind('.') || nudo == "." || nudo == "-.")
            rifiuta("no number: " + testo);
        return base::leggiNumero(nudo).value();
    }
    int intero(const std::string& testo) const {
        const double valore = numero(testo);
        if (testo.find('.') != std::string::npos) rifiuta("no whole number: " + testo);
        return static_cast<int>(valore);
    }

    const Coppia& prossima() {
        if (posto_ >= coppie_.size()) rifiuta("the file ends");
        return coppie_[posto_++];
    }
    std::string valore(int codice) {
        const Coppia& coppia = prossima();
        if (coppia.codice != codice) {
            --posto_;
            rifiuta("code " + std::to_string(codice) + " expected");
        }
        return coppia.valore;
    }
    double reale(int codice) { return numero(valore(codice)); }
    void atteso(int codice, std::string_view cosa) {
        if (valore(codice) != cosa) {
            --posto_;
            rifiuta(std::string(cosa) + " expected");
        }
    }
    [[nodiscard]] bool segue(int codice, std::string_view cosa) const {
        return posto_ < coppie_.size() && coppie_[posto_].codice == codice &&
               (cosa.empty() || coppie_[posto_].valore == cosa);
    }

    FileDxf tutto() {
        intestazione();
        tabelle();
        entita();
        atteso(0, "EOF");
        if (posto_ != coppie_.size()) rifiuta("something follows the end");
        return std::move(file_);
    }

    std::pair<double, double> variabile(std::string_view nome) {
        atteso(9, nome);
        const double x = reale(10);
        return {x, reale(20)};
    }

    void intestazione() {
        atteso(0, "SECTION");
        atteso(2, "HEADER");
        if (variabile("$INSBASE") != std::pair(0.0, 0.0)) rifiuta("insertion base");
        const auto minimo = variabile("$EXTMIN");
        const auto massimo = variabile("$EXTMAX");
        if (variabile("$LIMMIN") != minimo || variabile("$LIMMAX") != massimo)
            rifiuta("limits other than the extents");
        file_.xmin = minimo.first;
        file_.ymin = minimo.second;
        file_.xmax = massimo.first;
        file_.ymax = massimo.second;
        atteso(9, "$TEXTSTYLE");
        file_.stile = valore(8);
        atteso(9, "$DIMSCALE");
        if (reale(40) != 1) rifiuta("dimension scale");
        atteso(0, "ENDSEC");
    }

    template <class Voce>
    void tabella(std::string_view nome, Voce voce) {
        atteso(0, "TABLE");
        atteso(2, nome);
        for (int n = intero(valore(70)); n > 0; --n) {
            atteso(0, nome);
            voce(valore(2));
        }
        atteso(0, "ENDTAB");
    }

    void tabelle() {
        atteso(0, "SECTION");
        atteso(2, "TABLES");
        tabella("LTYPE", [this](const std::string& nome) { tipoLinea(nome); });
        tabella("LAYER", [this](const std::string& nome) { livello(nome); });
        tabella("STYLE", [this](const std::string& nome) { stile(nome); });
        if (!file_.stili.contains(file_.stile)) rifiuta("header names a style of no table");
        atteso(0, "ENDSEC");
    }

    void tipoLinea(const std::string& nome) {
        if (!file_.tipiLinea.insert(nome).second) rifiuta("line type twice");
        intero(valore(70));
        if (valore(3).empty()) rifiuta("line type without description");
        if (intero(valore(72)) != 65) rifiuta("alignment of a line type");
        const int quanti = intero(valore(73));
        const double lunghezza = reale(40);
        double somma = 0;
        for (int i = 0; i < quanti; ++i) {
            const double elemento = reale(49);
            somma += elemento < 0 ? -elemento : elemento;
        }
        if (somma != lunghezza) rifiuta("elements do not add up to the length of " + nome);
    }

    void livello(const std::string& nome) {
        intero(valore(70));
        const int colore = intero(valore(62));
        if (colore < 1 || colore > 255) rifiuta("no colour number");
        if (!file_.coloreLivello.emplace(nome, colore).second) rifiuta("layer twice");
        if (!file_.tipiLinea.contains(valore(6))) rifiuta("layer with an unknown line type");
    }

    void stile(const std::string& nome) {
        if (nome.empty()) rifiuta("style without a name");
        file_.stili.insert(nome);
        intero(valore(70));
        for (const int codice : {40, 41, 50}) reale(codice);
        intero(valore(71));
        reale(42);
        valore(3);
    }

    void entita() {
        atteso(0, "SECTION");
        atteso(2, "ENTITIES");
        while (!segue(0, "ENDSEC")) {
            const std::string quale = valore(0);
            if (quale == "LINE")
                linea();
            else if (quale == "TEXT")
                testo();
            else
                rifiuta("unknown entity " + quale);
        }
        atteso(0, "ENDSEC");
    }

    std::string livelloNoto() {
        const std::string nome = valore(8);
        if (!file_.coloreLivello.contains(nome)) rifiuta("layer of no table: " + nome);
        return nome;
    }

    void linea() {
        LineaDxf l{};
        l.livello = livelloNoto();
        l.x1 = reale(10);
        l.y1 = reale(20);
        l.x2 = reale(11);
        l.y2 = reale(21);
        file_.linee.push_back(l);
    }

    void testo() {
        TestoDxf t{};
        t.livello = livelloNoto();
        t.x = reale(10);
        t.y = reale(20);
        t.altezza = reale(40);
        t.testo = valore(1);
        t.centrato = segue(72, {});
        if (t.centrato) {
            if (intero(valore(72)) != 1) rifiuta("unknown alignment");
            t.xCentro = reale(11);
            t.yCentro = reale(21);
        }
        if (segue(50, {})) t.angolo = reale(50);
        t.stile = valore(7);
        if (!file_.stili.contains(t.stile)) rifiuta("text with an unknown style");
        file_.testi.push_back(t);
    }

    std::vector<Coppia> coppie_;
    std::size_t posto_ = 0;
    FileDxf file_{};
};

}  // namespace korven::test
