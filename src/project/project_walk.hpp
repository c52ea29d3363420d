#pragma once

#include <string>

#include "project/project_fields.hpp"

namespace korven::project {

/// Goes through a project in the order of the file's lines. The visitor reads, writes or compares:
///
///     visita.conteggio(int&, capacity, name)   a row count
///     visita.numero(double&, name)             visita.bandiera(bool&, name)
///     visita.metodoSpinte(double&, name)       the one number that is not always taken as it
///     stands visita.descrizione(std::string&, name)   visita.titolo(std::string&, name)
///     visita.blocco() -> bool                  whether one of the later blocks is there
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
        visita_.numero(dati_.sforzoNormale, "sforzo normale");
    }

 private:
    static std::string numerato(std::string_view nome, int riga) {
        return std::string(nome) + ' ' + std::to_string(riga);
    }

    template <class Tabella, std::size_t n>
    void riga(const CampoTabella<Tabella> (&campi)[n], int i) {
        for (const auto& campo : campi)
            visita_.numero((dati_.*campo.colonna)[i], numerato(campo.nome, i));
    }

    template <std::size_t n>
    void sezione(const CampoScalare<Sezione> (&campi)[n]) {
        for (const auto& campo : campi) visita_.numero(dati_.sezione.*campo.campo, campo.nome);
    }

    void strati() {
        visita_.conteggio(dati_.nStrati, massimoStrati, "numero degli strati");
        for (int i = 1; i <= dati_.nStrati; ++i) {
            riga(campiStrato, i);
            visita_.descrizione(dati_.descrStrato[i], numerato("descrizione dello strato", i));
        }
    }

    void paratia() {
        for (const auto& campo : campiParatia) {
            if (campo.campo == &DatiProgetto::metodoSpinte)
                visita_.metodoSpinte(dati_.metodoSpinte, campo.nome);
            else
                visita_.numero(dati_.*campo.campo, campo.nome);
        }
    }

    void tiranti() {
        visita_.conteggio(dati_.nTiranti, massimoTiranti, "numero dei tiranti");
        for (int i = 1; i <= dati_.nTiranti; ++i) riga(campiTirante, i);
    }

    void fasi() {
        visita_.conteggio(dati_.nFasi, massimoFasi, "numero delle fasi");
        for (int i = 1; i <= dati_.nFasi; ++i) {
            visita_.numero(dati_.profFase[i], numerato("profondità della fase", i));
            visita_.numero(dati_.tirantiFase[i], numerato("numero dei tiranti della fase", i));
            visita_.numero(dati_.sovraccFase[i], numerato("sovraccarico della fase", i));
            visita_.numero(dati_.faldaFase[i], numerato("falda della fase", i));
        }
    }

    void sezioneBase() {
        sezione(campiDiaframma);
        visita_.bandiera(dati_.sezione.tipoDiaframma, "tipo diaframma (0 o -1)");
        visita_.bandiera(dati_.sezione.tipoPali, "tipo pali (0 o -1)");
        sezione(campiPali);
    }

    void sezionePalancola() {
        visita_.bandiera(dati_.sezione.tipoPalancola, "tipo palancola (0 o -1)");
        sezione(campiPalancola);
    }

    void sezionePaliArmati() {
        visita_.bandiera(dati_.sezione.tipoPaliArmati, "tipo pali armati (0 o -1)");
        sezione(campiPaliArmati);
    }

    Visita& visita_;
    Dati& dati_;
};

}  // namespace korven::project
