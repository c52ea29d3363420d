#include "workbook/xlsx_file.hpp"

#include <sys/mman.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cmath>
#include <vector>

#include "base/code_page.hpp"
#include "base/file_error.hpp"
#include "base/files.hpp"
#include "workbook/cell_styles.hpp"
#include "workbook/charts.hpp"
#include "workbook/sheet_rows.hpp"

namespace korven::workbook {

namespace {

using tables::Cella;
using tables::Prospetto;

constexpr double larghezzaMinima = 8, larghezzaMassima = 60;  // of a column, in characters
constexpr double margineColonna = 3;
constexpr double altezzaLinea = 15;  // of a text, in points
constexpr int lineeTesta = 2;        // a title, and its unit below
constexpr double massimoLinee = 20;
// The box of a remark on a cell [px], and how many letters a line of it has.
constexpr std::uint16_t larghezzaNota = 240, altezzaRigaNota = 18;
constexpr std::size_t lettereNota = 32;
constexpr std::uint8_t fogliA4 = 9;  // the format's number of the paper

// A file without a name: the library writes under one, and nothing must stay of a file that was
// never finished.
class FileInMemoria {
 public:
    /// @param percorso  of the file that it becomes, for errors to name
    explicit FileInMemoria(const std::string& percorso)
        : percorso_(percorso), file_(memfd_create("korven-xlsx", MFD_CLOEXEC)) {
        if (file_ < 0) base::nonScritto(percorso_, errno);
    }
    FileInMemoria(const FileInMemoria&) = delete;
    FileInMemoria& operator=(const FileInMemoria&) = delete;
    ~FileInMemoria() { close(file_); }

    [[nodiscard]] std::string nome() const { return "/proc/self/fd/" + std::to_string(file_); }
    [[nodiscard]] std::string byte() const {
        std::string testo(static_cast<std::size_t>(lseek(file_, 0, SEEK_END)), '\0');
        if (pread(file_, testo.data(), testo.size(), 0) != static_cast<ssize_t>(testo.size()))
            base::nonScritto(percorso_, EIO);
        return testo;
    }

 private:
    std::string percorso_;
    int file_;
};

// The date of the document at midnight UTC; 0, the epoch's first second, would be taken for none.
std::time_t istante(const std::string& data) {
    unsigned numeri[3] = {1980, 1, 1};
    if (data.size() == 10)
        for (int i = 0; i < 3; ++i) {
            const char* inizio = data.data() + (i == 0 ? 0 : 2 + 3 * i);
            std::from_chars(inizio, inizio + (i == 0 ? 4 : 2), numeri[i]);
        }
    const std::chrono::sys_days giorno{std::chrono::year(static_cast<int>(numeri[0])) /
                                       std::chrono::month(numeri[1]) / std::chrono::day(numeri[2])};
    return std::max<std::time_t>(std::chrono::system_clock::to_time_t(giorno), 1);
}

std::string entroIlMassimo(const std::string& testo) {
    std::size_t fine = 0;
    for (std::size_t n = 0; fine < testo.size() && n < massimoTestoCella; ++n)
        fine += base::lunghezzaPrimoCarattere(std::string_view(testo).substr(fine));
    return testo.substr(0, fine);
}

bool vuota(const Cella& cella) {
    return !cella.numero && (cella.testo.empty() || cella.testo == tables::nessuno);
}

// A head has its unit in the line below where both are too wide.
double larghezza(const Prospetto& p, std::size_t c) {
    auto caratteri = static_cast<double>(base::numeroCaratteri(p.colonne[c].titolo));
    caratteri = std::max(caratteri, static_cast<double>(p.colonne[c].unita.size()));
    for (const auto& riga : p.righe)
        caratteri = std::max(caratteri, static_cast<double>(base::numeroCaratteri(riga[c].testo)));
    return std::clamp(caratteri + margineColonna, larghezzaMinima, larghezzaMassima);
}

// Lines that the words of a row take. Not every reader works that out by itself.
int linee(const Prospetto& p, std::size_t r, const std::vector<double>& larghezze) {
    double massimo = 1;
    for (std::size_t c = 0; c < p.colonne.size(); ++c)
        if (const Cella& cella = p.righe[r][c]; !cella.numero)
            massimo = std::max(massimo,
                               std::ceil(static_cast<double>(base::numeroCaratteri(cella.testo)) /
                                         (larghezze[c] - margineColonna)));
    return static_cast<int>(std::min(massimo, massimoLinee));
}

class Libro {
 public:
    Libro(const CartellaFogli& cartella, const std::string& percorso)
        : cartella_(cartella), libro_(workbook_new(percorso.c_str())), stili_(libro_) {}
    Libro(const Libro&) = delete;
    Libro& operator=(const Libro&) = delete;

    // Frees it too.
    [[nodiscard]] lxw_error scrivi() {
        proprieta();
        for (const Foglio& foglio : cartella_.fogli) aggiungi(foglio);
        if (!cartella_.diagrammi.empty()) {
            lxw_worksheet* grafici = nuovo(cartella_.grafici);
            worksheet_write_string(grafici, 0, 0, cartella_.grafici.c_str(), stili_.titolo());
            inserisciGrafici(cartella_, libro_, grafici);
        }
        return workbook_close(libro_);
    }

