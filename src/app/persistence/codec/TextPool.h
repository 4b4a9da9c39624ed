#pragma once

#include <QSet>
#include <QString>

namespace tw::app::persistence {

/**
 * Makes equal short texts share their memory: field keys, statuses, colours and ids stand in thousands of
 * objects of a large project. Lives as long as a load takes and belongs to one thread at a time.
 */
class TextPool
{
public:
    [[nodiscard]] QString shared(QString text)
    {
        constexpr qsizetype longestShared = 40;
        if (text.size() > longestShared)
            return text;
        return *m_texts.insert(std::move(text));
    }

private:
    QSet<QString> m_texts;
};

} // namespace tw::app::persistence
