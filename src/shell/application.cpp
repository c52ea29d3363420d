#include "shell/application.hpp"

#include <utility>

#include "shell/accessible_roles.hpp"
#include "shell/visible_controls.hpp"

namespace korven::shell {

Applicazione::Applicazione(int& argc, char** argv) : QApplication(argc, argv) {
    insegnaRuoli();
    StileVisibile::metti();
}

bool Applicazione::notify(QObject* destinatario, QEvent* evento) {
    try {
        return QApplication::notify(destinatario, evento);
    } catch (const std::exception&) {
        if (!errore_) errore_ = std::current_exception();
        exit(1);
        return true;
    }
}

int Applicazione::gira() {
    const int codice = exec();
    if (errore_) std::rethrow_exception(std::exchange(errore_, nullptr));
    return codice;
}

}  // namespace korven::shell
