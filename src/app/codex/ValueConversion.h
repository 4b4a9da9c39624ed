#pragma once

#include "core/project/Project.h"
#include "core/taxonomy/Field.h"

#include <QHash>
#include <QString>

#include <optional>

namespace tw::app::codex {

/**
 * Between what people write as the value of a field and the text that is stored: references are ids, one a
 * line; dates decimal instants; numbers and booleans have one form. Reads the project's names once, for many
 * values.
 */
class ValueConversion
{
public:
    /** The project outlives this. */
    explicit ValueConversion(const core::project::Project& project);

    /**
     * The stored form of a text for a field; none when the text does not suit its type: no number, no date of
     * the calendar, none of the choices, the name of no entity or of several. Text and addresses always suit.
     * Entities that are excluded from AI are not looked for.
     */
    [[nodiscard]] std::optional<QString> stored(
        const core::taxonomy::Field& field, const QString& text) const;

    /**
     * A stored value in words that stored() understands: names for ids, dates in the calendar. What does not
     * suit the type stays as it is, and so do the ids of entities that are gone or excluded from AI.
     */
    [[nodiscard]] QString inWords(const core::taxonomy::Field& field, const QString& value) const;

private:
    [[nodiscard]] std::optional<QString> storedReference(
        const core::taxonomy::Field& field, const QString& text) const;
    [[nodiscard]] core::ContentId entityNamed(const QString& name, const core::CategoryId& beneath) const;
    [[nodiscard]] std::optional<QString> storedDate(const QString& text) const;

    const core::project::Project& m_project;
};

} // namespace tw::app::codex
