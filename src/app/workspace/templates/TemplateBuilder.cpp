#include "app/workspace/templates/TemplateBuilder.h"

namespace tw::app::workspace::templates {

using core::CategoryId;
using core::ContentId;
using core::document::Document;
using core::taxonomy::Field;
using core::taxonomy::FieldType;

ContentId TemplateBuilder::addDocument(const DocumentDraft& draft)
{
    auto document = std::make_unique<Document>(ContentId::create(), draft.kind, draft.title);
    document->setSynopsis(draft.synopsis);
    document->setBody({draft.body});
    document->setStatus(draft.status);
    document->setParentId(draft.parent);
    document->setSortIndex(m_documentsUnder[draft.parent]++);
    const ContentId id = document->id();
    m_project.add(std::move(document));
    return id;
}

CategoryId TemplateBuilder::addCategory(
    const QString& name, core::taxonomy::FieldList fields, const CategoryId& parent)
{
    core::taxonomy::Category category;
    category.id = CategoryId::create();
    category.name = name;
    category.parentId = parent;
    category.sortIndex = m_categoriesUnder[parent]++;
    category.fields = std::move(fields);
    const CategoryId id = category.id;
    m_project.taxonomyForEdit().insert(std::move(category));
    return id;
}

Field makeField(const QString& key, const QString& label, FieldType type)
{
    Field field;
    field.key = key;
    field.label = label;
    field.type = type;
    return field;
}

Field makeChoice(const QString& key, const QString& label, QStringList options)
{
    Field field = makeField(key, label, FieldType::Choice);
    field.options = std::move(options);
    return field;
}

Field makeReference(const QString& key, const QString& label, const CategoryId& category)
{
    Field field = makeField(key, label, FieldType::Reference);
    field.referenceCategory = category;
    return field;
}

} // namespace tw::app::workspace::templates
