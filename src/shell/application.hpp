#pragma once

#include <QApplication>
#include <exception>

namespace korven::shell {

/// The application, which carries an error out of the event loop to `main`: Qt lets none pass
/// through its handlers, so it is kept here and all loops are ended.
class Applicazione : public QApplication {
 public:
    /// Screen readers are told the roles of accessible_roles.hpp from now on.
    Applicazione(int& argc, char** argv);

    bool notify(QObject* destinatario, QEvent* evento) override;

    /// Serves events until the program ends. @throws what a handler has thrown
    int gira();

 private:
    std::exception_ptr errore_;
};

}  // namespace korven::shell
