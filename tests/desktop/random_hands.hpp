#pragma once

#include <QEvent>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QFileDialog;
class QWindow;

namespace korven::test {

/// Chance that comes back: what is drawn for one event does not depend on how many numbers the
/// events before it took. Of a list the same name wins whatever else stands in it, so that a window
/// that comes a little later changes few events of a seed.
class Caso {
 public:
    explicit Caso(std::uint64_t seme) : seme_(seme) {}

    /// The event whose numbers are drawn from now on.
    void evento(int numero) {
        numero_ = static_cast<std::uint64_t>(numero);
        tiro_ = 0;
    }
    /// 0 to n - 1.
    int sotto(int n);
    bool unaSu(int n) { return sotto(n) == 0; }
    /// The place of the name that wins. @pre there is one
    std::size_t scelto(const std::vector<std::string>& nomi);

 private:
    std::uint64_t mescola(std::uint64_t valore) const;

    std::uint64_t seme_, numero_ = 0, tiro_ = 0;
};

/// Hands on keyboard and mouse that know nothing of the program: they press keys, click, drag and
/// turn the wheel in whatever window is open, by the way that the events of a desktop take. Dialogs
/// for files get a name of the folder of the projects or are left, so that nothing else is touched.
class ManiACaso {
 public:
    /// @param cartella  the one folder in which files may be named
    /// @param annota    told each event in words before it is sent
    ManiACaso(std::uint64_t seme, std::string cartella,
              std::function<void(const std::string&)> annota);

    /// Sends one event.
    void muovi(int numero);

    /// A key to the window that has the keyboard.
    void premi(int tasto, Qt::KeyboardModifiers con = {}, const QString& testo = {});

    /// Does what closes the uppermost window: of menus, boxes and forms, then of the windows beside
    /// the main form. @return false when nothing but the main form is left
    bool chiudiUna(const QWidget& principale, int numero);

    /// How often events went to a window, by class and name.
    [[nodiscard]] const std::map<std::string, int>& visite() const { return visite_; }

    Caso caso;

 private:
    void tasti();
    void menu();
    void topo();
    void trascina(QWidget& dove);
    void rotella(QWidget& dove);
    void file(QFileDialog& dialogo);
    void misura(QWidget& finestra);
    void appunti();
    void clic(QWidget& dove, QPoint punto, Qt::MouseButton bottone, int volte);
    void topoVa(QPointer<QWindow> finestra, QPoint punto, QEvent::Type tipo,
                Qt::MouseButton bottone, Qt::MouseButtons premuti);
    [[nodiscard]] QWidget* finestra();
    [[nodiscard]] QWidget* pezzo(QWidget& finestra);

    std::string cartella_;
    std::function<void(const std::string&)> annota_;
    std::map<std::string, int> visite_;
    int ora_ = 0;  // [ms] as the mouse tells it
};

/// The class and name of a widget, and those of its window.
[[nodiscard]] std::string nomeDi(const QWidget& pezzo);

}  // namespace korven::test
