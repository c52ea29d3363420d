#pragma once

#include <QWidget>

#include "base/dialogo.hpp"
#include "shell/section/definej.hpp"
#include "tables/section_table.hpp"

class QLabel;

namespace korven::shell {

class VistaDominio;
class VistaProspetto;
class VitaProgetto;

/// The panel beside the section: stiffness, checks and N-M domain of what is typed, and the
/// catalogue. Numbers follow each key, the domain follows when typing rests; meanwhile it is the
/// one before, with the stages as they are now.
///
/// Controls by name: `valori`, `verifiche`, `origine`, `quadri` with `dominio` and
/// its table `fasi`, `catalogo`, `aggiungi`.
class PannelloSezione : public QWidget {
    Q_OBJECT
 public:
    /// @param forma  of the section; it, `vita` and `dialogo` must outlive the panel
    PannelloSezione(DefinEJ& forma, VitaProgetto& vita, base::Dialogo& dialogo);

 private:
    void mostra();
    void scegliProfilo();
    void aggiungiProfilo();

    DefinEJ& forma_;
    VitaProgetto& vita_;
    base::Dialogo& dialogo_;
    QLabel* valori_;
    VistaProspetto *verifiche_, *fasi_;
    QLabel* origine_;
    VistaDominio* dominio_;
};

/// The panel for `collegaSezione`.
[[nodiscard]] PannelloAccanto pannelloSezione(VitaProgetto& vita, base::Dialogo& dialogo);

}  // namespace korven::shell
