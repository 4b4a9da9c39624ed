#pragma once

#include "core/calendar/Calendar.h"
#include "core/content/ContentObject.h"

#include <QString>

#include <optional>
#include <vector>

namespace tw::core::document {

enum class DocumentKind : qint32
{
    Prose = 0,
    Screenplay = 1,
    Note = 2,
};

[[nodiscard]] QLatin1String documentKindName(DocumentKind kind);
/** Exact and case-sensitive; none for an unknown name. */
[[nodiscard]] std::optional<DocumentKind> documentKindFromName(QStringView name);

/** The markup of a body. */
enum class BodyFormat : qint32
{
    Markdown = 0,
    /** A legacy rich-text body, converted to Markdown whenever the text leaves the program. */
    Html = 1,
};

[[nodiscard]] QLatin1String bodyFormatName(BodyFormat format);
[[nodiscard]] std::optional<BodyFormat> bodyFormatFromName(QStringView name);

/** A text with its markup: they change together. */
struct DocumentBody
{
    QString text;
    BodyFormat format = BodyFormat::Markdown;

    friend bool operator==(const DocumentBody&, const DocumentBody&) = default;
};

/** A snapshot of the body. */
struct DocumentVersion
{
    QString label;
    /** ISO 8601, UTC; kept as text, so that a hand-written time survives. */
    QString createdAt;
    QString body;
    BodyFormat bodyFormat = BodyFormat::Markdown;

    friend bool operator==(const DocumentVersion&, const DocumentVersion&) = default;
};

/** An alternative text of the document. */
struct DocumentVariant
{
    QString name;
    QString body;
    BodyFormat bodyFormat = BodyFormat::Markdown;

    friend bool operator==(const DocumentVariant&, const DocumentVariant&) = default;
};

/** The variants and the name of the one in use: empty for the main text. */
struct DocumentVariants
{
    std::vector<DocumentVariant> list;
    QString active;

    friend bool operator==(const DocumentVariants&, const DocumentVariants&) = default;
};

struct Footnote
{
    /** The label of the reference in the body. */
    QString id;
    QString text;
    /** True: collected at the end rather than at the foot of the page. */
    bool isEndnote = false;

    friend bool operator==(const Footnote&, const Footnote&) = default;
};

/** A text of the manuscript: prose, a screenplay or a note, in a tree by parent id and sort index. */
class Document final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Document;

    Document(ContentId id, DocumentKind kind, QString title);
    ~Document() override;

    [[nodiscard]] DocumentKind documentKind() const { return m_kind; }
    void setDocumentKind(DocumentKind kind) { m_kind = kind; }

    [[nodiscard]] const QString& title() const { return m_title; }
    void setTitle(QString title) { m_title = std::move(title); }

    /** The main text, also while a variant is active: a variant holds its own. */
    [[nodiscard]] const DocumentBody& body() const { return m_body; }
    void setBody(DocumentBody body) { m_body = std::move(body); }

    [[nodiscard]] const QString& synopsis() const { return m_synopsis; }
    void setSynopsis(QString synopsis) { m_synopsis = std::move(synopsis); }

    [[nodiscard]] const QString& status() const { return m_status; }
    void setStatus(QString status) { m_status = std::move(status); }

    [[nodiscard]] const QString& pointOfView() const { return m_pointOfView; }
    void setPointOfView(QString pointOfView) { m_pointOfView = std::move(pointOfView); }

    [[nodiscard]] qint32 tensionLevel() const { return m_tensionLevel; }
    void setTensionLevel(qint32 level) { m_tensionLevel = level; }

    /** The story moment of the scene. */
    [[nodiscard]] const std::optional<calendar::StoryInstant>& sceneInstant() const { return m_sceneInstant; }
    void setSceneInstant(std::optional<calendar::StoryInstant> instant) { m_sceneInstant = instant; }

    /** Words aimed at; 0 for none. */
    [[nodiscard]] qint32 wordCountTarget() const { return m_wordCountTarget; }
    void setWordCountTarget(qint32 words) { m_wordCountTarget = words; }

    /** Null at the top level. */
    [[nodiscard]] const ContentId& parentId() const { return m_parentId; }
    void setParentId(ContentId id) { m_parentId = id; }

    [[nodiscard]] qint32 sortIndex() const { return m_sortIndex; }
    void setSortIndex(qint32 index) { m_sortIndex = index; }

    /** Research sources the document cites. */
    [[nodiscard]] const std::vector<ContentId>& sourceIds() const { return m_sourceIds; }
    void setSourceIds(std::vector<ContentId> ids) { m_sourceIds = std::move(ids); }

    /** The text as it stood when the last screenplay revision was marked. */
    [[nodiscard]] const QString& revisionBaseline() const { return m_revisionBaseline; }
    void setRevisionBaseline(QString text) { m_revisionBaseline = std::move(text); }

    [[nodiscard]] const std::vector<DocumentVersion>& versions() const { return m_versions; }
    void setVersions(std::vector<DocumentVersion> versions) { m_versions = std::move(versions); }

    [[nodiscard]] const DocumentVariants& variants() const { return m_variants; }
    void setVariants(DocumentVariants variants) { m_variants = std::move(variants); }

    [[nodiscard]] const std::vector<Footnote>& footnotes() const { return m_footnotes; }
    void setFootnotes(std::vector<Footnote> footnotes) { m_footnotes = std::move(footnotes); }

    friend bool operator==(const Document& left, const Document& right);

private:
    DocumentKind m_kind;
    qint32 m_tensionLevel = 0;
    qint32 m_wordCountTarget = 0;
    qint32 m_sortIndex = 0;
    ContentId m_parentId;
    QString m_title;
    DocumentBody m_body;
    QString m_synopsis;
    QString m_status;
    QString m_pointOfView;
    std::optional<calendar::StoryInstant> m_sceneInstant;
    std::vector<ContentId> m_sourceIds;
    QString m_revisionBaseline;
    std::vector<DocumentVersion> m_versions;
    DocumentVariants m_variants;
    std::vector<Footnote> m_footnotes;
};

} // namespace tw::core::document
