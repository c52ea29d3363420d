#pragma once

#include <QPointer>
#include <string>
#include <vector>

#include "desktop/session.hpp"

namespace korven::test {

/// What stands in an open form; two of them are compared.
struct ContenutoForma {
    std::vector<double> scelte;
    std::vector<std::string> testi;
    project::Sezione sezione;

    bool operator==(const ContenutoForma&) const = default;
};

/// The form with a history that is open and takes input: one of the masks or that of the section;
/// nullptr if there is none.
[[nodiscard]] QWidget* formaAperta();

/// @pre a form of `formaAperta`
[[nodiscard]] ContenutoForma contenutoDi(const QWidget& forma);

/// Where two of them differ; empty if nowhere.
[[nodiscard]] std::string differenza(const ContenutoForma& una, const ContenutoForma& altra);

/// What of the live project is not what the open project gives when it is computed afresh; empty if
/// all is.
/// @param forma  a form of `formaAperta`, whose values count; nullptr: the project alone
[[nodiscard]] std::string vitaDiversa(const desktop::Sessione& sessione, const QWidget* forma);

/// Names of the windows that are open and belong to no other, which keep the program from its end;
/// empty if there is none.
[[nodiscard]] std::string finestreSole();

/// What is wrong with the windows that are open: one without title; empty if nothing is.
[[nodiscard]] std::string finestreStrane();

}  // namespace korven::test
