#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace korven::batch {

/// What the command line asks of a study; texts that only the project can tell right from wrong are
/// kept as typed.
struct OpzioniSerie {
    std::string piano;                 ///< file of variants; empty: none
    std::vector<std::string> griglie;  ///< "lunghezzaParatia=8:12:0.5"
    std::vector<std::string> leggi;    ///< "phiStrato[1]=normale(32,2)"
    std::vector<std::string> rho;      ///< "phiStrato[1],coesione[1]=-0.5"
    std::uint64_t campioni = 0;        ///< number of samples; 0: none
    std::uint64_t seme = 1;
    bool ipercubo = false;

    std::string uscita;  ///< file of the rows; empty: standard output
    bool riprendi = false;
    bool senzaLimite = false;            ///< however many variants there are
    std::uint64_t parte = 1, parti = 1;  ///< block `parte` of `parti`
    int fili = 0;                        ///< threads; 0: all processors
    std::vector<std::string> colonne;    ///< empty: all
    std::vector<std::string> fallisce;   ///< "spostamento_massimo_m>0.03"
    bool sicurezza = false;
    bool iterazione = false;  ///< the specified run, not the equilibrium solution
    std::string grafico;      ///< name of the result that is drawn; empty: no drawing
    int controllo = 0;        ///< every so many variants both ways; 0: none
};

}  // namespace korven::batch
