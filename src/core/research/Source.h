#pragma once

#include "core/content/ContentObject.h"

#include <map>

namespace tw::core::research {

/** Everything of a source that one edit changes. */
struct SourceDetails
{
    /** "book", "article", "web", "interview", ... */
    QString sourceType;
    QString title;
    QString citationKey;
    /** Bibliographic field name to text ("author", "year", "publisher", ...). */
    std::map<QString, QString> fields;

    friend bool operator==(const SourceDetails&, const SourceDetails&) = default;
};

/** A work of research that documents cite. */
class Source final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Source;

    Source(ContentId id, SourceDetails details);
    ~Source() override;

    [[nodiscard]] const SourceDetails& details() const { return m_details; }
    void setDetails(SourceDetails details) { m_details = std::move(details); }

    friend bool operator==(const Source& left, const Source& right);

private:
    SourceDetails m_details;
};

} // namespace tw::core::research
