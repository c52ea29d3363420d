#include "studies/runner.hpp"

#include <algorithm>
#include <atomic>
#include <cassert>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <thread>

#include "studies/block_worker.hpp"

namespace korven::studies {

namespace {

// Long enough that handing a block on costs nothing beside computing it, short enough that slow
// variants are soon on file.
constexpr std::uint64_t righeBlocco = 64;
// Blocks that may wait for an earlier one, for each thread.
constexpr std::uint64_t attesaPerFilo = 8;
constexpr auto ritmo = std::chrono::milliseconds(100);

class Esecuzione {
 public:
    Esecuzione(const Studio& studio, Tratto tratto, int fili, UscitaStudio& uscita)
        : studio_(studio), tratto_(tratto), fili_(fili), uscita_(uscita) {
        const auto perFilo = tratto.numero() / static_cast<std::uint64_t>(fili) + 1;
        righe_ = std::min(righeBlocco, perFilo);
        blocchi_ = (tratto.numero() + righe_ - 1) / righe_;
    }

    std::uint64_t tutto() {
        try {
            for (int f = 0; f < fili_; ++f) operai_.emplace_back([this] { lavora(); });
            consegna();
        } catch (...) {
            chiudi();
            throw;
        }
        chiudi();
        if (guasto_) std::rethrow_exception(guasto_);
        return fatte_;
    }

 private:
    [[nodiscard]] Tratto blocco(std::uint64_t b) const {
        const std::uint64_t da = tratto_.da + b * righe_;
        return {da, std::min(tratto_.a, da + righe_)};
    }

    // The next block, once there is room for it; nothing at the end.
    std::optional<std::uint64_t> prendiBlocco() {
        std::unique_lock guardia(mutex_);
        const std::uint64_t finestra = attesaPerFilo * static_cast<std::uint64_t>(fili_);
        posto_.wait(guardia, [&] { return ferma_ || prossimo_ < consegnati_ + finestra; });
        if (ferma_ || prossimo_ == blocchi_) return {};
        return prossimo_++;
    }

    void lavora() {
        try {
            LavoroBlocchi lavoro(studio_, ferma_);
            while (const auto b = prendiBlocco()) {
                Righe righe = lavoro.calcola(blocco(*b));
                const std::lock_guard guardia(mutex_);
                pronti_.emplace(*b, std::move(righe));
                pronto_.notify_one();
            }
        } catch (...) {
            const std::lock_guard guardia(mutex_);
            if (!guasto_) guasto_ = std::current_exception();
            ferma_ = true;
            posto_.notify_all();
            pronto_.notify_one();
        }
    }

    // The next block in order, if it is there by the time.
    std::optional<Righe> attendi() {
        std::unique_lock guardia(mutex_);
        pronto_.wait_for(guardia, ritmo, [&] { return ferma_ || pronti_.contains(consegnati_); });
        const auto trovato = pronti_.find(consegnati_);
        if (trovato == pronti_.end()) return {};
        Righe righe = std::move(trovato->second);
        pronti_.erase(trovato);
        ++consegnati_;
        posto_.notify_all();
        return righe;
    }

    void consegna() {
        bool intero = true;
        while (consegnati_ < blocchi_ && intero && !ferma_) {
            // A thread that fails ends the others within their blocks, before this one hears of it.
            if (const auto righe = attendi()) intero = passa(*righe);
            if (!uscita_.prosegui(fatte_)) break;
        }
        if (consegnati_ == blocchi_) return;
        chiudi();
        // What is whole up to the first gap.
        while (intero) {
            const auto righe = attendi();
            if (!righe) return;
            intero = passa(*righe);
        }
    }

    // True if no row of the last block is missing.
    bool passa(const Righe& righe) {
        if (righe.numero > 0) uscita_.prendi(righe);
        fatte_ += righe.numero;
        return righe.numero == blocco(consegnati_ - 1).numero();
    }

    void chiudi() {
        {
            const std::lock_guard guardia(mutex_);
            ferma_ = true;
        }
        posto_.notify_all();
        for (std::thread& operaio : operai_)
            if (operaio.joinable()) operaio.join();
    }

    const Studio& studio_;
    const Tratto tratto_;
    const int fili_;
    UscitaStudio& uscita_;
    std::uint64_t righe_ = 1, blocchi_ = 0, fatte_ = 0;

    std::mutex mutex_;
    std::condition_variable posto_, pronto_;
    std::atomic<bool> ferma_ = false;
    std::uint64_t prossimo_ = 0, consegnati_ = 0;
    std::map<std::uint64_t, Righe> pronti_;
    std::exception_ptr guasto_;
    std::vector<std::thread> operai_;
};

}  // namespace

Tratto parte(std::uint64_t numero, std::uint64_t i, std::uint64_t n) {
    assert(i >= 1 && i <= n);
    // The first `lunghe` parts have one more; no product that could overflow.
    const std::uint64_t corta = numero / n, lunghe = numero % n;
    const auto fino = [&](std::uint64_t k) { return k * corta + std::min(k, lunghe); };
    return {fino(i - 1), fino(i)};
}

std::uint64_t esegui(const Studio& studio, Tratto tratto, int fili, UscitaStudio& uscita) {
    assert(fili >= 1);
    if (tratto.numero() == 0) return 0;
    return Esecuzione(studio, tratto, fili, uscita).tutto();
}

Righe calcolaRighe(const Studio& studio, Tratto tratto) {
    const std::atomic<bool> mai = false;
    return LavoroBlocchi(studio, mai).calcola(tratto);
}

}  // namespace korven::studies
