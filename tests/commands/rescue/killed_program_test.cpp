#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <random>

#include "base/folders/leftovers.hpp"
#include "commands/rescue/found_rescues.hpp"
#include "support/rescue_setup.hpp"

// What a program that is killed while it writes its rescue file leaves: the earlier state or the
// new one, whole, and nothing else that the next opening does not sweep away.

namespace korven::commands {
namespace {

// The n-th state of the project: the same number at its beginning, in its middle and at its end.
void stato(int n) {
    project::Progetto.profStrato[1] = n;
    project::Progetto.titoli[1] = std::to_string(n);
    project::Progetto.sforzoNormale = n;
}

// The disk of the machine, on which the program dies at a call of the test's choice: before it, or
// after it, and in the middle of the bytes.
class DiscoMortale : public base::Disco {
 private:
    static const base::Disco& vero() { return base::discoDiSistema(); }
    static void fine() { ::kill(::getpid(), SIGKILL); }
    template <class Chiamata>
    auto muori(const Chiamata& chiamata) const {
        if (volta_++ == ultima_) fine();
        const auto esito = chiamata();
        if (volta_++ == ultima_) fine();
        return esito;
    }

 public:
    explicit DiscoMortale(int ultima) : ultima_(ultima) {}

    int apri(const std::string& percorso, int modo, mode_t permessi) const override {
        return muori([&] { return vero().apri(percorso, modo, permessi); });
    }
    int creaProvvisorio(std::string& modello) const override {
        return muori([&] { return vero().creaProvvisorio(modello); });
    }
    ssize_t scrivi(int file, std::string_view byte) const override {
        const auto meta = byte.substr(0, (byte.size() + 1) / 2);
        return muori([&] { return vero().scrivi(file, meta); });
    }
    bool accorcia(int file, off_t lunghezza) const override {
        return muori([&] { return vero().accorcia(file, lunghezza); });
    }
    bool versa(int file) const override {
        return muori([&] { return vero().versa(file); });
    }
    bool chiudi(int file) const override {
        return muori([&] { return vero().chiudi(file); });
    }
    bool rinomina(const std::string& da, const std::string& a) const override {
        return muori([&] { return vero().rinomina(da, a); });
    }

 private:
    int ultima_;
    mutable int volta_ = 0;
};

class ProgrammaUcciso : public ::testing::Test {
 protected:
    ProgrammaUcciso() {
        scritti = static_cast<int*>(::mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE,
                                           MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    }
    ~ProgrammaUcciso() override { ::munmap(scritti, sizeof(int)); }

    // Another program, which ends by itself or is killed after a time [us]; it notes in `scritti`
    // the last state that it has written.
    // @return whether it was killed
    bool programma(const std::function<void()>& lavoro, int dopo = -1) {
        *scritti = 0;
        const pid_t figlio = ::fork();
        if (figlio == 0) {
            lavoro();
            ::_exit(0);
        }
        if (dopo >= 0) {
            ::usleep(static_cast<useconds_t>(dopo));
            ::kill(figlio, SIGKILL);
        }
        int esito = 0;
        ::waitpid(figlio, &esito, 0);
        return WIFSIGNALED(esito);
    }
    void scriviStato(RecuperoTenuto& tenuto, int n, const base::Disco& disco) const {
        stato(n);
        if (tenuto.guarda(disco).empty()) *scritti = n;
    }

    // The state that the next opening finds; 0 if none. Leaves the folder empty.
    int trovato() {
        base::togliProvvisori(ambiente.lavori.percorso());
        int n = 0;
        {
            auto trovati = trovaRecuperi(ambiente.muro);
            EXPECT_LE(trovati.size(), 1u);
            EXPECT_EQ(ambiente.nomi().size(), trovati.size());
            for (auto& lavoro : trovati) {
                n = static_cast<int>(lavoro.dati.profStrato[1]);
                EXPECT_EQ(lavoro.dati.titoli[1], std::to_string(n));
                EXPECT_EQ(lavoro.dati.sforzoNormale, n);
                lavoro.file.togli();
            }
        }
        EXPECT_TRUE(std::filesystem::is_empty(ambiente.lavori.percorso()));
        return n;
    }

    test::AmbienteRecupero ambiente;
    int* scritti = nullptr;
};

TEST_F(ProgrammaUcciso, LeavesTheEarlierStateOrTheNewOneWhereverItDies) {
    int morti = 0, vecchi = 0, nuovi = 0;
    bool ucciso = true;
    for (int ultima = 0; ucciso; ++ultima) {
        ucciso = programma([&] {
            RecuperoTenuto tenuto;
            scriviStato(tenuto, 101, base::discoDiSistema());
            scriviStato(tenuto, 102, DiscoMortale(ultima));
        });
        EXPECT_EQ(*scritti, ucciso ? 101 : 102) << ultima;
        const int rimasto = trovato();
        EXPECT_TRUE(rimasto == 102 || (ucciso && rimasto == 101)) << ultima << ": " << rimasto;
        morti += ucciso ? 1 : 0;
        vecchi += rimasto == 101 ? 1 : 0;
        nuovi += rimasto == 102 ? 1 : 0;
    }
    // To make, write in pieces, flush, name; then the folder: each a place to die before and after.
    EXPECT_GT(morti, 16);
    EXPECT_GT(vecchi, 4);
    EXPECT_GT(nuovi, 2);
}

TEST_F(ProgrammaUcciso, LeavesTheFirstStateWholeOrNothing) {
    bool ucciso = true;
    int niente = 0;
    for (int ultima = 0; ucciso; ++ultima) {
        ucciso = programma([&] {
            RecuperoTenuto tenuto;
            scriviStato(tenuto, 101, DiscoMortale(ultima));
        });
        const int rimasto = trovato();
        EXPECT_TRUE(rimasto == 101 || (ucciso && rimasto == 0)) << ultima << ": " << rimasto;
        niente += rimasto == 0 ? 1 : 0;
    }
    EXPECT_GT(niente, 4);
}

// At any moment, not at a call alone. Seeded; how far each gets is the machine's.
TEST_F(ProgrammaUcciso, LosesAtMostTheStateThatItIsWriting) {
    std::mt19937 caso(12);
    std::uniform_int_distribution<int> quando(0, 5000);
    for (int i = 0; i < 100; ++i) {
        const int dopo = quando(caso);
        programma(
            [&] {
                RecuperoTenuto tenuto;
                for (int n = 101;; ++n) scriviStato(tenuto, n, base::discoDiSistema());
            },
            dopo);
        const int rimasto = trovato(), scritto = *scritti;
        EXPECT_TRUE(rimasto == scritto || rimasto == scritto + 1 ||
                    (scritto == 0 && rimasto == 101))
            << "after " << dopo << " us: " << rimasto << " where " << scritto << " was written";
    }
}

}  // namespace
}  // namespace korven::commands
