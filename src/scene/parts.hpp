#pragma once

#include "scene/canvas.hpp"
#include "scene/frame.hpp"
#include "scene/scene.hpp"
#include "scene/shown_wall.hpp"

namespace korven::scene {

/// The parts of a picture, in the order in which they are drawn. Each draws what it can of its data
/// and leaves out what has no number.

/// Layers with their hatches and names, on both sides and below the wall.
void disegnaTerreno(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// Lines of the ground and of the stage's excavation.
void disegnaProfili(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// Open water, water levels of both sides.
void disegnaAcque(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// Surcharges of both sides, constant pressure.
void disegnaSovraccarichi(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// Levels of all stages with their numbers.
void disegnaFasi(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// Where the name of the shown stage's level begins: a load on the excavation ends before it. The
/// end of the section where the name stands elsewhere.
[[nodiscard]] double inizioLivello(const Mostrata& m, const Inquadratura& q, const Tela& tela);
/// Anchors and struts with number, depth and force.
void disegnaTiranti(const Mostrata& m, const Inquadratura& q, Tela& tela);

/// The signs of the water levels, clear of anchors that are there.
void segnaAcque(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// The wall with its restraints; one that is a mechanism moved, with what is at its limit.
void disegnaMuro(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// Force, moment and axial force at the head.
void disegnaCarichiTesta(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// Length, excavation, embedment.
void disegnaQuote(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// The curve of the view in its panel.
void disegnaCurva(const Mostrata& m, const Inquadratura& q, Tela& tela);
/// Headline, verdict, what is in the way.
/// @return their lower end
[[nodiscard]] double scriviNote(const Mostrata& m, const Misura& misura, const Opzioni& opzioni,
                                Tela& tela);
/// The line at the foot: stiffness and where it comes from.
void scriviPiede(const Mostrata& m, const Inquadratura& q, Tela& tela);

}  // namespace korven::scene
