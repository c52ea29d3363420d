#pragma once

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>

#include "base/folders/program_folder.hpp"
#include "base/translated_texts.hpp"

namespace korven::test {

/// Does something to the modal window that the next call opens, as its user would; `fatto` tells
/// whether there was one.
template <class Finestra>
class AllaProssimaFinestra {
 public:
    explicit AllaProssimaFinestra(std::function<void(Finestra&)> azione) {
        QObject::connect(&orologio_, &QTimer::timeout, [this, azione] {
            auto* finestra = qobject_cast<Finestra*>(QApplication::activeModalWidget());
            if (finestra == nullptr || !finestra->isVisible()) return;
            orologio_.stop();
            fatto = true;
            azione(*finestra);
        });
        orologio_.start(5);
    }
    bool fatto = false;

 private:
    QTimer orologio_;
};

/// The texts as they are delivered, in one language; Italian again at the end.
class TestiConsegnati {
 public:
    explicit TestiConsegnati(int lingua) {
        const std::string cartella = KORVEN_PROGRAM_FOLDER;
        base::caricaTesti(cartella + "/texts01.txt", cartella + "/texts06.txt",
                          cartella + "/texts32.txt");
        base::impostaLingua(lingua);
    }
    TestiConsegnati(const TestiConsegnati&) = delete;
    TestiConsegnati& operator=(const TestiConsegnati&) = delete;
    ~TestiConsegnati() { base::impostaLingua(1); }
};

}  // namespace korven::test
