#pragma once

#include "core/foundation/Id.h"

#include <QStringList>
#include <QVariant>

namespace tw::core::document {
class Document;
}
namespace tw::core::project {
class Project;
}
namespace tw::desktop::shell {
class ProjectSession;
}

namespace tw::desktop::manuscript {

/** What a list of documents says of each, in this order. */
enum class OutlineColumn
{
    Title,
    Synopsis,
    Status,
    PointOfView,
    StoryDate,
    Words,
    Target,
};

inline constexpr int outlineColumnCount = static_cast<int>(OutlineColumn::Target) + 1;

[[nodiscard]] QString outlineHeading(OutlineColumn column);

/** Words are counted, all else is written. */
[[nodiscard]] bool isEditable(OutlineColumn column);

/** As it is read in a row; empty for none. Titles and words are the model's own. */
[[nodiscard]] QString outlineText(
    const core::document::Document& document, OutlineColumn column, const shell::ProjectSession& session);

/** As it is edited: text, a number of words, or an instant of the story in minutes, invalid for none. */
[[nodiscard]] QVariant outlineValue(const core::document::Document& document, OutlineColumn column);

/** The names that documents of the project have, sorted. */
[[nodiscard]] QStringList knownPointsOfView(const core::project::Project& project);

/** One undo step; false when nothing changed, or what was typed is no value of the column. */
bool setOutlineValue(
    shell::ProjectSession& session, const core::ContentId& id, OutlineColumn column, const QVariant& value);

} // namespace tw::desktop::manuscript
