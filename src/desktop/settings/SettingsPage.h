#pragma once

#include <QtGlobal>

namespace tw::desktop::settings {

/** The pages of the settings, in the order of their list. */
enum class SettingsPage : qint32
{
    Appearance = 0,
    Editor = 1,
    Proofreading = 2,
    Saving = 3,
    Keys = 4,
    Assistants = 5,
};

} // namespace tw::desktop::settings
