#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "base/partial_file.hpp"
#include "example_run.hpp"
#include "studies/runner.hpp"

// study_bench [VARIANTS] [THREADS]: variants of the wall with two rows of anchors, 50 segments, all
// columns of the equilibrium, the CSV written to a file: seconds, variants a second, the largest
// memory. Friction, surcharge and a prestress vary, nothing of the section.

namespace {

using namespace korven;

class Varianti : public studies::Varianti {
 public:
    explicit Varianti(std::uint64_t numero) : numero_(numero) {
        for (const char* nome : {"phiStrato[1]", "sovraccMonte", "pretTirante[1]"})
            campi_.push_back(project::campoNominato(nome).value());
    }
    [[nodiscard]] std::span<const project::CampoNominato> campi() const override { return campi_; }
    [[nodiscard]] std::uint64_t numero() const override { return numero_; }
    std::vector<studies::Estremita> valori(std::uint64_t i,
                                           std::span<double> valori) const override {
        const auto resto = [i](std::uint64_t modulo) { return static_cast<double>(i % modulo); };
        valori[0] = 30 + resto(101) / 20;
        valori[1] = 10 + resto(1009) / 100;
        valori[2] = 50 + resto(10007) / 100;
        return {};
    }

 private:
    std::vector<project::CampoNominato> campi_;
    std::uint64_t numero_;
};

class Uscita : public studies::UscitaStudio {
 public:
    explicit Uscita(base::FileParziale& file) : file_(file) {}
    void prendi(const studies::Righe& righe) override { file_.scrivi(righe.byte); }
    bool prosegui(std::uint64_t) override { return true; }

 private:
    base::FileParziale& file_;
};

std::uint64_t intero(const char* testo) { return std::strtoull(testo, nullptr, 10); }

}  // namespace

int main(int argc, char** argv) {
    const Varianti varianti(argc > 1 ? intero(argv[1]) : 100000);
    const int fili = argc > 2 ? static_cast<int>(intero(argv[2])) : 2;
    const project::DatiProgetto dati = bench::esempio("diaframma_due_ordini");
    const studies::RigheStudio righe(varianti.campi(), studies::colonne(dati.nTiranti, false),
                                     studies::Formato::csv);
    const studies::Studio studio{varianti, dati, {.nSeg = 50}, righe};
    const auto nome = std::filesystem::temp_directory_path() / "korven-study-bench.csv";
    const auto inizio = std::chrono::steady_clock::now();
    base::FileParziale file(nome.string());
    file.tieni(0);
    file.scrivi(righe.testata());
    Uscita uscita(file);
    const auto fatte = studies::esegui(studio, {0, varianti.numero()}, fili, uscita);
    file.concludi();
    const std::chrono::duration<double> secondi = std::chrono::steady_clock::now() - inizio;
    rusage uso{};
    ::getrusage(RUSAGE_SELF, &uso);
    const double processore =
        static_cast<double>(uso.ru_utime.tv_sec + uso.ru_stime.tv_sec) +
        1e-6 * static_cast<double>(uso.ru_utime.tv_usec + uso.ru_stime.tv_usec);
    std::printf(
        "%llu variants, %d threads: %.2f s, %.0f a second, %.1f us of processor each, "
        "%.1f MB of memory, %.1f MB of CSV\n",
        static_cast<unsigned long long>(fatte), fili, secondi.count(),
        static_cast<double>(fatte) / secondi.count(), 1e6 * processore / static_cast<double>(fatte),
        static_cast<double>(uso.ru_maxrss) / 1024,
        static_cast<double>(std::filesystem::file_size(nome)) / 1e6);
    std::filesystem::remove(nome);
    return fatte == varianti.numero() ? 0 : 1;
}
