#pragma once

#include "core/project/Project.h"

#include <QString>

#include <vector>

namespace tw::app::workspace::templates {

/** What a new project starts with. */
enum class ProjectTemplate : qint32
{
    Novel = 0,
    Screenplay = 1,
    Campaign = 2,
    Empty = 3,
};

struct TemplateDescription
{
    ProjectTemplate id = ProjectTemplate::Empty;
    QString title;
    QString description; ///< One sentence.
};

/** All templates in the language of the interface, in the order in which they are offered. */
[[nodiscard]] std::vector<TemplateDescription> templateDescriptions();

/** Puts the template's documents, categories and settings into an empty project, in the language of the
 * interface. */
void fillProject(core::project::Project& project, ProjectTemplate chosen);

} // namespace tw::app::workspace::templates
