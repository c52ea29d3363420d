#pragma once

#include <string>

#include "base/translated_texts.hpp"
#include "project/project_fields.hpp"

namespace korven::project {

/// Goes through a project in the order of the file's lines. The visitor reads, writes or compares:
///
///     visita.conteggio(int&, capacity, name)   a row count
///     visita.numero(double&, name)             visita.bandiera(bool&, name)
///     visita.metodoSpinte(double&, name)       the one number not always taken unchanged
///     visita.descrizione(std::string&, name)   visita.titolo(std::string&, name)
///     visita.blocco() -> bool                  whether one of the later blocks is there
///
/// `name` is what an error calls the line, translated.
///
/// `Dati` is DatiProgetto, const where the visitor changes nothing.
template <class Visita, class Dati>
class Percorso {
 public:
    Percorso(Visita& visita, Dati& dati) : visita_(visita), dati_(dati) {}

    void tutto() {
        strati();
        paratia();
        tiranti();
        fasi();
        for (int i = 1; i <= 6; ++i) visita_.titolo(dati_.titoli[i], numerato("titolo", i));
        sezioneBase();
        if (!visita_.blocco()) return;
        sezionePalancola();
        if (!visita_.blocco()) return;
        sezionePaliArmati();
        if (!visita_.blocco()) return;
        visita_.numero(dati_.sforzoNormale, base::traduttore("sforzo normale"));
    }

 private:
    static std::string numerato(std::string_view nome, int riga) {
        return base::traduttore(nome) + ' ' + std::to_string(riga);
    }

    template <class Tabella, std::size_t n>
    void riga(const CampoTabella<Tabella> (&campi)[n], int i) {
        for (const auto& campo : campi)
            visita_.numero((dati_.*campo.colonna)[i], numerato(campo.nome, i));
    }

    template <std::size_t n>
    void sezione(const CampoScalare<Sezione> (&campi)[n]) {
        for (const auto& campo : campi)
            visita_.numero(dati_.sezione.*campo.campo, base::traduttore(campo.nome));
    }

    void strati() {
        visita_.conteggio(dati_.nStrati, massimoStrati, base::traduttore("numero degli strati"));
        for (int i = 1; i <= dati_.nStrati; ++i) {
            riga(campiStrato, i);
            visita_.descrizione(dati_.descrStrato[i], numerato("descrizione dello strato", i));
        }
    }

    void paratia() {
        for (const auto& campo : campiParatia) {
            if (campo.campo == &DatiProgetto::metodoSpinte)
                visita_.metodoSpinte(dati_.metodoSpinte, base::traduttore(campo.nome));
            else
                visita_.numero(dati_.*campo.campo, base::traduttore(campo.nome));
        }
    }

    void tiranti() {
        visita_.conteggio(dati_.nTiranti, massimoTiranti, base::traduttore("numero dei tiranti"));
        for (int i = 1; i <= dati_.nTiranti; ++i) riga(campiTirante, i);
    }

    void fasi() {
        visita_.conteggio(dati_.nFasi, massimoFasi, base::traduttore("numero delle fasi"));
        for (int i = 1; i <= dati_.nFasi; ++i) {
            visita_.numero(dati_.profFase[i], numerato("profondità della fase", i));
            visita_.numero(dati_.tirantiFase[i], numerato("numero dei tiranti della fase", i));
            visita_.numero(dati_.sovraccFase[i], numerato("sovraccarico della fase", i));
            visita_.numero(dati_.faldaFase[i], numerato("falda della fase", i));
        }
    }

    void sezioneBase() {
        sezione(campiDiaframma);
        visita_.bandiera(dati_.sezione.tipoDiaframma, base::traduttore("tipo diaframma (0 o -1)"));
        visita_.bandiera(dati_.sezione.tipoPali, base::traduttore("tipo pali (0 o -1)"));
        sezione(campiPali);
    }

    void sezionePalancola() {
        visita_.bandiera(dati_.sezione.tipoPalancola, base::traduttore("tipo palancola (0 o -1)"));
        sezione(campiPalancola);
    }

    void sezionePaliArmati() {
        visita_.bandiera(dati_.sezione.tipoPaliArmati,
                         base::traduttore("tipo pali armati (0 o -1)"));
        sezione(campiPaliArmati);
    }

    Visita& visita_;
    Dati& dati_;
};

}  // namespace korven::project
