#pragma once

class QWidget;

namespace tw::desktop::fields {

/**
 * Has the Tab key go through the controls of the area in the order of its layouts. For areas whose controls
 * are made anew: whatever is made later would otherwise come after everything else in the window.
 */
void setTabOrderAsLaidOut(QWidget& area);

} // namespace tw::desktop::fields
