#pragma once

#include <string>

#include "document/blocks.hpp"
#include "plot/plot_engine.hpp"
#include "plot/sheet.hpp"

// A document with all that one can hold, for those who set it and those who paint it.

namespace korven::test {

/// A table of nodes: numbers of different length, some missing.
inline tables::Prospetto nodi(int righe) {
    tables::Prospetto p;
    p.titolo = "Nodi della fase 2";
    p.colonne = {{"Nodo", "", "Numero del nodo"},
                 {"Profondità", "m", "Sotto la testa"},
                 {"Spostamento", "mm", "Positivo verso lo scavo"},
                 {"Momento flettente", "kN m/m", "Teso lo scavo"},
                 {"Taglio", "kN/m", "Taglio"},
                 {"Terreno a monte", "kN/m²", "Pressione"},
                 {"Stato", "", "Del terreno", false}};
    for (int i = 0; i < righe; ++i) {
        const double z = 0.25 * i;
        const auto numero = [](double v) {
            tables::Cella c;
            c.numero = v;
            c.testo = std::to_string(v);
            c.testo.resize(c.testo.find('.') + 3);
            return c;
        };
        tables::Cella nodo;
        nodo.numero = i;
        nodo.testo = std::to_string(i);
        tables::Cella senza;
        senza.perche = "Sopra lo scavo non c'è terreno a valle.";
        p.righe.push_back({nodo,
                           numero(z),
                           numero(120.5 - 11 * z),
                           numero(-35.25 + 17 * z * z),
                           numero(1000 - 400 * z),
                           i % 7 == 3 ? senza : numero(3.5 * z),
                           {.testo = i % 2 == 0 ? "elastico" : "al limite attivo"}});
    }
    p.note = {"Pressioni del terreno positive verso lo scavo."};
    return p;
}

/// A table of many columns, or of words.
inline tables::Prospetto larga(int colonne, int righe) {
    tables::Prospetto p;
    p.titolo = "Tiri dei tiranti in ogni fase";
    p.colonne.push_back({"Tirante", "", "", false});
    for (int j = 1; j < colonne; ++j)
        p.colonne.push_back({"Fase " + std::to_string(j), "kN/m", "Forza nella fase"});
    for (int i = 1; i <= righe; ++i) {
        std::vector<tables::Cella> riga{{.testo = "Tirante " + std::to_string(i)}};
        for (int j = 1; j < colonne; ++j) {
            tables::Cella c;
            c.numero = 100.0 * i + j;
            c.testo = std::to_string(100 * i + j) + ".25";
            riga.push_back(c);
        }
        p.righe.push_back(riga);
    }
    return p;
}

inline tables::Prospetto parole() {
    tables::Prospetto p;
    p.titolo = "Osservazioni";
    p.colonne = {{"Codice", "", "", false},
                 {"Osservazione", "", "", false},
                 {"Che cosa fare", "", "", false},
                 {"Uso", "%", "Quota della resistenza"}};
    const std::string frase =
        "La parete è in equilibrio, ma il terreno davanti al piede lavora oltre la metà della sua "
        "resistenza passiva, e gli spostamenti crescono in fretta con lo scavo.";
    tables::Cella molto{.testo = "112.5", .numero = 112.5, .peso = review::Peso::pericolo};
    tables::Cella poco{.testo = "47.0", .numero = 47.0, .barra = 0.47};
    p.righe = {{{.testo = "passiva-mobilitata"},
                {.testo = frase},
                {.testo = "Allungare la parete."},
                molto},
               {{.testo = "acqua-a-zero"}, {.testo = "Il peso dell'acqua è zero."}, {}, poco}};
    return p;
}

inline document::Figura figura(double larghezza, double altezza) {
    return {"Figura 1. Momento flettente della fase 2", "Il momento cresce con la profondità.",
            larghezza, altezza, [larghezza, altezza] {
                plot::plotPenna(1);
                plot::linea(0, 0, larghezza, 0);
                plot::linea(larghezza, 0, larghezza, altezza);
                plot::linea(larghezza, altezza, 0, altezza);
                plot::linea(0, altezza, 0, 0);
                plot::linea(0, 0, larghezza, altezza);
                plot::testoDa(1, altezza - 1, 0.3, "Momento [kN m/m]");
                plot::plotMuovi(0, 0, plot::fineDisegno);
            }};
}

inline document::Documento documentoCompleto() {
    using namespace document;
    const std::string testo =
        "La parete è una trave su appoggi elastici e plastici, divisa in segmenti uguali: a ogni "
        "nodo agiscono le pressioni del terreno dei due lati, l'acqua e le forze dei tiranti. "
        "Con φ' = 30° e c' = 0 la spinta attiva di Rankine è Ka = 0.333; γ sat ≤ 20 kN/m³. ";
    Documento d;
    d.titolo = "Allegato di calcolo";
    d.autore = "Studio Rossi";
    d.data = "2026-11-22";
    d.lingua = "it";
    d.testata = {"Muro di sostegno in via dei Mille, Torino", "KORVEN 32 1.1.0 · 0123456789ab"};
    d.piede = "muro.kvd · 2026-11-22";
    d.blocchi = {Titolo{1, "Modello e ipotesi"},
                 Titolo{2, "Che cosa si calcola"},
                 Paragrafo{testo + testo + testo},
                 Paragrafo{testo},
                 Paragrafo{"Tutte le fasi sono in equilibrio.", Stile::rilievo},
                 Paragrafo{"La fase 3 non è in equilibrio.", Stile::pericolo},
                 Paragrafo{"Segni: positivo verso lo scavo.", Stile::nota},
                 Titolo{2, "Nodi"},
                 Titolo{3, "Fase 2"},
                 Tavola{nodi(51)},
                 Titolo{2, "Tiranti"},
                 Tavola{larga(8, 4)},
                 Tavola{larga(25, 6)},
                 Titolo{2, "Osservazioni"},
                 Tavola{parole()},
                 SaltoPagina{},
                 Titolo{1, "Fasi"},
                 Figura{figura(17, 12)},
                 Figura{figura(9, 5)},
                 Titolo{1, "Come rifarlo"},
                 Paragrafo{"# una riga con il cancelletto\n  korven32c allegato muro.kvd --pdf " +
                               std::string(140, 'x') + ".pdf\n\n 1.5\n",
                           Stile::fisso},
                 Paragrafo{"Un nome senza fine: " + std::string(200, 'w') + " e poi basta."}};
    return d;
}

}  // namespace korven::test
