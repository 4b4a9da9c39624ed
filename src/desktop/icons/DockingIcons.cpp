#include "desktop/icons/DockingIcons.h"

#include "desktop/icons/IconSet.h"

#include <DockManager.h>
#include <IconProvider.h>

namespace tw::desktop::icons {

void registerDockingIcons(const IconSet& icons)
{
    ads::CIconProvider& provider = ads::CDockManager::iconProvider();
    provider.registerCustomIcon(ads::TabCloseIcon, icons.icon(Icon::Close));
    provider.registerCustomIcon(ads::DockAreaMenuIcon, icons.icon(Icon::ChevronDown));
    provider.registerCustomIcon(ads::DockAreaUndockIcon, icons.icon(Icon::Undock));
    provider.registerCustomIcon(ads::DockAreaCloseIcon, icons.icon(Icon::Close));
}

} // namespace tw::desktop::icons
