#include "desktop/icons/StandardIcons.h"

#include "desktop/icons/IconSet.h"
#include "desktop/theme/ThemeManager.h"

namespace tw::desktop::icons {

namespace {

struct MessageIcon
{
    QStyle::StandardPixmap place;
    Icon icon;
    theme::Role role;
};

constexpr MessageIcon messageIcons[] = {
    {QStyle::SP_MessageBoxQuestion, Icon::Help, theme::Role::Accent},
    {QStyle::SP_MessageBoxInformation, Icon::Information, theme::Role::Accent},
    {QStyle::SP_MessageBoxWarning, Icon::Warning, theme::Role::Warning},
    {QStyle::SP_MessageBoxCritical, Icon::Error, theme::Role::Error},
};

struct FileIcon
{
    QStyle::StandardPixmap place;
    Icon icon;
};

constexpr FileIcon fileIcons[] = {
    {QStyle::SP_ArrowBack, Icon::ChevronLeft},
    {QStyle::SP_ArrowForward, Icon::ChevronRight},
    {QStyle::SP_FileDialogBack, Icon::ChevronLeft},
    {QStyle::SP_FileDialogToParent, Icon::ChevronUp},
    {QStyle::SP_FileDialogNewFolder, Icon::Add},
    {QStyle::SP_FileDialogListView, Icon::BulletList},
    {QStyle::SP_FileDialogDetailedView, Icon::Table},
    {QStyle::SP_DirIcon, Icon::Folder},
    {QStyle::SP_DirHomeIcon, Icon::Folder},
    {QStyle::SP_DirOpenIcon, Icon::Open},
    {QStyle::SP_FileIcon, Icon::Document},
};

} // namespace

void registerStandardIcons(const IconSet& icons, theme::ThemeManager& themes)
{
    for (const FileIcon& each : fileIcons)
        themes.setStandardIcon(each.place, icons.icon(each.icon));
    const auto color = [&icons, &themes] {
        for (const MessageIcon& each : messageIcons)
            themes.setStandardIcon(each.place, icons.icon(each.icon, themes.theme().color(each.role)));
    };
    color();
    QObject::connect(&themes, &theme::ThemeManager::themeChanged, &icons, color);
}

} // namespace tw::desktop::icons
