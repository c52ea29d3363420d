#pragma once

#include "base/dialogo.hpp"

namespace korven::base {

/// Gives the pointer one form for as long as it lives, and the other one at its end, whatever ends
/// it: the hourglass while the program works, the normal one while it waits for its user in the
/// midst of work.
class GuardiaPuntatore {
 public:
    /// @param dialogo  must outlive the guard
    explicit GuardiaPuntatore(Dialogo& dialogo, Puntatore durante = Puntatore::clessidra)
        : dialogo_(dialogo), durante_(durante) {
        rimetti();
    }
    GuardiaPuntatore(const GuardiaPuntatore&) = delete;
    GuardiaPuntatore& operator=(const GuardiaPuntatore&) = delete;
    ~GuardiaPuntatore() {
        dialogo_.puntatore(durante_ == Puntatore::clessidra ? Puntatore::normale
                                                            : Puntatore::clessidra);
    }

    /// Gives it its form again, after another guard has ended.
    void rimetti() { dialogo_.puntatore(durante_); }

 private:
    Dialogo& dialogo_;
    Puntatore durante_;
};

}  // namespace korven::base
