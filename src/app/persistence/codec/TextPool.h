#pragma once

#include <QSet>
#include <QString>

namespace tw::app::persistence {

/**
 * Makes equal texts share their memory: field keys, tags, statuses, colours and ids stand in thousands of
 * objects of a large project. Lives as long as a load takes and belongs to one thread at a time.
 */
class TextPool
{
public:
    [[nodiscard]] QString shared(QString text) { return *m_texts.insert(std::move(text)); }

    /** Shares texts of the length that statuses, colours and ids have; others seldom occur twice. */
    [[nodiscard]] QString sharedIfLikely(QString text)
    {
        constexpr qsizetype longestLabel = 12;
        constexpr qsizetype idLength = 36;
        const bool isLikely = !text.isEmpty() && (text.size() <= longestLabel || text.size() == idLength);
        return isLikely ? shared(std::move(text)) : text;
    }

private:
    QSet<QString> m_texts;
};

} // namespace tw::app::persistence
