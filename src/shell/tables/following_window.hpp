#pragma once

#include <initializer_list>
#include <vector>

#include "shell/companions/companion_window.hpp"

class QLabel;
class QTimer;
class QVBoxLayout;

namespace korven::shell {

class PagineProspetti;
class VistaProspetto;
class VitaProgetto;

/// A window beside the main form with sentences above pages of tables, of what is computed beside
/// the forms while the project is typed. One question is computed at a time; what is still being
/// computed leaves what was known before in grey. Nothing is computed while it is hidden.
class FinestraProspetti : public FinestraCompagna {
    Q_OBJECT
 public:
    /// Looks at the project, once typing rests.
    void guarda();

 protected:
    FinestraProspetti(QWidget& principale, VitaProgetto& vita, const QString& nome,
                      const QString& titolo);

    /// Looks at the project.
    /// @return the number of the question that is to be computed; 0: there is none
    virtual int osserva() = 0;
    /// Has that question computed.
    virtual void chiedi() = 0;
    /// Gives the question up that is being computed.
    virtual void lascia() = 0;
    /// Shows what is known now.
    virtual void mostra() = 0;
    /// The window has come up.
    virtual void appare() { guardaOra(); }
    /// The user is back from another window or program, which may have written files.
    virtual void torna() { guarda(); }

    /// Looks at the project now, asks, and shows.
    void guardaOra();
    /// Shows what an answer has brought.
    void risposto();

    // The window from above: what chooses, the sentences, the pages, a note, the buttons.
    void comincia(std::initializer_list<QWidget*> scelte);
    /// @param nome, titolo  of a page with a table, as in `PagineProspetti`
    VistaProspetto* prospetto(const char* nome, const char* titolo);
    void finisci(QWidget* pulsanti);

    /// Greys the tables and the sentences.
    void sospendi(bool sospeso);
    /// Says why there is nothing to be shown.
    void svuota(const QString& perche);
    /// What is said while something is being computed, translated.
    [[nodiscard]] static QString inCorso();

    [[nodiscard]] VitaProgetto& vita() const { return vita_; }
    // Of `comincia` and `finisci`.
    [[nodiscard]] PagineProspetti& pagine() const { return *pagine_; }
    [[nodiscard]] QLabel& frasi() const { return *frasi_; }
    [[nodiscard]] QLabel& nota() const { return *nota_; }

    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    void changeEvent(QEvent* evento) override;

 private:
    void ferma();

    VitaProgetto& vita_;
    int chiesta_ = 0;  // the question in progress; 0: none
    QTimer* riposo_;
    QVBoxLayout* colonna_;
    PagineProspetti* pagine_ = nullptr;
    QLabel *frasi_ = nullptr, *nota_ = nullptr;
    std::vector<VistaProspetto*> prospetti_;
};

}  // namespace korven::shell
