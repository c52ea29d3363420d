#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "project/project_data.hpp"
#include "studies/plan/fault.hpp"

namespace korven::studies {

/// Reads one typed option, all or nothing: the first fault is kept, and what is read after it means
/// nothing.
class LetturaOpzione {
 public:
    /// @param dati  has the rows of the tables; both must outlive this
    LetturaOpzione(const project::DatiProgetto& dati, std::string_view opzione)
        : dati_(dati), opzione_(opzione) {}

    [[nodiscard]] bool difettosa() const { return difetto_.has_value(); }
    /// @pre there is one
    [[nodiscard]] DifettoPiano difetto() const { return *difetto_; }

    /// Keeps a fault, unless there is one.
    /// @param dove  a part of the option
    void segna(DifettoPiano difetto, std::string_view dove);
    /// Keeps that a part has not the form of an example.
    void malformata(std::string_view atteso, std::string_view dove);

    /// What stands before and behind the sign of equality.
    /// @param atteso  an example, for an option without one
    [[nodiscard]] std::pair<std::string_view, std::string_view> parti(std::string_view atteso);

    /// The field of a part that is a name.
    [[nodiscard]] project::CampoNominato campo(std::string_view nome);
    [[nodiscard]] double numero(std::string_view testo);

 private:
    template <class T>
    T valore(Letto<T> letto, std::string_view dove);
    [[nodiscard]] std::size_t carattere(std::string_view dove) const;

    const project::DatiProgetto& dati_;
    std::string_view opzione_;
    std::optional<DifettoPiano> difetto_;
};

/// The parts between the signs, one more than there are signs.
[[nodiscard]] std::vector<std::string_view> divisi(std::string_view testo, char segno);

/// Each text as `leggi` reads it, or the first fault.
template <class T>
[[nodiscard]] Letto<std::vector<T>> tutti(const project::DatiProgetto& dati,
                                          std::span<const std::string> testi,
                                          Letto<T> (*leggi)(const project::DatiProgetto&,
                                                            std::string_view)) {
    std::vector<T> letti;
    for (const std::string& testo : testi) {
        auto letto = leggi(dati, testo);
        if (auto* difetto = std::get_if<DifettoPiano>(&letto)) return std::move(*difetto);
        letti.push_back(std::get<T>(std::move(letto)));
    }
    return letti;
}

}  // namespace korven::studies
