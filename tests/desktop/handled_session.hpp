#pragma once

#include <QPrinter>
#include <memory>
#include <optional>
#include <string>

#include "commands/document_ports.hpp"
#include "desktop/live_check.hpp"
#include "desktop/random_hands.hpp"
#include "desktop/session.hpp"
#include "shell/application.hpp"
#include "shell/dialogo_qt.hpp"

namespace korven::test {

/// The desktop program in the hands of chance, from its first window to its last: sessions one
/// after the other until so many events have been served. After every so many events it looks
/// whether all is as it should be (`live_check`), and takes the open form back to its beginning and
/// forth again.
class SessioneAManiLibere {
 public:
    /// @param cartella  holds the program folder "programma" and the projects "prova0.kvd"... in
    ///                  "lavori"; nothing outside of it is written
    /// @param registro  file that takes each event before it is sent
    SessioneAManiLibere(int seme, int eventi, std::string cartella, const std::string& registro);
    ~SessioneAManiLibere();

    /// @return what was not as it should be; empty if nothing
    std::string corri(shell::Applicazione& applicazione);

    [[nodiscard]] const std::map<std::string, int>& visite() const { return mani_.visite(); }
    [[nodiscard]] int sessioni() const { return sessioni_; }
    [[nodiscard]] int ritorni() const { return ritorni_; }
    [[nodiscard]] int confronti() const { return confronti_; }

 private:
    /// Names of projects by chance.
    class Nomi : public commands::DialogoFile {
     public:
        explicit Nomi(SessioneAManiLibere& di) : di_(di) {}
        std::string apri(const std::string& attuale) override;
        std::string nuovo(const std::string& proposta) override;
        std::optional<std::string> salva(const std::string& proposta) override;

     private:
        std::string uno();
        SessioneAManiLibere& di_;
    };
    /// A form on its way to its beginning and back.
    struct Ritorno {
        QPointer<QWidget> forma;
        ContenutoForma primaDiTutto;
        std::optional<ContenutoForma> allaFine;  // of the steps done again
        ContenutoForma ultimo;
        bool avanti = false;  // redo
        int passi = 0, fermi = 0;
    };

    void avvia();
    void prossimo();
    void passo();
    void guarda();
    void ricorda();
    void cominciaRitorno();
    void torna();
    void fineDiUnVerso(const ContenutoForma& ora);
    void finisci();
    void annota(const std::string& riga);
    void guasto(const std::string& cosa);

    int seme_, eventi_;
    std::string cartella_;
    int registro_;
    Nomi nomi_{*this};
    shell::DialogoQt dialogo_;
    QPrinter stampante_;
    ManiACaso mani_;
    std::unique_ptr<desktop::Sessione> sessione_;
    QPointer<QWidget> forma_;
    ContenutoForma iniziale_;
    std::optional<Ritorno> ritorno_;
    int fatti_ = 0, uscite_ = 0;
    int sessioni_ = 0, ritorni_ = 0, confronti_ = 0;
    std::string guasto_;
};

}  // namespace korven::test
