#include "shell/live/background_results.hpp"

#include <utility>

namespace korven::shell {

RisultatiInDisparte::RisultatiInDisparte(
    std::function<void(int numero, live::RisultatiLenti)> risponde, QObject* padre)
    : LavoroInDisparte(
          [](const Domanda& domanda, const std::atomic<bool>&) {
              return live::calcolaLenti(domanda);
          },
          [risponde = std::move(risponde)](const Domanda& domanda, live::RisultatiLenti trovati) {
              risponde(domanda.numero, std::move(trovati));
          },
          padre) {}

}  // namespace korven::shell
