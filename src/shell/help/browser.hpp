#pragma once

#include <QTextBrowser>
#include <functional>
#include <string>
#include <vector>

#include "help/pages.hpp"

namespace korven::shell {

/// Shows the pages of a help, each under the address "guida:/NAME", with a history of its own and
/// letters that can be made larger.
class VistaGuida : public QTextBrowser {
 public:
    /// @param guida  not owned; must outlive the browser
    VistaGuida(const help::Guida& guida, QWidget* padre);

    /// Goes to a page, and in it to a place if it has that.
    void vai(const help::PaginaGuida& pagina, const std::string& ancora = {});

    /// The page of an address; nullptr if it is none.
    [[nodiscard]] const help::PaginaGuida* paginaDi(const QUrl& indirizzo) const;

    /// Marks in the page shown the words of a search and the heading of a place.
    void evidenzia(const std::vector<std::string>& parole, const QString& ancora = {});

    /// Larger or smaller letters, within bounds; `passi` counts from the size of the desktop.
    void ingrandisci(int passi);
    [[nodiscard]] int ingrandimento() const { return ingrandimento_; }

    /// Told of a link to a document of the program ("README", "docs/theory"); the page stays.
    std::function<void(const std::string& nome)> documento;

 protected:
    void doSetSource(const QUrl& indirizzo, QTextDocument::ResourceType tipo) override;
    QVariant loadResource(int tipo, const QUrl& indirizzo) override;
    void wheelEvent(QWheelEvent* evento) override;

 private:
    const help::Guida& guida_;
    int ingrandimento_ = 0;
};

}  // namespace korven::shell
