#pragma once

#include <QDialog>
#include <string>

namespace korven::shell {

/// The about box `INFORMAZIONI`.
class Informazioni : public QDialog {
    Q_OBJECT
 public:
    /// @param fileCorrente  line of the open project, with its first "&" doubled; empty if none
    Informazioni(const std::string& fileCorrente, QWidget* genitore);
};

}  // namespace korven::shell
