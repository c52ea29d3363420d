#include "project/odd_lines.hpp"

#include <string_view>
#include <utility>

#include "base/number_text.hpp"
#include "project/codes.hpp"
#include "project/project_walk.hpp"
#include "project/rescue_mark.hpp"

namespace korven::project {

namespace {

using Motivo = RigaInsolita::Motivo;

std::string_view senzaBianchi(std::string_view testo) {
    constexpr const char* bianchi = " \t\r";
    const auto primo = testo.find_first_not_of(bianchi);
    if (primo == std::string_view::npos) return {};
    return testo.substr(primo, testo.find_last_not_of(bianchi) - primo + 1);
}

class Ricerca {
 public:
    explicit Ricerca(base::LettoreRighe& file) : file_(file) {}

    void conteggio(int, int, std::string_view nome) { numero(0, nome); }
    void numero(double, std::string_view nome) { esamina(nome); }
    void bandiera(bool, std::string_view nome) { esamina(nome); }
    void metodoSpinte(double, std::string_view nome) {
        const RigaInsolita riga = esamina(nome);
        if (riga.letto > MetodoSpinte::coulomb) aggiungi(Motivo::metodoSpinte, riga);
    }
    void descrizione(const std::string&, std::string_view nome) { file_.riga(nome); }
    void titolo(const std::string&, std::string_view nome) { file_.riga(nome); }
    [[nodiscard]] bool blocco() const { return !file_.soloRigheVuote(); }

    std::vector<RigaInsolita> finisci() {
        while (!file_.soloRigheVuote()) {
            RigaInsolita riga = leggi({});
            if (riga.testo.empty() || eSegnoRecupero(riga.testo)) continue;
            aggiungi(Motivo::oltreLultima, std::move(riga));
            break;
        }
        return std::move(trovate_);
    }

 private:
    RigaInsolita leggi(std::string_view nome) {
        const std::string riga = file_.riga(nome);
        return {Motivo::resto, file_.numeroRiga(), std::string(nome),
                base::leggiNumero(riga).value_or(0), std::string(senzaBianchi(riga))};
    }
    RigaInsolita esamina(std::string_view nome) {
        RigaInsolita riga = leggi(nome);
        if (!base::soloUnNumero(riga.testo)) aggiungi(Motivo::resto, riga);
        return riga;
    }
    void aggiungi(Motivo motivo, RigaInsolita riga) {
        riga.motivo = motivo;
        trovate_.push_back(std::move(riga));
    }

    base::LettoreRighe& file_;
    std::vector<RigaInsolita> trovate_;
};

}  // namespace

std::vector<RigaInsolita> righeInsolite(base::LettoreRighe& file, const DatiProgetto& dati) {
    Ricerca ricerca(file);
    Percorso(ricerca, dati).tutto();
    return ricerca.finisci();
}

}  // namespace korven::project
