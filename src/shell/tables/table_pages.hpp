#pragma once

#include <QTabWidget>

class QPushButton;

namespace korven::shell {

class FilaPulsanti;
class VistaProspetto;

/// The pages of a window of results: tables, and what else is a page of its own.
class PagineProspetti : public QTabWidget {
 public:
    /// The pages bear the title of the window that they stand in.
    explicit PagineProspetti(QWidget* padre);

    /// Adds a page with a table.
    /// @param nome    object name of the table
    /// @param titolo  of the page, an Italian key
    VistaProspetto* aggiungi(const char* nome, const char* titolo);
    /// Adds a button that copies the table of the page shown; on a page without one it is grey.
    void aggiungiCopia(FilaPulsanti& fila);

 private:
    /// Of the page shown; nullptr where it has none.
    [[nodiscard]] VistaProspetto* tabella() const;
};

}  // namespace korven::shell
