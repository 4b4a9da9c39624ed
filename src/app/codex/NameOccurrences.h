#pragma once

#include "core/document/Document.h"
#include "core/foundation/SequenceDiff.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace tw::app::codex {

/**
 * Where a name stands in a text, by itself and exactly as it is written. What begins or ends with a letter or
 * digit must not go on there ("Marda" is not in "Mardana"); what begins or ends with another character may
 * stand anywhere. In order, without overlaps; nothing for an empty name.
 */
[[nodiscard]] std::vector<core::foundation::IndexRange> findName(QStringView text, QStringView name);

/** Letters, digits and the marks upon them make words. */
[[nodiscard]] bool isWordCharacter(char32_t character);
/** Of a surrogate pair the whole character; 0 outside the text. */
[[nodiscard]] char32_t characterBefore(QStringView text, qsizetype index);
[[nodiscard]] char32_t characterAt(QStringView text, qsizetype index);

struct NameChange
{
    QString oldName;
    QString newName;
};

/** A text with a name changed in it, and how often. */
template <class Text>
struct Renamed
{
    Text text;
    qsizetype count = 0;
};

[[nodiscard]] Renamed<QString> renamedText(const QString& text, const NameChange& change);

/**
 * The prose of a body renamed. Attribute groups, targets of links and labels of footnotes stay as they are,
 * and so does every character of a Markdown body outside the names, unless the new name needs escaping or the
 * old one had marks within it: then its block is written anew. A legacy body in which the name stands becomes
 * Markdown.
 */
[[nodiscard]] Renamed<core::document::DocumentBody> renamedBody(
    const core::document::DocumentBody& body, core::document::DocumentKind kind, const NameChange& change);

} // namespace tw::app::codex
