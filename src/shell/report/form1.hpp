#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <string_view>
#include <vector>

#include "markup/character_widths.hpp"
#include "markup/preview_renderer.hpp"
#include "shell/report/preview_lines.hpp"

class QListView;

namespace korven::shell {

/// The preview: the report as the lines of the list `List1`, in a font whose characters are all of
/// one width, so that blanks and points bring columns into line. It keeps what it has shown until
/// it is closed; a report shown before that is added at the end.
///
/// A double click on the list and Esc close it, Ctrl+C copies the selected lines.
class Form1 : public QWidget, public markup::PreviewList {
    Q_OBJECT
 public:
    explicit Form1(QWidget* padre = nullptr);

    /// Shows a mark-up file after what is there. Does nothing if there is no such file.
    /// @throws base::ErroreFile if the mark-up is broken; the lines before are shown
    void mostra(const std::string& relazione);

    double windowWidth() override;
    double textWidth(std::string_view testo) override;
    void addLine(std::string_view testo) override;

 protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

 private:
    void apri();
    void consegna();
    void copia() const;
    [[nodiscard]] double puntiPerPixel() const;

    QListView* elenco_;
    RigheAnteprima righe_;
    std::vector<QString> nuove_;  // of the report that is being read
    std::unique_ptr<markup::CharacterWidths> larghezze_;
};

}  // namespace korven::shell
