#pragma once

// Where the model comes from: author, title, year, clause (an annex by its letter). The same in all
// languages, so there are no words of one of them but titles.

namespace korven::report::fonti {

inline constexpr const char* winkler =
    "E. Winkler, Die Lehre von der Elasticität und Festigkeit (1867)";
inline constexpr const char* newton =
    "L. Qi, J. Sun, A nonsmooth version of Newton's method (1993); S. Boyd, L. Vandenberghe, "
    "Convex "
    "Optimization (2004)";
inline constexpr const char* riposo =
    "J. Jaky, The coefficient of earth pressure at rest (1944); sin beta: Á. Kézdi (1972), "
    "in J. E. Bowles, Foundation Analysis and Design (1996)";
inline constexpr const char* eurocodice =
    "CEN, ENV 1992-1-1, Eurocode 2: Design of concrete structures (1991)";
inline constexpr const char* riduzione =
    "O. C. Zienkiewicz, C. Humpheson, R. W. Lewis, Associated and non-associated visco-plasticity "
    "and plasticity in soil mechanics (1975); D. V. Griffiths, P. A. Lane, Slope stability "
    "analysis "
    "by finite elements (1999)";
inline constexpr const char* coulomb =
    "C. A. Coulomb, Essai sur une application des règles de maximis et minimis (1776); H. "
    "Müller-Breslau, Erddruck auf Stützmauern (1906)";
inline constexpr const char* rankine = "W. J. M. Rankine, On the stability of loose earth (1857)";
inline constexpr const char* bell =
    "A. L. Bell, The lateral pressure and resistance of clay (1915)";
inline constexpr const char* bowles =
    "J. E. Bowles, Foundation Analysis and Design (1996); J. B. Hansen, A revised and extended "
    "formula for bearing capacity (1970)";
inline constexpr const char* lancellotta = "R. Lancellotta, Geotechnical Engineering (1995)";
inline constexpr const char* terzaghi = "K. Terzaghi, Theoretical Soil Mechanics (1943)";

inline constexpr const char* rigidezza =
    "R. Park, T. Paulay, Reinforced Concrete Structures (1975); CEN, EN 1992-1-1, Eurocode 2: "
    "Design "
    "of concrete structures (2004), 5.4";

// Where the rules stand for what is not computed.
inline constexpr const char* coefficientiParziali =
    "CEN, EN 1997-1, Eurocode 7: Geotechnical design (2004), 2.4.7.3";
inline constexpr const char* attrito = "CEN, EN 1997-1 (2004), 9.5.1, 9.5.3, C.1";
inline constexpr const char* memoria =
    "CEN, EN 1997-1 (2004), 9.5.4, 9.5.5; G. W. Clough, J. M. Duncan, Earth pressures (1991)";
inline constexpr const char* filtrazione =
    "CEN, EN 1997-1 (2004), 9.6, § 10; K. Terzaghi, Theoretical Soil Mechanics (1943)";
inline constexpr const char* stabilitaGlobale = "CEN, EN 1997-1 (2004), 9.7.2, § 11";
inline constexpr const char* verticale =
    "CEN, EN 1997-1 (2004), 9.7.5, 9.8.2; R. B. Peck, Deep excavations and tunneling in soft "
    "ground (1969)";
inline constexpr const char* ancoraggi = "CEN, EN 1997-1 (2004), § 8, 9.7.6, 9.7.7";
inline constexpr const char* vincoli = "CEN, EN 1997-1 (2004), 9.7.4, 9.7.6";
inline constexpr const char* azioni =
    "CEN, EN 1998-5, Eurocode 8: Foundations, retaining structures (2004), § 7; J. "
    "Boussinesq, Application des potentiels (1885)";
inline constexpr const char* palancole = "CEN, EN 1993-5, Eurocode 3: Piling (2007), § 5";

}  // namespace korven::report::fonti
