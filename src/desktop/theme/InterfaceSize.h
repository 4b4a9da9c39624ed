#pragma once

#include <QtGlobal>

class QWidget;

namespace tw::desktop::theme {

/**
 * Keeps the widget's text at `factor` times the size of its parent's, also when that changes later. (A
 * widget whose font has a size of its own would stay behind.) The rest of its font stays as it is. The widget
 * must have its parent already and keep it.
 */
void followInterfaceSize(QWidget& widget, qreal factor);

} // namespace tw::desktop::theme
