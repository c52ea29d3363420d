#pragma once

#include <string_view>

namespace korven::base {

enum class Icona { nessuna, informazione, avviso, domanda, stop };
enum class Risposta { si, no, annulla };
enum class Pulsanti { siNo, siNoAnnulla };
enum class Puntatore { normale, clessidra };

/// What the program may tell or ask its user. All texts are UTF-8, already translated.
/// The desktop opens boxes, the command line writes to standard error, a test reads from a script.
class Dialogo {
 public:
    virtual ~Dialogo() = default;
    /// Shows a text with an OK button and returns when it has been seen.
    virtual void messaggio(std::string_view testo, std::string_view titolo, Icona icona) = 0;
    /// Returns `annulla` when nobody can answer (no user, window closed).
    virtual Risposta domanda(std::string_view testo, std::string_view titolo, Pulsanti pulsanti,
                             Icona icona) = 0;
    /// The same with what helps to answer, shown apart from the question below it. A port without
    /// room for it asks the question alone.
    virtual Risposta domandaInformata(std::string_view testo, std::string_view titolo,
                                      Pulsanti pulsanti, Icona icona,
                                      std::string_view /*informazione*/) {
        return domanda(testo, titolo, pulsanti, icona);
    }
    /// Shape of the pointer; of no meaning where there is none.
    virtual void puntatore(Puntatore forma) = 0;
};

}  // namespace korven::base
