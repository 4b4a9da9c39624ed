#pragma once

#include <QSet>
#include <QString>

namespace tw::core::project {
class Project;
}

namespace tw::app::style::spelling {

/** The words of the names and aliases of all entities, in the form of spellingForm(). */
[[nodiscard]] QSet<QString> codexWords(const core::project::Project& project);

} // namespace tw::app::style::spelling
