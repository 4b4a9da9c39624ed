#pragma once

#include "app/codex/ScopedLookup.h"
#include "core/taxonomy/Field.h"

#include <QString>

#include <optional>
#include <set>

namespace tw::app::codex {

/**
 * Between what people write as the value of a field and the text that is stored: references are ids, one a
 * line; dates decimal instants; numbers and booleans have one form.
 */
class ValueConversion
{
public:
    /** Names are those of the project, then of the libraries; dates are of the project's calendar. Both
     * outlive this. */
    explicit ValueConversion(const core::project::Project& project, ObjectScope scope = {});

    /**
     * The stored form of a text for a field; none when the text does not suit its type: no number, no date of
     * the calendar, none of the choices, the name of no entity or of several. Text and addresses always suit.
     * Hidden entities are not looked for.
     */
    [[nodiscard]] std::optional<QString> stored(
        const core::taxonomy::Field& field, const QString& text) const;

    /**
     * A stored value in words that stored() understands: names for ids, dates in the calendar. What does not
     * suit the type stays as it is, and so do the ids of entities that are gone or hidden.
     */
    [[nodiscard]] QString inWords(const core::taxonomy::Field& field, const QString& value) const;

private:
    [[nodiscard]] std::optional<QString> storedReference(
        const core::taxonomy::Field& field, const QString& text) const;
    [[nodiscard]] std::set<core::ContentId> entitiesNamed(
        const core::project::Project& project, const QString& name, const core::CategoryId& beneath) const;
    [[nodiscard]] core::ContentId entityNamed(const QString& name, const core::CategoryId& beneath) const;
    [[nodiscard]] std::optional<QString> storedDate(const QString& text) const;

    const core::project::Project& m_project;
    ObjectScope m_scope;
};

} // namespace tw::app::codex
