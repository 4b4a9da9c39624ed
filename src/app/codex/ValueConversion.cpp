#include "app/codex/ValueConversion.h"

#include "app/codex/DateText.h"
#include "core/content/ObjectName.h"
#include "core/entity/Schema.h"

#include <QLocale>
#include <QStringList>

#include <cmath>
#include <utility>

namespace tw::app::codex {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::entity::Entity;
using core::taxonomy::Field;
using core::taxonomy::FieldType;

namespace {

std::optional<QString> storedNumber(const QString& text)
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    return isNumber && std::isfinite(number) ? std::optional(text.trimmed()) : std::nullopt;
}

std::optional<QString> storedBoolean(const QString& text)
{
    static const QStringList yes{u"true"_s, u"yes"_s, u"on"_s, u"1"_s};
    static const QStringList no{u"false"_s, u"no"_s, u"off"_s, u"0"_s};
    const QString word = text.trimmed().toLower();
    if (yes.contains(word))
        return u"true"_s;
    return no.contains(word) ? std::optional(u"false"_s) : std::nullopt;
}

std::optional<QString> storedChoice(const Field& field, const QString& text)
{
    const QString wanted = text.trimmed();
    for (const QString& option : field.options) {
        if (option == wanted)
            return option;
    }
    for (const QString& option : field.options) {
        if (option.compare(wanted, Qt::CaseInsensitive) == 0)
            return option;
    }
    return std::nullopt;
}

} // namespace

ValueConversion::ValueConversion(const core::project::Project& project, ObjectScope scope)
    : m_project(project)
    , m_scope(std::move(scope))
{}

std::optional<QString> ValueConversion::stored(const Field& field, const QString& text) const
{
    switch (field.type) {
    case FieldType::Text:
    case FieldType::Url:
        return text;
    case FieldType::Number:
        return storedNumber(text);
    case FieldType::Boolean:
        return storedBoolean(text);
    case FieldType::Date:
        return storedDate(text);
    case FieldType::Reference:
        return storedReference(field, text);
    case FieldType::Choice:
        return storedChoice(field, text);
    }
    return std::nullopt;
}

std::optional<QString> ValueConversion::storedDate(const QString& text) const
{
    const auto instant = readDateText(m_project.calendar(), text);
    return instant ? std::optional(QString::number(*instant)) : std::nullopt;
}

std::set<ContentId> ValueConversion::entitiesNamed(
    const core::project::Project& project, const QString& name, const CategoryId& beneath) const
{
    const ScopedLookup lookup(m_project, m_scope);
    const auto allowed = [&](const std::vector<ContentId>& candidates) {
        std::set<ContentId> found;
        for (const ContentId& id : candidates) {
            const auto* const entity = project.findAs<Entity>(id);
            const bool isAllowed = entity && !lookup.isHidden(*entity) &&
                                   (!project.taxonomy().category(beneath) ||
                                    core::entity::isCategoryBeneath(project, entity->categoryId(), beneath));
            if (isAllowed)
                found.insert(id);
        }
        return found;
    };
    const std::set<ContentId> named = allowed(project.names().named(name));
    return named.empty() ? allowed(project.names().aliased(name)) : named;
}

ContentId ValueConversion::entityNamed(const QString& name, const CategoryId& beneath) const
{
    std::set<ContentId> found = entitiesNamed(m_project, name, beneath);
    for (const core::project::Project* library : m_scope.libraries) {
        if (found.empty())
            found = entitiesNamed(*library, name, beneath);
    }
    return found.size() == 1 ? *found.begin() : ContentId();
}

std::optional<QString> ValueConversion::storedReference(const Field& field, const QString& text) const
{
    const auto idsOf = [&](const QStringList& names) -> std::optional<QString> {
        QStringList ids;
        for (const QString& name : names) {
            if (name.trimmed().isEmpty())
                continue;
            const ContentId id = entityNamed(name, field.referenceCategory);
            if (id.isNull())
                return std::nullopt;
            if (!ids.contains(id.toString()))
                ids.append(id.toString());
        }
        return ids.isEmpty() ? std::nullopt : std::optional(ids.join(u'\n'));
    };
    // A name may hold a comma itself: the whole line is tried first.
    if (auto lines = idsOf(text.split(u'\n')))
        return lines;
    return idsOf(QString(text).replace(u';', u',').replace(u'\n', u',').split(u','));
}

QString ValueConversion::inWords(const Field& field, const QString& value) const
{
    if (field.type == FieldType::Date) {
        bool isInstant = false;
        const qint64 instant = value.toLongLong(&isInstant);
        return isInstant ? dateText(m_project.calendar(), instant) : value;
    }
    if (field.type != FieldType::Reference)
        return value;
    const ScopedLookup lookup(m_project, m_scope);
    QStringList lines = value.split(u'\n');
    for (QString& line : lines) {
        const auto* const entity = lookup.findAs<Entity>(ContentId::fromString(line.trimmed()));
        if (entity && !lookup.isHidden(*entity))
            line = entity->name();
    }
    return lines.join(u'\n');
}

} // namespace tw::app::codex
