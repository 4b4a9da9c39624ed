#pragma once

#include <QRegularExpression>
#include <QTextCursor>

#include <functional>
#include <optional>
#include <vector>

class QTextDocument;

namespace tw::desktop::manuscript {

/** What somebody looks for in a text. */
struct FindQuery
{
    QString text;
    bool isCaseSensitive = false;
    bool isWholeWord = false;
    bool isRegularExpression = false;

    friend bool operator==(const FindQuery&, const FindQuery&) = default;
};

struct FoundPlace
{
    int position = 0;
    int length = 0;

    friend bool operator==(const FoundPlace&, const FoundPlace&) = default;
};

/** Finds places in a text document as it is shown, paragraph by paragraph; a match never spans two. */
class TextFinder
{
public:
    TextFinder() = default;
    explicit TextFinder(const FindQuery& query);

    [[nodiscard]] bool isEmpty() const { return m_pattern.pattern().isEmpty(); }
    /** Why the regular expression cannot be read; empty when it can. */
    [[nodiscard]] QString error() const;

    /** In order; no more than `most`. Matches without characters are none. */
    [[nodiscard]] std::vector<FoundPlace> findAll(const QTextDocument& document, std::size_t most) const;
    /** The first place that begins at or behind `position`, or the last that begins before it. */
    [[nodiscard]] std::optional<FoundPlace> findFrom(const QTextDocument& document, int position) const;
    [[nodiscard]] std::optional<FoundPlace> findBefore(const QTextDocument& document, int position) const;

    /** What a found text becomes: \1 to \9 of a regular expression are its groups. */
    [[nodiscard]] QString replacementFor(const QString& found, const QString& replacement) const;

private:
    void eachIn(const QTextBlock& block, const std::function<bool(const FoundPlace& place)>& take) const;

    QRegularExpression m_pattern;
    bool m_isRegularExpression = false;
};

} // namespace tw::desktop::manuscript
