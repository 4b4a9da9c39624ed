#pragma once

#include "core/content/ContentObject.h"

namespace tw::core::timeline {

/** A named strand of events. The events refer to it; it does not list them. */
class Timeline final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Timeline;

    Timeline(ContentId id, QString title);
    ~Timeline() override;

    [[nodiscard]] const QString& title() const { return m_title; }
    void setTitle(QString title) { m_title = std::move(title); }

    [[nodiscard]] const QString& description() const { return m_description; }
    void setDescription(QString description) { m_description = std::move(description); }

    [[nodiscard]] qint32 sortIndex() const { return m_sortIndex; }
    void setSortIndex(qint32 index) { m_sortIndex = index; }

    friend bool operator==(const Timeline& left, const Timeline& right);

private:
    QString m_title;
    QString m_description;
    qint32 m_sortIndex = 0;
};

} // namespace tw::core::timeline
