#pragma once

class QSpinBox;

namespace tw::desktop::fields {

/** Has a box of a number of words end in "word" or "words", as its present value asks for. */
void fitWordsSuffix(QSpinBox& box);

} // namespace tw::desktop::fields
