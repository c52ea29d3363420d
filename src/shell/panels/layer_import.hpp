#pragma once

#include <QDialog>

#include "exchange/import_rows.hpp"
#include "exchange/layer_file.hpp"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;

namespace korven::shell {

/// Shows the layers of a file as they will stand in the table, with the choices that there are:
/// of a ground investigation the hole and where the wall's head is there; whether values of the
/// table are kept; whether descriptions get a code. The room `exchange` has the rules.
///
/// Controls by name: `foro`, `modo`, `testa`, `tieniValori`, `mettiCodice`, `strati` the table,
/// `messaggi`, `importa`, `annulla`. Nothing can be taken while there is a fault.
class ImportaStrati : public QDialog {
 public:
    /// @param presenti  the rows of the table that they will replace
    ImportaStrati(exchange::FileStrati file, exchange::RigheStrati presenti, const QString& nome,
                  QWidget* padre);

    /// The rows as they are shown.
    [[nodiscard]] const exchange::RigheStrati& righe() const { return importo_.righe; }

    void done(int esito) override;

 private:
    QWidget* fareScelte();
    QWidget* fareForo();
    QWidget* fareTabella();
    void leggi();
    void prepara();
    void mostraRighe();
    void mostraMessaggi();

    exchange::FileStrati file_;
    exchange::RigheStrati presenti_;
    exchange::StratiLetti letti_;
    exchange::RigheImporto importo_;
    QComboBox* foro_ = nullptr;
    QComboBox* modo_ = nullptr;
    QLineEdit* testa_ = nullptr;
    QCheckBox* tieniValori_ = nullptr;
    QCheckBox* mettiCodice_ = nullptr;
    QTableWidget* tabella_ = nullptr;
    QPlainTextEdit* messaggi_ = nullptr;
    QPushButton* importa_ = nullptr;
};

}  // namespace korven::shell
