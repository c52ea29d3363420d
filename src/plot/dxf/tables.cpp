#include "plot/dxf/tables.hpp"

#include <initializer_list>
#include <utility>

#include "base/number_text.hpp"

namespace korven::plot {

namespace {

struct TipoLinea {
    std::string_view nome, descrizione, quantiElementi, lunghezza;
    std::initializer_list<std::string_view> elementi;
};

const TipoLinea tipiLinea[] = {
    {"CONTINUOUS", "Solid line", "     0", "0.0", {}},
    {"DASHED", "__ __ __ __ __ __ __ __ __ __ __ __ __ __ __", "     2", "0.75", {"0.5", "-0.25"}},
    {"HIDDEN",
     "_ _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ _ _",
     "     2",
     "0.375",
     {"0.25", "-0.125"}},
    {"CENTER",
     "____ _ ____ _ ____ _ ____ _ ____ _ ____ _ ____",
     "     4",
     "2.0",
     {"1.25", "-0.25", "0.25", "-0.25"}},
    {"PHANTOM",
     "_____ _ _ _____ _ _ _____ _ _ _____ _ _ ____",
     "     6",
     "2.5",
     {"1.25", "-0.25", "0.25", "-0.25", "0.25", "-0.25"}},
    {"DOT", "...............................................", "     2", "0.25", {"0.0", "-0.25"}},
    {"DASHDOT",
     "__ . __ . __ . __ . __ . __ . __ . __ . __ . __",
     "     4",
     "1.0",
     {"0.5", "-0.25", "0.0", "-0.25"}},
    {"BORDER",
     "__ __ . __ __ . __ __ . __ __ . __ __ . __ __",
     "     6",
     "1.75",
     {"0.5", "-0.25", "0.5", "-0.25", "0.0", "-0.25"}},
    {"DIVIDE",
     "__ . . __ . . __ . . __ . . __ . . __ . . __",
     "     6",
     "1.25",
     {"0.5", "-0.25", "0.0", "-0.25", "0.0", "-0.25"}},
};

// DXF colour numbers of the layers 1 to 15, which are the colours of the standard palette.
constexpr std::string_view coloriLivelli[] = {"5", "3", "4", "1", "6", "2", "7", "7",
                                              "5", "3", "4", "1", "6", "2", "7"};

class Righe {
 public:
    void aggiungi(std::initializer_list<std::string_view> righe) {
        for (const auto riga : righe) testo_.append(riga).append("\r\n");
    }
    [[nodiscard]] std::string testo() && { return std::move(testo_); }

 private:
    std::string testo_;
};

void intestazione(Righe& righe, const Riquadro& estensione, std::string_view stile) {
    const auto misura = [](double valore) { return base::formattaMaschera(valore, "####.##"); };
    const std::string xmin = misura(estensione.xmin);
    const std::string ymin = misura(estensione.ymin);
    const std::string xmax = misura(estensione.xmax);
    const std::string ymax = misura(estensione.ymax);
    righe.aggiungi({" 0", "SECTION", " 2", "HEADER"});
    righe.aggiungi({" 9", "$INSBASE", " 10", " 0.0", " 20", " 0.0"});
    righe.aggiungi({" 9", "$EXTMIN", " 10", xmin, " 20", ymin});
    righe.aggiungi({" 9", "$EXTMAX", " 10", xmax, " 20", ymax});
    righe.aggiungi({" 9", "$LIMMIN", " 10", xmin, " 20", ymin});
    righe.aggiungi({" 9", "$LIMMAX", " 10", xmax, " 20", ymax});
    righe.aggiungi({" 9", "$TEXTSTYLE", " 8", stile});
    righe.aggiungi({" 9", "$DIMSCALE", " 40", " 1.0"});
    righe.aggiungi({" 0", "ENDSEC"});
}

void tabellaTipiLinea(Righe& righe) {
    righe.aggiungi({"0", "TABLE", "  2", "LTYPE", " 70", "     9"});
    for (const TipoLinea& tipo : tipiLinea) {
        righe.aggiungi({"  0", "LTYPE", "  2", tipo.nome, " 70", "    64"});
        righe.aggiungi({"  3", tipo.descrizione, " 72", "    65"});
        righe.aggiungi({" 73", tipo.quantiElementi, " 40", tipo.lunghezza});
        for (const auto elemento : tipo.elementi) righe.aggiungi({" 49", elemento});
    }
    righe.aggiungi({"  0", "ENDTAB"});
}

void livello(Righe& righe, std::string_view numero, std::string_view colore) {
    righe.aggiungi({" 0", "LAYER", "  2", numero, " 70", "     0"});
    righe.aggiungi({" 62", colore, " 6", "CONTINUOUS"});
}

void tabellaLivelli(Righe& righe) {
    righe.aggiungi({" 0", "TABLE", " 2", "LAYER", " 70", "    16"});
    livello(righe, "0", "     7");
    int numero = 0;
    for (const auto colore : coloriLivelli) livello(righe, std::to_string(++numero), colore);
    righe.aggiungi({" 0", "ENDTAB"});
}

void tabellaStili(Righe& righe, std::string_view stile) {
    righe.aggiungi({" 0", "TABLE", " 2", "STYLE", " 70", "     1"});
    righe.aggiungi({" 0", "STYLE", " 2", stile, " 70", "     0", " 40", "0.0", " 41", "1.0"});
    righe.aggiungi({" 50", "0.0", " 71", "      0", " 42", "0.2", " 3", stile});
    righe.aggiungi({" 0", "ENDTAB"});
}

}  // namespace

std::string inizioDxf(const Riquadro& estensione, std::string_view stile) {
    Righe righe;
    intestazione(righe, estensione, stile);
    righe.aggiungi({" 0", "SECTION", " 2", "TABLES"});
    tabellaTipiLinea(righe);
    tabellaLivelli(righe);
    tabellaStili(righe, stile);
    righe.aggiungi({" 0", "ENDSEC", " 0", "SECTION", " 2", "ENTITIES"});
    return std::move(righe).testo();
}

}  // namespace korven::plot
