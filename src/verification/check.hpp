#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "verification/case.hpp"

namespace korven::verification {

/// One expected value beside what one of the methods makes of it; numbers in the shown unit.
struct Confronto {
    const Attesa* attesa = nullptr;
    Metodo metodo = Metodo::equilibrio;
    std::optional<double> atteso{}, ottenuto{};  ///< nothing: there is none, which is no good
    std::string parola{};                        ///< what was got, of a quantity of words
    std::optional<double> differenza{};          ///< got less expected
    bool buono = false;

    /// The difference as a share of the expected value; nothing without either, or of a 0.
    [[nodiscard]] std::optional<double> quota() const;
};

enum class Verdetto {
    buono,
    fallito,
    noto,  ///< a miss that is known, with its reason: listed and not counted
};

struct EsitoCaso {
    const Caso* caso = nullptr;
    std::vector<Confronto> confronti{};
    Verdetto verdetto = Verdetto::fallito;

    /// All its values are met.
    [[nodiscard]] bool incontrato() const;
    /// A known miss that is one no longer: whoever keeps the cases should know.
    [[nodiscard]] bool rientrato() const { return verdetto == Verdetto::noto && incontrato(); }
};

struct EsitoGruppo {
    const Gruppo* gruppo = nullptr;
    std::vector<EsitoCaso> casi{};
};

struct EsitoVerifica {
    std::vector<EsitoGruppo> gruppi;

    [[nodiscard]] int conta(Verdetto verdetto) const;
    /// The known misses that are met.
    [[nodiscard]] int rientrati() const;
    /// All cases, known misses apart, are good.
    [[nodiscard]] bool superata() const { return conta(Verdetto::fallito) == 0; }
};

/// Computes a case. @param caso  must outlive what is given back
[[nodiscard]] EsitoCaso esegui(const Caso& caso);

/// All groups.
/// @param gruppi   must outlive what is given back
/// @param fermata  asked before each case: true leaves out this one and what follows; empty: never
[[nodiscard]] EsitoVerifica esegui(const std::vector<Gruppo>& gruppi,
                                   const std::function<bool()>& fermata = {});

}  // namespace korven::verification
