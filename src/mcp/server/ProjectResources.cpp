#include "mcp/server/ProjectResources.h"

#include "core/content/ObjectName.h"

#include <QJsonArray>

#include <array>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::content::ContentKind;
using core::content::ContentObject;

namespace {

constexpr int pageSize = 500;

struct ResourceKind
{
    ContentKind kind;
    /** The tool that shows an object of the kind by its id. */
    QLatin1String tool;
};

constexpr std::array resourceKinds{
    ResourceKind{ContentKind::Document, "get_document"_L1},
    ResourceKind{ContentKind::Entity, "get_entity"_L1},
};

QString uriOf(const ContentObject& object)
{
    return u"vellory://%1/%2"_s.arg(core::content::contentKindName(object.kind()), object.id().toString());
}

QJsonObject listed(const ContentObject& object)
{
    const QString name = core::content::objectName(object);
    return {
        {u"uri"_s, uriOf(object)},
        {u"name"_s, name},
        {u"title"_s, name},
        {u"description"_s, object.kind() == ContentKind::Document ? u"A document of the manuscript."_s
                                                                  : u"An entity of the codex."_s},
        {u"mimeType"_s, u"text/markdown"_s}};
}

} // namespace

core::Result<QJsonObject> ProjectResources::list(const QString& cursor) const
{
    // A cursor is the uri of the last one shown: what comes and goes meanwhile moves nothing.
    const ContentId after = ContentId::fromString(QStringView(cursor).mid(cursor.lastIndexOf(u'/') + 1));
    bool isPast = cursor.isEmpty();
    QJsonArray resources;
    for (const ResourceKind& each : resourceKinds) {
        const bool isCursorKind =
            !isPast && cursor.startsWith(u"vellory://%1/"_s.arg(core::content::contentKindName(each.kind)));
        if (!isPast && (!isCursorKind || after.isNull()))
            continue;
        const bool isOffered = m_catalogue.hasTool(each.tool);
        for (const ContentObject* object : m_workspace.project().objectsOfKind(each.kind)) {
            if (!isOffered || object->isAiExcluded() || (isCursorKind && object->id() <= after))
                continue;
            if (resources.size() == pageSize) {
                return QJsonObject{
                    {u"resources"_s, resources},
                    {u"nextCursor"_s, resources.last().toObject().value(u"uri")}};
            }
            resources.append(listed(*object));
        }
        isPast = true;
    }
    if (!isPast)
        return core::Failure{u"Unknown cursor: %1"_s.arg(cursor)};
    return QJsonObject{{u"resources"_s, resources}};
}

std::optional<QJsonObject> ProjectResources::read(const QString& uri) const
{
    for (const ResourceKind& each : resourceKinds) {
        const QString start = u"vellory://%1/"_s.arg(core::content::contentKindName(each.kind));
        if (!uri.startsWith(start) || !m_catalogue.hasTool(each.tool))
            continue;
        const auto result = m_catalogue.server().callTool(
            each.tool, {{u"id"_s, uri.sliced(start.size())}, {u"full"_s, true}});
        if (!result.ok)
            return std::nullopt;
        return QJsonObject{
            {u"contents"_s,
             QJsonArray{QJsonObject{
                 {u"uri"_s, uri}, {u"mimeType"_s, u"text/markdown"_s}, {u"text"_s, result.text}}}}};
    }
    return std::nullopt;
}

} // namespace tw::mcp::server
