#include "safety/diagnosis.hpp"

// Apart from the diagnosis itself: who reads the rows of a study knows the words, and computes
// nothing.

namespace korven::safety {

std::string_view parola(Causa causa) {
    switch (causa) {
        case Causa::eseguito:
            return "eseguito";
        case Causa::rifiutato:
            return "rifiutato";
        case Causa::meccanismo:
            return "meccanismo";
        case Causa::oscilla:
            return "oscilla";
        case Causa::fermato:
            return "fermato";
        case Causa::nonDefinito:
            return "non_definito";
        case Causa::nessunNumero:
            return "nessun_numero";
    }
    return {};
}

}  // namespace korven::safety
