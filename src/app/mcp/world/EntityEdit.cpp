#include "app/mcp/world/EntityEdit.h"

#include "app/codex/FieldKeys.h"
#include "app/mcp/registry/Display.h"
#include "app/mcp/registry/ObjectFinder.h"
#include "app/mcp/registry/Schema.h"
#include "app/mcp/world/FieldValues.h"

#include <QJsonArray>

#include <algorithm>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::Failure;
using core::Result;
using core::entity::Entity;
using core::entity::ResolvedField;
using core::entity::Schema;
using core::entity::TimedValue;
using core::taxonomy::Field;
using core::taxonomy::FieldType;
using workspace::Workspace;

namespace {

class ContentEdit
{
public:
    ContentEdit(
        const Workspace& workspace, const Schema& schema, const QString& entityName, EntityContent content,
        const ToolArguments& arguments)
        : m_workspace(workspace)
        , m_schema(schema)
        , m_entityName(entityName)
        , m_content(std::move(content))
        , m_arguments(arguments)
    {}

    [[nodiscard]] Result<EntityContent> run()
    {
        for (const auto step :
             {&ContentEdit::setFields, &ContentEdit::setReferences, &ContentEdit::setStates,
              &ContentEdit::setLifespan, &ContentEdit::setAliases, &ContentEdit::setTags}) {
            if (const auto done = (this->*step)(); !done)
                return Failure{done.message()};
        }
        return std::move(m_content);
    }

private:
    /** A field that can be given a value. */
    [[nodiscard]] Result<const Field*> field(const QString& name) const
    {
        const ResolvedField* const found = codex::findFieldNamed(m_schema, name);
        if (!found)
            return Failure{u"'%1' has no field '%2'."_s.arg(m_entityName, name)};
        if (!found->isFixed())
            return &found->field;
        const auto* const source = m_workspace.project().taxonomy().category(found->definedBy);
        return Failure{
            u"'%1' is a fixed field: its value is given by the category '%2'. Change it there with add_field."_s
                .arg(found->field.displayName(), source ? source->name : QString())};
    }

    void setValue(const QString& key, const QString& value)
    {
        if (value.isEmpty())
            m_content.values.erase(key);
        else
            m_content.values[key] = value;
    }

    [[nodiscard]] Result<void> setFields()
    {
        const ToolArguments given = m_arguments.record(u"fields");
        for (const QString& name : given.names()) {
            const auto target = field(name);
            if (!target)
                return Failure{target.message()};
            const auto value = readFieldValue(m_workspace, *target.value(), given.text(name));
            if (!value)
                return Failure{value.message()};
            setValue(target.value()->key, value.value());
        }
        return {};
    }

    [[nodiscard]] Result<void> setReferences()
    {
        const ToolArguments given = m_arguments.record(u"references");
        for (const QString& name : given.names()) {
            const auto target = field(name);
            if (!target)
                return Failure{target.message()};
            if (target.value()->type != FieldType::Reference) {
                return Failure{u"'%1' is a %2 field, not a reference; pass its value in \"fields\"."_s.arg(
                    target.value()->displayName(), core::taxonomy::fieldTypeName(target.value()->type))};
            }
            const QStringList names = given.textList(name);
            const auto value = names.isEmpty()
                                   ? readFieldValue(m_workspace, *target.value(), given.text(name))
                                   : readReferences(m_workspace, *target.value(), names);
            if (!value)
                return Failure{value.message()};
            setValue(target.value()->key, value.value());
        }
        return {};
    }

    [[nodiscard]] Result<void> setStates()
    {
        for (const ToolArguments& state : m_arguments.records(u"timed_values")) {
            const auto target = field(state.text(u"field"));
            if (!target)
                return Failure{target.message()};
            const auto instant = readDate(m_workspace.project(), state.text(u"date"));
            if (!instant)
                return Failure{instant.message()};
            const auto value = readFieldValue(m_workspace, *target.value(), state.text(u"value"));
            if (!value)
                return Failure{value.message()};
            auto& states = m_content.timedValues[target.value()->key];
            std::erase_if(
                states, [&instant](const TimedValue& present) { return present.instant == instant.value(); });
            if (!value.value().isEmpty())
                states.push_back({instant.value(), value.value()});
        }
        m_content.timedValues = core::entity::normalised(std::move(m_content.timedValues));
        return {};
    }

