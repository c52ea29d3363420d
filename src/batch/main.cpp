#include <exception>
#include <iostream>

#include "batch/console_program.hpp"
#include "batch/run/failure.hpp"

// korven32c: the work of the desktop program without a window.

int main(int argc, char** argv) {
    try {
        return korven::batch::programma(argc, argv);
    } catch (const std::exception& errore) {  // nothing else could tell it
        std::cerr << "korven32c: " << errore.what() << '\n';
        return korven::batch::ingressoRotto;
    }
}
