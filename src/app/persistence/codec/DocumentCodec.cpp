#include "app/persistence/codec/KindCodec.h"

#include "core/document/Document.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::document::BodyFormat;
using core::document::Document;
using core::document::DocumentBody;
using core::document::DocumentKind;
using core::document::DocumentVariant;
using core::document::DocumentVariants;
using core::document::DocumentVersion;
using core::document::Footnote;

template <>
struct NamesOf<DocumentKind>
{
    static constexpr auto name = &core::document::documentKindName;
    static constexpr auto fromName = &core::document::documentKindFromName;
};

template <>
struct NamesOf<BodyFormat>
{
    static constexpr auto name = &core::document::bodyFormatName;
    static constexpr auto fromName = &core::document::bodyFormatFromName;
};

template <>
struct RecordOf<DocumentVersion>
{
    static constexpr auto entries = std::tuple(
        always<Data<&DocumentVersion::label>>("label"_L1),
        always<Data<&DocumentVersion::createdAt>>("createdAt"_L1),
        always<Data<&DocumentVersion::body>>("body"_L1),
        ifSet<Data<&DocumentVersion::bodyFormat>>("bodyFormat"_L1));
};

template <>
struct RecordOf<DocumentVariant>
{
    static constexpr auto entries = std::tuple(
        always<Data<&DocumentVariant::name>>("name"_L1), always<Data<&DocumentVariant::body>>("body"_L1),
        ifSet<Data<&DocumentVariant::bodyFormat>>("bodyFormat"_L1));
};

template <>
struct RecordOf<Footnote>
{
    static constexpr auto entries = std::tuple(
        always<Data<&Footnote::id>>("id"_L1), always<Data<&Footnote::text>>("text"_L1),
        ifSet<Data<&Footnote::isEndnote>>("endnote"_L1));
};

/** A note that a file gives no label is known by its place in the list, counted from 1. */
struct LabelledFootnotes : Property<&Document::footnotes, &Document::setFootnotes>
{
    static void edit(Document& document, auto change)
    {
        Property::edit(document, [&](std::vector<Footnote>& footnotes) {
            change(footnotes);
            for (std::size_t index = 0; index < footnotes.size(); ++index) {
                if (footnotes[index].id.isEmpty())
                    footnotes[index].id = QString::number(index + 1);
            }
        });
    }
};

template <>
struct RecordOf<Document>
{
    static constexpr auto entries = std::tuple(
        always<Property<&Document::documentKind, &Document::setDocumentKind>>("kind"_L1),
        always<Property<&Document::title, &Document::setTitle>>("title"_L1),
        always<Part<&Document::body, &Document::setBody, &DocumentBody::text>>("body"_L1),
        always<Part<&Document::body, &Document::setBody, &DocumentBody::format>>("bodyFormat"_L1),
        ifSet<Property<&Document::synopsis, &Document::setSynopsis>>("synopsis"_L1),
        ifSet<Property<&Document::status, &Document::setStatus>>("status"_L1),
        ifSet<Property<&Document::pointOfView, &Document::setPointOfView>>("pointOfView"_L1),
        ifSet<Property<&Document::tensionLevel, &Document::setTensionLevel>>("tensionLevel"_L1),
        ifSet<Property<&Document::sceneInstant, &Document::setSceneInstant>>("sceneInstant"_L1),
        ifSet<Property<&Document::wordCountTarget, &Document::setWordCountTarget>>("wordCountTarget"_L1),
        ifSet<Property<&Document::parentId, &Document::setParentId>>("parentId"_L1),
        always<Property<&Document::sortIndex, &Document::setSortIndex>>("sortIndex"_L1),
        ifSet<Property<&Document::sourceIds, &Document::setSourceIds>>("sourceIds"_L1),
        ifSet<Property<&Document::revisionBaseline, &Document::setRevisionBaseline>>("revisionBaseline"_L1),
        ifSet<Property<&Document::versions, &Document::setVersions>>("versions"_L1),
        ifSet<Part<&Document::variants, &Document::setVariants, &DocumentVariants::list>>("variants"_L1),
        ifSet<Part<&Document::variants, &Document::setVariants, &DocumentVariants::active>>(
            "activeVariant"_L1),
        ifSet<LabelledFootnotes>("footnotes"_L1));
};

KindCodec documentCodec()
{
    return objectKindCodec<Document, [](const core::ContentId& id) {
        return std::make_unique<Document>(id, DocumentKind::Prose, QString());
    }>();
}

} // namespace tw::app::persistence
