#pragma once

#include <QColor>
#include <QIcon>
#include <QStringList>

namespace tw::core::project {
class Project;
}
namespace tw::desktop::theme {
struct Theme;
}

namespace tw::desktop::manuscript {

/** How far a text is, in the words that are offered before a project has its own. */
[[nodiscard]] QStringList usualStatuses();

/** The usual ones in their order, then all others that documents of the project have. */
[[nodiscard]] QStringList orderedStatuses(const core::project::Project& project);

/** The usual ones have colours of their own; of others, equal words have equal colours. Invalid for none. */
[[nodiscard]] QColor statusColor(const theme::Theme& theme, const QString& status);

/** A dot in the colour of the status; null for none. */
[[nodiscard]] QIcon statusIcon(const theme::Theme& theme, const QString& status);

} // namespace tw::desktop::manuscript
