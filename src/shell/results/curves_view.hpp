#pragma once

#include <QWidget>

#include "tables/curves.hpp"

namespace korven::shell {

/// The four curves of a stage side by side over the depth, with the values at one node. The tables
/// beside it hold the same numbers.
///
/// Keys: up and down go from node to node, Home and End to the ends of the wall, Page Up and Page
/// Down choose the stage; the mouse reads the node that is level with it.
class VistaCurve : public QWidget {
    Q_OBJECT
 public:
    explicit VistaCurve(QWidget* padre);

    /// The node that is read stays at its depth.
    /// @param scavo  depth of the excavation [m], marked by a line
    void mostra(tables::CurveMostrate curve, double scavo);
    /// What is read, in one line; empty where there are no curves.
    [[nodiscard]] QString letto() const;

    [[nodiscard]] QSize minimumSizeHint() const override { return {360, 200}; }
    [[nodiscard]] QSize sizeHint() const override { return {820, 460}; }

 signals:
    void letta(const QString& testo);
    /// The next stage is asked for, or the one before: 1, -1.
    void faseChiesta(int passo);

 protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void focusInEvent(QFocusEvent* evento) override;
    void focusOutEvent(QFocusEvent* evento) override;

 private:
    [[nodiscard]] QRectF quadro() const;
    [[nodiscard]] double y(double z) const;
    [[nodiscard]] double profondita() const;
    void leggi(std::size_t nodo);
    void asseProfondita(QPainter& p) const;
    void pannello(QPainter& p, const tables::CurvaMostrata& curva, const QRectF& dove) const;

    tables::CurveMostrate curve_;
    double scavo_ = 0;
    std::size_t nodo_ = 0;
};

}  // namespace korven::shell
