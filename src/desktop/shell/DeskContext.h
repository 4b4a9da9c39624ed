#pragma once

class QSettings;

namespace tw::desktop::icons {
class IconSet;
}
namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::shell {

class Navigator;
class ProjectSession;

/** What every panel is given. The parts are owned by main and outlive all widgets. */
struct DeskContext
{
    ProjectSession& session;
    Navigator& navigator;
    theme::ThemeManager& themes;
    const icons::IconSet& icons;
    QSettings& settings;
};

} // namespace tw::desktop::shell
