// How text becomes inline Markdown: a part of the writer of runs.
#pragma once

#include <QString>
#include <QStringView>

namespace tw::core::document::markup {

enum class Care
{
    /** Marks stand around as much text as they hold for, and little is escaped: what people write. */
    Usual,
    /** Marks stand around each run, in brackets that keep neighbours from changing what they mean. */
    Strict,
};

enum class Place
{
    Text,
    /** Between the brackets of a link or an image. */
    LinkText,
    /** Between the brackets of a group, whose text ends at the first closing bracket. */
    GroupText,
};

/** The text with everything escaped that would otherwise read as a mark there. Line starts are the writer's
 * matter. */
[[nodiscard]] QString escapedText(QStringView text, Place place, Care care);

/** A code span that holds exactly this text. */
[[nodiscard]] QString codeSpan(const QString& code);

} // namespace tw::core::document::markup
