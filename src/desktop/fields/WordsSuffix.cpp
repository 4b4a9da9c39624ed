#include "desktop/fields/WordsSuffix.h"

#include <QCoreApplication>
#include <QSpinBox>

namespace tw::desktop::fields {

void fitWordsSuffix(QSpinBox& box)
{
    const QString suffix = QCoreApplication::translate("WordsSuffix", " words", nullptr, box.value());
    // Setting it writes the number anew, maybe under the cursor.
    if (box.suffix() != suffix)
        box.setSuffix(suffix);
}

} // namespace tw::desktop::fields
