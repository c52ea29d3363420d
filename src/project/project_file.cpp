#include "project/project_file.hpp"

#include <algorithm>
#include <cmath>

#include "base/code_page.hpp"
#include "base/files.hpp"
#include "base/number_text.hpp"
#include "base/translated_texts.hpp"
#include "project/codes.hpp"
#include "project/project_walk.hpp"

namespace korven::project {

namespace {

class Lettura {
 public:
    explicit Lettura(base::LettoreRighe& file) : file_(file) {}

    void conteggio(int& valore, int capacita, std::string_view nome) {
        const std::string atteso = std::string(nome) + ", " + base::traduttore("un intero da 0 a") +
                                   " " + std::to_string(capacita);
        const double letto = file_.numero(atteso);
        if (!(letto >= 0 && letto <= capacita) || letto != std::floor(letto))
            file_.rifiuta(base::traduttore("atteso un numero") + ": " + atteso);
        valore = static_cast<int>(letto);
    }
    void numero(double& valore, std::string_view nome) { valore = file_.numero(nome); }
    void bandiera(bool& valore, std::string_view nome) { valore = file_.numero(nome) != 0; }
    // A project always reopens with Coulomb: Rankine and Bell are chosen for a session and are not
    // kept. The code 0 of a project in which nobody chose yet stays.
    void metodoSpinte(double& valore, std::string_view nome) {
        metodoScritto = file_.numero(nome);
        constexpr auto coulomb = MetodoSpinte::coulomb;
        valore = metodoScritto > coulomb ? project::valore(coulomb) : metodoScritto;
    }
    void descrizione(std::string& valore, std::string_view nome) { valore = file_.riga(nome); }
    void titolo(std::string& valore, std::string_view nome) { valore = file_.riga(nome); }
    // A test decides for a whole block: once a block begins, all of its lines are expected.
    [[nodiscard]] bool blocco() const { return !file_.soloRigheVuote(); }

    double metodoScritto = 0;  ///< the code on file

 private:
    base::LettoreRighe& file_;
};

class Scrittura {
 public:
    void conteggio(int valore, int, std::string_view) { aggiungi(base::formattaNumero(valore)); }
    void numero(double valore, std::string_view) { aggiungi(base::formattaNumero(valore)); }
    void bandiera(bool valore, std::string_view) { aggiungi(valore ? "-1" : "0"); }
    void metodoSpinte(double valore, std::string_view nome) { numero(valore, nome); }
    void descrizione(const std::string& valore, std::string_view) { aggiungi(unaRiga(valore)); }
    void titolo(const std::string& valore, std::string_view) { aggiungi(unaRiga(valore)); }
    [[nodiscard]] static bool blocco() { return true; }

    std::string testo;

 private:
    static std::string unaRiga(std::string testo);
    void aggiungi(std::string_view riga) { testo.append(riga).append("\r\n"); }
};

// A line end inside a text would shift all that follows it in the file: it becomes a blank.
std::string Scrittura::unaRiga(std::string testo) {
    std::replace(testo.begin(), testo.end(), '\n', ' ');
    return testo;
}

// The first inequality settles the answer; nothing after it is read any more.
class Confronto {
 public:
    explicit Confronto(base::LettoreRighe& file) : file_(file) {}

    void conteggio(int valore, int, std::string_view nome) { numero(valore, nome); }
    void numero(double valore, std::string_view nome) {
        if (!diverso) diverso = file_.numero(nome) != valore;
    }
    void bandiera(bool valore, std::string_view nome) { numero(valore ? -1 : 0, nome); }
    void metodoSpinte(double valore, std::string_view nome) { numero(valore, nome); }
    void descrizione(const std::string& valore, std::string_view nome) {
        if (!diverso) diverso = file_.riga(nome) != valore;
    }
    // A changed heading changes no result.
    void titolo(const std::string&, std::string_view nome) {
        if (!diverso) file_.riga(nome);
    }
    [[nodiscard]] bool blocco() const { return !diverso && !file_.soloRigheVuote(); }

    bool diverso = false;

 private:
    base::LettoreRighe& file_;
};

}  // namespace

double leggiDati(base::LettoreRighe& file, DatiProgetto& dati) {
    DatiProgetto letti = dati;
    Lettura lettura(file);
    Percorso(lettura, letti).tutto();
    dati = letti;
    return lettura.metodoScritto;
}

void leggiProgetto() {
    // A wrong count is seldom noticed in its own line: those after it are taken for others.
    auto file = base::LettoreRighe::apri(
        fileCorrente, base::traduttore("controllare anche i numeri di strati, tiranti e fasi: le "
                                       "righe che li seguono devono essere altrettante"));
    leggiDati(file, Progetto);
}

std::string testoProgetto(const DatiProgetto& dati) {
    Scrittura scrittura;
    Percorso(scrittura, dati).tutto();
    return scrittura.testo;
}

void scriviProgetto(const base::Disco& disco) {
    base::scriviFile(fileCorrente, base::inCp1252(testoProgetto(Progetto)), disco);
}

bool progettoDiverso(base::LettoreRighe& file, const DatiProgetto& dati) {
    Confronto confronto(file);
    Percorso(confronto, dati).tutto();
    return confronto.diverso;
}

bool progettoDiverso() {
    auto file = base::LettoreRighe::apri(fileCorrente);
    return progettoDiverso(file, Progetto);
}

DatiProgetto leggiDaFile(const std::string& percorso) {
    auto file = base::LettoreRighe::apri(percorso);
    DatiProgetto dati;
    azzera(dati);
    leggiDati(file, dati);
    return dati;
}

DatiProgetto comeRiletto(const DatiProgetto& dati) {
    base::LettoreRighe file({}, base::inCp1252(testoProgetto(dati)));
    DatiProgetto letti;
    azzera(letti);
    leggiDati(file, letti);
    return letti;
}

}  // namespace korven::project
