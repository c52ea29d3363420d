#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace korven::masks {

/// What the status line or the strip says of a step that was taken back or done again: "Annullato:
/// " and its name; that there was none to an empty one.
[[nodiscard]] std::string annullato(const std::string& nome);
[[nodiscard]] std::string ripetuto(const std::string& nome);

/// A caption without the unit in brackets behind it.
[[nodiscard]] std::string senzaUnita(const std::string& didascalia);

/// The name of a step that typed into a field: "campo Lunghezza diaframma".
/// @param didascalia  of the field; its unit is left out
[[nodiscard]] std::string passoCampo(const std::string& didascalia);

/// What can be taken back, and done again. Of each step it knows what stood before and after at
/// each place that the step changed, so that taking back is exact whatever was done.
///
/// What is typed into one place is one step, from entering the place until it is left: it stays
/// open until then. A new step forgets those that were taken back; the oldest of more than
/// `massimo` is forgotten too.
///
/// @tparam Posto   where something changes: a cell, a field; has an operator ==
/// @tparam Valore  what stands there; has an operator ==
template <class Posto, class Valore>
class Storia {
 public:
    /// Enough for every cell of a table of layers; a table holds 700 of them at most, so that the
    /// memory stays below 50 MB even if each step had moved all its rows.
    static constexpr std::size_t massimo = 500;

    struct Cambio {
        Posto posto;
        Valore prima, dopo;
    };
    struct Passo {
        std::string nome;  ///< what is taken back, as it is shown
        Posto cursore;     ///< where the cursor goes
        std::vector<Cambio> cambi;
    };

    /// A place that is typed into held `prima` and holds `dopo` now. It belongs to the open step if
    /// that one has the same place; typed back to what it was, nothing is left of it.
    void scritto(const std::string& nome, const Posto& posto, Valore prima, Valore dopo) {
        if (prima == dopo) return;
        detto_.clear();
        if (!aperto_ || !(aperto_->cursore == posto)) {
            chiudi();
            aperto_ = Passo{nome, posto, {{posto, std::move(prima), std::move(dopo)}}};
            return;
        }
        Cambio& cambio = aperto_->cambi.front();
        cambio.dopo = std::move(dopo);
        if (cambio.prima == cambio.dopo) aperto_.reset();
    }

    /// The place with the cursor is left, or what was typed is to be a step by itself.
    void chiudi() {
        detto_.clear();
        if (aperto_) aggiungi(*std::exchange(aperto_, std::nullopt));
    }

    /// A step of its own; one without changes is none.
    void fatto(Passo passo) {
        chiudi();
        if (!passo.cambi.empty()) aggiungi(std::move(passo));
    }

    [[nodiscard]] bool annullabile() const { return aperto_ || fatti_ > 0; }
    [[nodiscard]] bool ripetibile() const { return !aperto_ && fatti_ < passi_.size(); }

    /// Takes the last step back, or does the last one that was taken back again.
    /// @param metti  called with each place of the step and what it holds from now on
    /// @return where the cursor goes; nothing when there was no step
    template <class Metti>
    std::optional<Posto> annulla(Metti metti) {
        chiudi();
        const Passo* passo = fatti_ > 0 ? &passi_[--fatti_] : nullptr;
        detto_ = annullato(passo != nullptr ? passo->nome : std::string());
        if (passo == nullptr) return {};
        for (const Cambio& cambio : passo->cambi) metti(cambio.posto, cambio.prima);
        return passo->cursore;
    }
    template <class Metti>
    std::optional<Posto> ripeti(Metti metti) {
        chiudi();
        const Passo* passo = fatti_ < passi_.size() ? &passi_[fatti_++] : nullptr;
        detto_ = ripetuto(passo != nullptr ? passo->nome : std::string());
        if (passo == nullptr) return {};
        for (const Cambio& cambio : passo->cambi) metti(cambio.posto, cambio.dopo);
        return passo->cursore;
    }

    /// The names of the steps that would be taken back and done again; empty without one.
    [[nodiscard]] std::string daAnnullare() const {
        if (aperto_) return aperto_->nome;
        return fatti_ > 0 ? passi_[fatti_ - 1].nome : std::string();
    }
    [[nodiscard]] std::string daRipetere() const {
        return ripetibile() ? passi_[fatti_].nome : std::string();
    }

    /// What was taken back or done again, until something else is done; empty otherwise.
    [[nodiscard]] const std::string& detto() const { return detto_; }

    void taci() { detto_.clear(); }

    void svuota() { *this = {}; }

 private:
    void aggiungi(Passo passo) {
        passi_.erase(passi_.begin() + static_cast<std::ptrdiff_t>(fatti_), passi_.end());
        passi_.push_back(std::move(passo));
        if (passi_.size() > massimo) passi_.pop_front();
        fatti_ = passi_.size();
    }

    std::deque<Passo> passi_;
    std::size_t fatti_ = 0;  // of them; those behind were taken back
    std::optional<Passo> aperto_;
    std::string detto_;
};

}  // namespace korven::masks