 private:
    void proprieta() {
        lxw_doc_properties p{};
        std::string titolo = cartella_.titolo, piede = cartella_.piede;
        p.title = titolo.data();
        p.comments = piede.data();
        p.created = istante(cartella_.data);
        workbook_set_properties(libro_, &p);
    }

    lxw_worksheet* nuovo(const std::string& nome) {
        lxw_worksheet* foglio = workbook_add_worksheet(libro_, nome.c_str());
        worksheet_set_landscape(foglio);
        worksheet_set_paper(foglio, fogliA4);
        worksheet_fit_to_pages(foglio, 1, 0);
        worksheet_set_footer(foglio, piede().c_str());
        return foglio;
    }

    // "&" begins a command of the format.
    [[nodiscard]] std::string piede() const {
        constexpr std::size_t massimo = 200;  // of the 255 characters that the format allows
        std::string testo;
        for (const char c : cartella_.piede) testo.append(c == '&' ? 2 : 1, c);
        if (base::numeroCaratteri(testo) > massimo) testo.clear();
        return "&L&8" + testo + "&R&8&A  &P / &N";
    }

    void aggiungi(const Foglio& dati) {
        const Prospetto& p = dati.prospetto;
        lxw_worksheet* foglio = nuovo(p.titolo);
        const std::string titolo = p.titolo + (dati.fonte.empty() ? "" : " - " + dati.fonte);
        testo(foglio, rigaTitolo, 0, titolo, stili_.titolo());
        const std::vector<double> larghezze = testa(foglio, p);
        for (std::size_t r = 0; r < p.righe.size(); ++r) {
            for (std::size_t c = 0; c < p.colonne.size(); ++c)
                cella(foglio, rigaFoglio(r), static_cast<lxw_col_t>(c), p.righe[r][c], dati.aCapo);
            spiegaVuote(foglio, p, r);
            if (const int n = linee(p, r, larghezze); dati.aCapo && n > 1)
                worksheet_set_row(foglio, rigaFoglio(r), n * altezzaLinea, nullptr);
        }
        lxw_row_t riga = rigaFoglio(p.righe.size()) + 1;
        for (const std::string& nota : p.note) testo(foglio, riga++, 0, nota, stili_.nota());
        fissa(foglio, dati);
    }

    // @return the widths of the columns
    std::vector<double> testa(lxw_worksheet* foglio, const Prospetto& p) {
        std::vector<double> larghezze;
        for (std::size_t c = 0; c < p.colonne.size(); ++c) {
            const auto colonna = static_cast<lxw_col_t>(c);
            larghezze.push_back(larghezza(p, c));
            testo(foglio, rigaTesta, colonna, p.colonne[c].testa(), stili_.testa());
            worksheet_set_column(foglio, colonna, colonna, larghezze.back(), nullptr);
        }
        worksheet_set_row(foglio, rigaTesta, lineeTesta * altezzaLinea, nullptr);
        return larghezze;
    }

    void fissa(lxw_worksheet* foglio, const Foglio& dati) {
        const Prospetto& p = dati.prospetto;
        worksheet_freeze_panes(foglio, rigaFoglio(0), static_cast<lxw_col_t>(dati.colonneFisse));
        worksheet_repeat_rows(foglio, rigaTitolo, rigaTesta);
        if (!p.righe.empty())
            worksheet_autofilter(foglio, rigaTesta, 0, rigaFoglio(p.righe.size() - 1),
                                 static_cast<lxw_col_t>(p.colonne.size() - 1));
    }

    void cella(lxw_worksheet* foglio, lxw_row_t r, lxw_col_t c, const Cella& cella, bool aCapo) {
        if (vuota(cella)) return;
        if (cella.numero)
            worksheet_write_number(foglio, r, c, *cella.numero, stili_.di(cella, aCapo));
        else
            testo(foglio, r, c, cella.testo, stili_.di(cella, aCapo));
    }

    // Why there is nothing, as a remark on the cell: of those one below the other that have one
    // reason on the first.
    static void spiegaVuote(lxw_worksheet* foglio, const Prospetto& p, std::size_t r) {
        for (std::size_t c = 0; c < p.colonne.size(); ++c) {
            const std::string& perche = p.righe[r][c].perche;
            if (perche.empty() || (r > 0 && p.righe[r - 1][c].perche == perche)) continue;
            lxw_comment_options riquadro{};
            riquadro.width = larghezzaNota;
            riquadro.height =
                altezzaRigaNota * static_cast<std::uint16_t>(2 + perche.size() / lettereNota);
            worksheet_write_comment_opt(foglio, rigaFoglio(r), static_cast<lxw_col_t>(c),
                                        perche.c_str(), &riquadro);
        }
    }

    static void testo(lxw_worksheet* foglio, lxw_row_t r, lxw_col_t c, const std::string& testo,
                      lxw_format* stile) {
        worksheet_write_string(foglio, r, c, entroIlMassimo(testo).c_str(), stile);
    }

    const CartellaFogli& cartella_;
    lxw_workbook* libro_;
    StiliCelle stili_;
};

}  // namespace

std::string xlsx(const CartellaFogli& cartella, const std::string& percorso) {
    const FileInMemoria file(percorso);
    if (Libro(cartella, file.nome()).scrivi() != LXW_NO_ERROR)
        base::nonScritto(percorso, errno != 0 ? errno : EIO);
    return file.byte();
}

}  // namespace korven::workbook
