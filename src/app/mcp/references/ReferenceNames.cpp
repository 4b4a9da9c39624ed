#include "app/mcp/references/ReferenceNames.h"

#include "core/content/ObjectName.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::content::ContentKind;
using core::content::ContentObject;
using workspace::Workspace;

namespace {

const ContentObject* findAnywhere(const Workspace& workspace, const ContentId& id)
{
    const ContentObject* object = workspace.project().find(id);
    for (const workspace::MountedLibrary& library : workspace.libraries())
        object = object ? object : library.project->find(id);
    return object;
}

QString excludedStandIn(ContentKind kind)
{
    if (kind == ContentKind::Entity)
        return u"(an entity excluded from AI)"_s;
    if (kind == ContentKind::Document)
        return u"(a document excluded from AI)"_s;
    return u"(excluded from AI)"_s;
}

} // namespace

QString referenceName(const Workspace& workspace, const ContentId& id)
{
    if (id.isNull())
        return {};
    const ContentObject* object = findAnywhere(workspace, id);
    if (!object)
        return u"(missing)"_s;
    if (object->isAiExcluded())
        return excludedStandIn(object->kind());
    const QString name = objectName(*object);
    return name.isEmpty() ? u"(unnamed)"_s : name;
}

QString referenceNames(const Workspace& workspace, std::span<const ContentId> ids)
{
    QStringList names;
    for (const ContentId& id : ids)
        names += referenceName(workspace, id);
    return names.join(u", "_s);
}

} // namespace tw::app::mcp
