#pragma once

#include <QDialog>
#include <array>
#include <optional>
#include <string>

#include "base/dialogo.hpp"
#include "plot/colour.hpp"
#include "plot/configuration_editor.hpp"

class QLineEdit;
class QListWidget;
class QRadioButton;

namespace korven::shell {

class StrisciaAiuto;

/// The two dialogs that open from the form of the pens.
class PorteEditacfg {
 public:
    virtual ~PorteEditacfg() = default;
    /// Nothing when the chooser was cancelled.
    virtual std::optional<plot::Colore> scegliColore(QWidget* padre, plot::Colore presente) = 0;
    /// Asks for a line of text; nothing when cancelled.
    virtual std::optional<std::string> chiediTesto(QWidget* padre, const std::string& titolo,
                                                   const std::string& domanda,
                                                   const std::string& proposta) = 0;
};

/// The colour chooser and the input box of the desktop.
class DialoghiEditacfg : public PorteEditacfg {
 public:
    std::optional<plot::Colore> scegliColore(QWidget* padre, plot::Colore presente) override;
    std::optional<std::string> chiediTesto(QWidget* padre, const std::string& titolo,
                                           const std::string& domanda,
                                           const std::string& proposta) override;
};

/// The form of pens, colours and margins of the drawings. Its rules are those of
/// `plot::ModelloPenne`; it edits the configuration file of the language in force. The strip
/// `Labelhelp` explains the number in use.
class Editacfg : public QDialog {
 public:
    /// @param porte    not owned, like the dialog
    /// @param dialogo  told which number lies outside its limits, or that the file can't be
    ///                 written; the form then stays open
    /// @throws base::ErroreFile when the configuration file is missing or broken
    Editacfg(PorteEditacfg& porte, base::Dialogo& dialogo, QWidget* padre);

 protected:
    bool eventFilter(QObject* controllo, QEvent* evento) override;

 private:
    QWidget* fareTutto();
    QWidget* farePenne();
    QWidget* fareColori();
    QWidget* fareCaratteri();
    QWidget* fareMargini();
    QWidget* fareStriscia();
    void segui(QLineEdit* campo);
    void spiega(const QObject* controllo);
    bool segnalaFuori();
    void mostraPenna(const plot::PennaConfigurata& penna);
    void dipingiColore(int indice);
    void cambiaValore(int indice);
    void conferma();

    PorteEditacfg& porte_;
    base::Dialogo& dialogo_;
    plot::ModelloPenne modello_;
    QListWidget* penne_ = nullptr;                                // List1
    std::array<QRadioButton*, plot::numeroColori + 1> colori_{};  // Option1
    QLineEdit* spessore_ = nullptr;                               // Text1
    QListWidget* caratteri_ = nullptr;                            // List2
    QLineEdit* sinistro_ = nullptr;                               // Text2
    QLineEdit* superiore_ = nullptr;                              // Text3
    StrisciaAiuto* aiuto_ = nullptr;                              // Labelhelp
};

}  // namespace korven::shell
