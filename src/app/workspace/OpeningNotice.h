#pragma once

#include "app/persistence/bundle/OpenBundle.h"

#include <QString>

namespace tw::app::workspace {

/** What the user has to be told about how a project was opened. */
struct OpeningNotice
{
    /** Of a message that wants to be read; empty when a line in passing will do. */
    QString title;
    /** Empty when there is nothing to tell. */
    QString text;

    [[nodiscard]] bool isEmpty() const { return text.isEmpty(); }
};

[[nodiscard]] OpeningNotice openingNotice(
    persistence::BundleOpening opening, const QString& bundlePath, const QString& backupPath);

} // namespace tw::app::workspace
