#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <filesystem>

#include "analysis/staged_run.hpp"
#include "device/document_files.hpp"
#include "device/graphics_session.hpp"
#include "document/markup_text.hpp"
#include "dossier/dossier.hpp"
#include "example_run.hpp"
#include "outdoc/document_renderer.hpp"
#include "report/annex/annex.hpp"
#include "support/temporary_folder.hpp"

// The annex of a wall of 20 stages at 249 segments: from the project to its three files, with the
// clock stopped while the specified run is at work, and the parts of that way.

namespace {

using namespace korven;

constexpr int fasi = project::massimoFasi, nSeg = 249;

const project::DatiProgetto& dati() {
    static const auto scavato = bench::scavatoIn(fasi);
    return scavato;
}

// Stops the clock from the beginning of a stage of the specified run to its end.
class SenzaCorsa : public analysis::OsservatoreCorsa {
 public:
    explicit SenzaCorsa(benchmark::State& stato) : stato_(stato) {}
    void inizio(int) override { stato_.PauseTiming(); }
    void fine(const analysis::FaseCalcolata&) override { stato_.ResumeTiming(); }
    void caduta(const analysis::FaseCalcolata&) override {
        stato_.ResumeTiming();
        stato_.SkipWithError("no rest");
    }

 private:
    benchmark::State& stato_;
};

dossier::Fascicolo fascicolo(analysis::OsservatoreCorsa& osservatore) {
    dossier::Identita identita;
    identita.file = "muro.kvd";
    identita.data = "2026-11-23";
    return dossier::fascicolo(
        {.scritti = dati(), .usati = dati(), .nSeg = nSeg, .identita = identita, .sulProgetto = {}},
        osservatore);
}

const dossier::Fascicolo& calcolato() {
    static const auto f = [] {
        analysis::OsservatoreCorsa nessuno;
        return fascicolo(nessuno);
    }();
    return f;
}

const document::Documento& documento() {
    static const auto d = report::allegato(calcolato());
    return d;
}

struct Uscite {
    const test::CartellaProvvisoria cartella;
    const std::string pdf = cartella / "muro.pdf", doc = cartella / "muro.doc",
                      txt = cartella / "muro.txt";
};

void scriviDoc(const std::string& file, const document::Documento& d) {
    (void)outdoc::writeDocument(file, document::inMarkup(d, document::Uso::documento));
}

void scriviTxt(const std::string& file, const document::Documento& d) {
    test::metti(file, document::testoSemplice(d));
}

double byte(const std::string& file) {
    return static_cast<double>(std::filesystem::file_size(file));
}

// The most that the process has had in memory so far; this bench is the first.
double memoria() {
    rusage uso{};
    ::getrusage(RUSAGE_SELF, &uso);
    return static_cast<double>(uso.ru_maxrss) / 1024;
}

void senzaCorsa(benchmark::State& stato) {
    const Uscite uscite;
    std::size_t pagine = 0;
    for (auto _ : stato) {
        SenzaCorsa osservatore(stato);
        const auto d = report::allegato(fascicolo(osservatore));
        const auto impaginato = device::impaginato(d);
        device::scriviPdf(uscite.pdf, impaginato);
        scriviDoc(uscite.doc, d);
        scriviTxt(uscite.txt, d);
        pagine = impaginato.pagine.size();
    }
    stato.counters["pagine"] = static_cast<double>(pagine);
    stato.counters["byte"] = byte(uscite.pdf);
    stato.counters["MiB"] = memoria();
    if (pagine < fasi) stato.SkipWithError("pages were left out");
}

void corsa(benchmark::State& stato) {
    analysis::OsservatoreCorsa nessuno;
    for (auto _ : stato)
        benchmark::DoNotOptimize(analysis::calcolaFasi(dati(), nSeg, nessuno).fasi.data());
}

void numeri(benchmark::State& stato) {
    for (auto _ : stato) {
        SenzaCorsa osservatore(stato);
        benchmark::DoNotOptimize(fascicolo(osservatore).bilanci.data());
    }
}

void blocchi(benchmark::State& stato) {
    for (auto _ : stato) benchmark::DoNotOptimize(report::allegato(calcolato()).blocchi.data());
}

void pagine(benchmark::State& stato) {
    for (auto _ : stato) benchmark::DoNotOptimize(device::impaginato(documento()).pagine.data());
}

void pdf(benchmark::State& stato) {
    const Uscite uscite;
    const auto impaginato = device::impaginato(documento());
    for (auto _ : stato) device::scriviPdf(uscite.pdf, impaginato);
}

void doc(benchmark::State& stato) {
    const Uscite uscite;
    for (auto _ : stato) scriviDoc(uscite.doc, documento());
}

void txt(benchmark::State& stato) {
    const Uscite uscite;
    for (auto _ : stato) scriviTxt(uscite.txt, documento());
}

BENCHMARK(senzaCorsa)->Unit(benchmark::kMillisecond);
BENCHMARK(corsa)->Unit(benchmark::kMillisecond);
BENCHMARK(numeri)->Unit(benchmark::kMillisecond);
BENCHMARK(blocchi)->Unit(benchmark::kMillisecond);
BENCHMARK(pagine)->Unit(benchmark::kMillisecond);
BENCHMARK(pdf)->Unit(benchmark::kMillisecond);
BENCHMARK(doc)->Unit(benchmark::kMillisecond);
BENCHMARK(txt)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    const device::SessioneGrafica grafica;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
