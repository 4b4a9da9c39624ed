#pragma once

#include <QString>
#include <QStringView>

#include <optional>
#include <span>

namespace tw::app::typing {

/** The marks of one language; the spaces that belong inside them are part of the marks. */
struct QuotationMarks
{
    /** "en", "de", "de-CH": a language, and a country where it differs. */
    QLatin1StringView language;
    QStringView opening;
    QStringView closing;
    QStringView innerOpening;
    QStringView innerClosing;
};

/** Every language with marks of its own, English first. */
[[nodiscard]] std::span<const QuotationMarks> allQuotationMarks();
/** Of a language such as "de-CH", "de_AT" or "de"; English for unknown ones. */
[[nodiscard]] const QuotationMarks& quotationMarksOf(QStringView language);

struct TypingRules
{
    /** None: quotes stay as they are typed. */
    const QuotationMarks* quotes = nullptr;
    /** "--" is an en dash, "---" an em dash, and a hyphen between blanks an en dash. */
    bool joinsDashes = false;
    bool joinsEllipsis = false;

    [[nodiscard]] bool isEmpty() const { return !quotes && !joinsDashes && !joinsEllipsis; }
};

/** The last `removed` characters before the cursor become `inserted`. */
struct TypingCorrection
{
    qsizetype removed = 0;
    QString inserted;

    friend bool operator==(const TypingCorrection&, const TypingCorrection&) = default;
};

/**
 * What a typesetter would make of the character that was just typed, the last one of `text`, which is the
 * paragraph up to the cursor. None when it is fine as it is. Looks back no further than the paragraph.
 */
[[nodiscard]] std::optional<TypingCorrection> correctTyping(QStringView text, const TypingRules& rules);

} // namespace tw::app::typing
