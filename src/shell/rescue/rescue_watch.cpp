#include "shell/rescue/rescue_watch.hpp"

#include <QTimer>
#include <utility>

namespace korven::shell {

void sorvegliaLavoro(QObject& padre, std::function<void()> guarda, int ogni) {
    auto* orologio = new QTimer(&padre);
    QObject::connect(orologio, &QTimer::timeout, &padre, std::move(guarda));
    orologio->start(ogni);
}

}  // namespace korven::shell
