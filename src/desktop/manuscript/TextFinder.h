#pragma once

#include "app/search/TextQuery.h"
#include "core/document/Document.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QTextBlock;
class QTextDocument;

namespace tw::desktop::manuscript {

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
    explicit TextFinder(const app::search::TextQuery& query);

    [[nodiscard]] bool isEmpty() const { return m_isEmpty; }
    /** Why the regular expression cannot be read; empty when it can. */
    [[nodiscard]] const QString& error() const { return m_error; }

    /** In order; no more than `most`. Matches without characters are none. */
    [[nodiscard]] std::vector<FoundPlace> findAll(const QTextDocument& document, std::size_t most) const;
    /** The first place that begins at or behind `position`, or the last that begins before it. */
    [[nodiscard]] std::optional<FoundPlace> findFrom(const QTextDocument& document, int position) const;
    [[nodiscard]] std::optional<FoundPlace> findBefore(const QTextDocument& document, int position) const;

    /** Whether the prose of a body has a match, as far as that shows without a page. */
    [[nodiscard]] bool hasMatchIn(const core::document::DocumentBody& body) const;

    /** What stands at the place afterwards: \1 to \9 of a regular expression are its groups. */
    [[nodiscard]] QString replacementFor(
        const QTextDocument& document, const FoundPlace& place, const QString& replacement) const;

private:
    void eachIn(const QTextBlock& block, const std::function<bool(const FoundPlace& place)>& take) const;

    bool m_isEmpty = true;
    QString m_error;
    /** None when there is nothing to look for, or no way to. */
    std::optional<app::search::TextMatcher> m_matcher;
};

} // namespace tw::desktop::manuscript
