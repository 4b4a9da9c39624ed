#include "app/persistence/codec/ObjectCodec.h"

#include "app/persistence/codec/KindCodec.h"
#include "app/persistence/files/JsonFile.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::content::ContentKind;
using core::content::ContentObject;

/** What objects of every kind have behind their own keys. */
template <>
struct RecordOf<ContentObject>
{
    static constexpr auto entries = std::tuple(
        ifSet<Property<&ContentObject::visibleTo, &ContentObject::setVisibleTo>>("visibleTo"_L1),
        ifSet<Property<&ContentObject::tags, &ContentObject::setTags>>("tags"_L1),
        ifSet<Property<&ContentObject::isLocked, &ContentObject::setLocked>>("locked"_L1),
        ifSet<Property<&ContentObject::isAiExcluded, &ContentObject::setAiExcluded>>("aiExcluded"_L1),
        ifSet<Property<&ContentObject::plotThreadIds, &ContentObject::setPlotThreadIds>>("plotThreadIds"_L1));
};

namespace {

KindCodec codecOf(ContentKind kind)
{
    switch (kind) {
    case ContentKind::Document:
        return documentCodec();
    case ContentKind::Entity:
        return entityCodec();
    case ContentKind::Spreadsheet:
        return spreadsheetCodec();
    case ContentKind::Chart:
        return chartCodec();
    case ContentKind::Map:
        return mapCodec();
    case ContentKind::Timeline:
        return timelineCodec();
    case ContentKind::TimelineEvent:
        return timelineEventCodec();
    case ContentKind::Media:
        return mediaCodec();
    case ContentKind::Source:
        return sourceCodec();
    case ContentKind::Task:
        return taskCodec();
    case ContentKind::Canvas:
        return canvasCodec();
    case ContentKind::Comment:
        return commentCodec();
    case ContentKind::Language:
        return languageCodec();
    case ContentKind::RandomTable:
        return randomTableCodec();
    case ContentKind::StatBlock:
        return statBlockCodec();
    }
    Q_UNREACHABLE();
}

} // namespace

void appendObject(QByteArray& output, const ContentObject& object)
{
    JsonWriter writer(output);
    writer.beginObject();
    writer.key("id"_L1);
    ValueCodec<core::ContentId>::write(writer, object.id());
    writer.key("type"_L1);
    writer.writeText(core::content::contentKindName(object.kind()));
    codecOf(object.kind()).write(writer, object);
    writeEntries(writer, object);
    writer.endObject();
}

QByteArray serializeObject(const ContentObject& object)
{
    QByteArray bytes;
    appendObject(bytes, object);
    return bytes;
}

core::Result<std::unique_ptr<ContentObject>> parseObject(
    const QByteArray& bytes, const QString& path, ParseScratch& scratch)
{
    if (!scratch.tree.parse(bytes))
        return invalidJson(path);
    const JsonNode root = scratch.tree.root();
    const auto id = readId<core::ContentId>(root.value("id"_L1));
    const std::optional<ContentKind> kind = core::content::contentKindFromName(root.value("type"_L1).text());
    if (id.isNull() || !kind)
        return core::Failure{
            QCoreApplication::translate("Persistence", "Malformed object file: %1").arg(path)};
    std::unique_ptr<ContentObject> object = codecOf(*kind).read(id, root, scratch.texts);
    readEntries(root, *object, scratch.texts);
    return object;
}

} // namespace tw::app::persistence
