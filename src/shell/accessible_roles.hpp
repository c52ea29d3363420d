#pragma once

class QWidget;

namespace korven::shell {

/// Tells screen readers that a widget is a picture; its accessible name says of what, its
/// description what can be seen. To be called before the widget is shown.
void presentaFigura(QWidget& quadro);

/// Has screen readers told of pictures as such, and of each window that is neither main form nor
/// dialog as a window: Qt takes them for parts that hold others. Once for the program.
void insegnaRuoli();

}  // namespace korven::shell