    [[nodiscard]] Result<void> setLifespan()
    {
        const auto set = [this](QStringView argument, auto& end) -> Result<void> {
            const auto text = m_arguments.givenText(argument);
            if (!text)
                return {};
            end.reset();
            if (text->trimmed().isEmpty())
                return {};
            const auto instant = readDate(m_workspace.project(), *text);
            if (!instant)
                return Failure{instant.message()};
            end = instant.value();
            return {};
        };
        if (auto done = set(u"birth", m_content.lifespan.birth); !done)
            return done;
        return set(u"death", m_content.lifespan.death);
    }

    /** The names of a list, none of which has several lines. */
    [[nodiscard]] Result<std::optional<QStringList>> givenNames(QStringView argument) const
    {
        const auto texts = m_arguments.givenTextList(argument);
        if (!texts)
            return std::optional<QStringList>();
        const QStringList names = tidied(*texts);
        for (const QString& name : names) {
            if (const auto checked = checkNameText(name); !checked)
                return Failure{checked.message()};
        }
        return std::optional(names);
    }

    [[nodiscard]] Result<void> setAliases()
    {
        const auto names = givenNames(u"aliases");
        if (!names)
            return Failure{names.message()};
        if (names.value())
            m_content.aliases = *names.value();
        return {};
    }

    [[nodiscard]] Result<void> setTags()
    {
        const auto names = givenNames(u"tags");
        if (!names)
            return Failure{names.message()};
        if (names.value())
            m_content.tags = core::content::NameSet(names.value()->begin(), names.value()->end());
        return {};
    }

    const Workspace& m_workspace;
    const Schema& m_schema;
    const QString& m_entityName;
    EntityContent m_content;
    const ToolArguments& m_arguments;
};

/** A name or a list of names. */
QJsonObject namesProperty()
{
    return {
        {u"type"_s, QJsonArray{u"string"_s, u"array"_s}},
        {u"items"_s, textProperty(u"The name of an entity."_s)},
        {u"description"_s, u"One name, several parted by commas, or a list of them."_s}};
}

} // namespace

EntityContent contentOf(const Entity& entity)
{
    return {entity.values(), entity.timedValues(), entity.lifespan(), entity.aliases(), entity.tags()};
}

Result<EntityContent> editedContent(
    const Workspace& workspace, const Schema& schema, const QString& entityName, EntityContent content,
    const ToolArguments& arguments)
{
    return ContentEdit(workspace, schema, entityName, std::move(content), arguments).run();
}

QJsonObject entityContentProperties()
{
    return {
        {u"fields"_s,
         mapProperty(
             u"Field label to value. Null or an empty text makes a field unset."_s,
             valueProperty(
                 u"The value; a date as in \"25 Harvestmoon 1250\", a reference as a name, or as several "
                 "parted by commas or line breaks."_s))},
        {u"references"_s, mapProperty(u"Reference field to the entities it names."_s, namesProperty())},
        {u"aliases"_s, listProperty(u"All aliases; replaces the list."_s, textProperty(u"Another name."_s))},
        {u"tags"_s, listProperty(u"All tags; replaces the set."_s, textProperty(u"A tag."_s))},
        {u"birth"_s, textProperty(u"Birth or beginning, in the project's calendar; null for none."_s)},
        {u"death"_s, textProperty(u"Death or end, in the project's calendar; null for none."_s)}};
}

QString lifespanNote(const core::entity::Lifespan& lifespan)
{
    const bool isReversed = lifespan.birth && lifespan.death && *lifespan.death < *lifespan.birth;
    return isReversed ? u" Note: its death lies before its birth."_s : QString();
}

QString missingFieldsText(const Schema& schema, const core::entity::FieldValues& values)
{
    QStringList names;
    for (const ResolvedField& field : schema) {
        const auto value = values.find(field.field.key);
        if (field.field.isRequired && (value == values.end() || value->second.isEmpty()))
            names.append(field.field.displayName());
    }
    return names.isEmpty() ? QString() : u" Required field(s) still empty: %1."_s.arg(names.join(u", "_s));
}

} // namespace tw::app::mcp
