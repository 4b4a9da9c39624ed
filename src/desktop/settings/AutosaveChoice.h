#pragma once

#include "desktop/shell/ProjectSession.h"

class QSettings;

/** What the user sets for the program, not for one project. */
namespace tw::desktop::settings {

/** As the user wants it: "editor/autosave" and "editor/autosaveIntervalSeconds". */
[[nodiscard]] shell::AutosaveSettings autosaveFrom(const QSettings& settings);
void storeAutosave(QSettings& settings, const shell::AutosaveSettings& autosave);

} // namespace tw::desktop::settings
