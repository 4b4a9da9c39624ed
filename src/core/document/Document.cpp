#include "core/document/Document.h"

#include "core/foundation/NameTable.h"

namespace tw::core::document {

using namespace Qt::Literals::StringLiterals;

namespace {

using KindName = foundation::NamedValue<DocumentKind>;
using FormatName = foundation::NamedValue<BodyFormat>;

constexpr std::array documentKindNames{
    KindName{DocumentKind::Prose, "prose"_L1},
    KindName{DocumentKind::Screenplay, "screenplay"_L1},
    KindName{DocumentKind::Note, "note"_L1},
};

constexpr std::array bodyFormatNames{
    FormatName{BodyFormat::Markdown, "markdown"_L1},
    FormatName{BodyFormat::Html, "html"_L1},
};

} // namespace

QLatin1String documentKindName(DocumentKind kind)
{
    return foundation::nameOf(documentKindNames, kind);
}

std::optional<DocumentKind> documentKindFromName(QStringView name)
{
    return foundation::valueNamed(documentKindNames, name);
}

QLatin1String bodyFormatName(BodyFormat format)
{
    return foundation::nameOf(bodyFormatNames, format);
}

std::optional<BodyFormat> bodyFormatFromName(QStringView name)
{
    return foundation::valueNamed(bodyFormatNames, name);
}

Document::Document(ContentId id, DocumentKind kind, QString title)
    : ContentObject(id, staticKind)
    , m_kind(kind)
    , m_title(std::move(title))
{}

Document::~Document() = default;

bool operator==(const Document& left, const Document& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_kind == right.m_kind && left.m_tensionLevel == right.m_tensionLevel &&
           left.m_wordCountTarget == right.m_wordCountTarget && left.m_sortIndex == right.m_sortIndex &&
           left.m_parentId == right.m_parentId && left.m_title == right.m_title &&
           left.m_body == right.m_body && left.m_synopsis == right.m_synopsis &&
           left.m_status == right.m_status && left.m_pointOfView == right.m_pointOfView &&
           left.m_sceneInstant == right.m_sceneInstant && left.m_sourceIds == right.m_sourceIds &&
           left.m_revisionBaseline == right.m_revisionBaseline && left.m_versions == right.m_versions &&
           left.m_variants == right.m_variants && left.m_footnotes == right.m_footnotes;
}

} // namespace tw::core::document
