#pragma once

#include <QGroupBox>

#include "project/project_data.hpp"

namespace korven::shell {

/// One of two states of a project that lie side by side: what it is, since when, in which file, and
/// its wall as a picture.
class StatoProgetto : public QGroupBox {
 public:
    struct Parole {
        QString nome;    ///< object name
        QString titolo;  ///< what it is
        QString quando;  ///< a whole line
        QString file;    ///< path
    };
    StatoProgetto(const Parole& parole, const project::DatiProgetto& dati, QWidget* padre);
};

}  // namespace korven::shell
