#include "desktop/fields/ValueText.h"

#include "core/entity/Entity.h"
#include "core/project/Project.h"
#include "desktop/shell/ObjectTitles.h"

#include <QCoreApplication>

namespace tw::desktop::fields {

using namespace Qt::Literals::StringLiterals;
using core::taxonomy::FieldType;

std::optional<core::calendar::StoryInstant> instantFromValue(const QString& value)
{
    bool isRead = false;
    const qlonglong instant = value.toLongLong(&isRead);
    return isRead ? std::optional<core::calendar::StoryInstant>(instant) : std::nullopt;
}

QStringList referenceLines(const QString& value)
{
    QStringList lines;
    for (const QString& line : value.split(u'\n')) {
        if (const QString trimmed = line.trimmed(); !trimmed.isEmpty())
            lines.append(trimmed);
    }
    return lines;
}

QString valueText(
    const core::project::Project& project, const core::taxonomy::Field& field, const QString& value)
{
    switch (field.type) {
    case FieldType::Date: {
        const auto instant = instantFromValue(value);
        return instant ? project.calendar().formatInstant(*instant) : value;
    }
    case FieldType::Reference: {
        QStringList names;
        for (const QString& line : referenceLines(value)) {
            const auto* const entity =
                project.findAs<core::entity::Entity>(core::ContentId::fromString(line));
            names.append(entity ? shell::objectTitle(*entity) : line);
        }
        return names.join(u", "_s);
    }
    case FieldType::Boolean:
        if (value == "true"_L1)
            return QCoreApplication::translate("ValueText", "Yes");
        if (value == "false"_L1)
            return QCoreApplication::translate("ValueText", "No");
        return value;
    default:
        return value;
    }
}

} // namespace tw::desktop::fields
