#include "plot/markers.hpp"

namespace korven::plot {

namespace {

constexpr int su = 3;
constexpr int giu = 2;
constexpr double mezzo = 1.0 / 2;
constexpr double quarto = 1.0 / 4;
constexpr double sesto = 1.0 / 6;

constexpr PassoSimbolo ottagono[] = {
    {su, 0, mezzo},        {giu, -sesto, mezzo}, {giu, -mezzo, sesto}, {giu, -mezzo, -sesto},
    {giu, -sesto, -mezzo}, {giu, sesto, -mezzo}, {giu, mezzo, -sesto}, {giu, mezzo, sesto},
    {giu, sesto, mezzo},   {giu, 0, mezzo}};
constexpr PassoSimbolo triangolo[] = {
    {su, 0, mezzo}, {giu, -mezzo, -mezzo}, {giu, mezzo, -mezzo}, {giu, 0, mezzo}};
constexpr PassoSimbolo triangoloCapovolto[] = {
    {su, 0, -mezzo}, {giu, -mezzo, mezzo}, {giu, mezzo, mezzo}, {giu, 0, -mezzo}};
constexpr PassoSimbolo piu[] = {{su, -mezzo, 0}, {giu, mezzo, 0}, {su, 0, mezzo}, {giu, 0, -mezzo}};
constexpr PassoSimbolo croce[] = {
    {su, -mezzo, -mezzo}, {giu, mezzo, mezzo}, {su, -mezzo, mezzo}, {giu, mezzo, -mezzo}};
constexpr PassoSimbolo rombo[] = {
    {su, 0, mezzo}, {giu, -mezzo, 0}, {giu, 0, -mezzo}, {giu, mezzo, 0}, {giu, 0, mezzo}};
constexpr PassoSimbolo freccia[] = {
    {su, 0, -mezzo}, {giu, 0, mezzo}, {giu, -mezzo, 0}, {giu, mezzo, 0}, {giu, 0, mezzo}};
constexpr PassoSimbolo triangoloInGiu[] = {
    {su, 0, -mezzo}, {giu, mezzo, mezzo}, {giu, -mezzo, mezzo}, {giu, 0, -mezzo}};
constexpr PassoSimbolo triangoloRettangolo[] = {
    {su, -mezzo, mezzo}, {giu, mezzo, mezzo}, {giu, -mezzo, -mezzo}, {giu, -mezzo, mezzo}};
constexpr PassoSimbolo treBracci[] = {
    {su, -mezzo, mezzo}, {giu, 0, 0}, {giu, mezzo, mezzo}, {su, 0, 0}, {giu, 0, -mezzo}};
constexpr PassoSimbolo quadratoConTacche[] = {
    {su, -quarto, quarto},   {giu, -quarto, -quarto}, {giu, quarto, -quarto}, {giu, quarto, quarto},
    {giu, -quarto, quarto},  {su, -mezzo, mezzo},     {giu, -quarto, quarto}, {su, -mezzo, -mezzo},
    {giu, -quarto, -quarto}, {su, mezzo, -mezzo},     {giu, quarto, -quarto}, {su, mezzo, mezzo},
    {giu, quarto, quarto}};
constexpr PassoSimbolo ottoBracci[] = {
    {su, -mezzo, -mezzo}, {giu, mezzo, mezzo}, {su, -mezzo, mezzo}, {giu, mezzo, -mezzo},
    {su, -mezzo, 0},      {giu, mezzo, 0},     {su, 0, mezzo},      {giu, 0, -mezzo}};
constexpr PassoSimbolo quadrato[] = {{su, -mezzo, mezzo},
                                     {giu, mezzo, mezzo},
                                     {giu, mezzo, -mezzo},
                                     {giu, -mezzo, -mezzo},
                                     {giu, -mezzo, mezzo}};
constexpr PassoSimbolo barra[] = {{su, 0, -mezzo}, {giu, 0, mezzo}};
// The base of either triangle lies a quarter beyond the centre, so that the tips of both reach the
// edge of the marker's square.
constexpr PassoSimbolo stella[] = {
    {su, 0, mezzo},  {giu, -mezzo, -quarto}, {giu, mezzo, -quarto}, {giu, 0, mezzo},
    {su, 0, -mezzo}, {giu, -mezzo, quarto},  {giu, mezzo, quarto},  {giu, 0, -mezzo}};
constexpr PassoSimbolo taccaOrizzontale[] = {{su, 0, 0}, {giu, 1, 0}};
constexpr PassoSimbolo taccaVerticale[] = {{su, 0, 0}, {giu, 0, 1}};

constexpr std::span<const PassoSimbolo> simboli[] = {ottagono,
                                                     triangolo,
                                                     piu,
                                                     croce,
                                                     rombo,
                                                     freccia,
                                                     triangoloInGiu,
                                                     triangoloRettangolo,
                                                     treBracci,
                                                     quadratoConTacche,
                                                     ottoBracci,
                                                     quadrato,
                                                     barra,
                                                     stella,
                                                     taccaOrizzontale,
                                                     taccaVerticale};

constexpr double capovolto = 180;
constexpr int simboloOrientato = 2;

}  // namespace

std::span<const PassoSimbolo> trattiSimbolo(double codice, double angolo) {
    if (codice == simboloOrientato && angolo == capovolto) return triangoloCapovolto;
    int numero = 0;
    for (const auto& tratti : simboli)
        if (codice == ++numero) return tratti;
    return {};
}

}  // namespace korven::plot
