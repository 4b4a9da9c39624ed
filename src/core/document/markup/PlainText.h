#pragma once

#include "core/document/Document.h"

#include <vector>

namespace tw::core::document::markup {

struct InlinePiece;
struct SourceRange;

/** A stretch of the prose that belongs to one block, or to one cell of a table. */
struct PlainPart
{
    /** In PlainText::text. */
    qsizetype start = 0;
    qsizetype length = 0;
    /** The block's index in parseBlocks() of the body. */
    std::size_t block = 0;
    /** In a table; 0 elsewhere. */
    std::size_t row = 0;
    std::size_t column = 0;
};

/**
 * The prose of a Markdown body, for searching and for analysis: no marks, no groups (wherever they stand in a
 * block), no footnote references, no descriptions of images. Blocks are parted by \n, cells by tabs; a soft
 * break is a blank.
 */
class PlainText
{
public:
    explicit PlainText(QStringView body);

    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] const std::vector<PlainPart>& parts() const { return m_parts; }

    /** Where in the body the character at an offset of text() stands. */
    [[nodiscard]] qsizetype toBody(qsizetype offset) const;
    /** Where in the body the text before an offset of text() ends. */
    [[nodiscard]] qsizetype endInBody(qsizetype offset) const;

private:
    /** Text and where it comes from; character by character when both lengths are equal. */
    struct Segment
    {
        qsizetype start = 0;
        qsizetype length = 0;
        qsizetype body = 0;
        qsizetype bodyLength = 0;
    };

    void append(QStringView text, qsizetype body, qsizetype bodyLength);
    /** Text that stands in its source as it is, from `start` on, without the groups. */
    template <class ToBody>
    void appendOutside(
        const std::vector<SourceRange>& groups, QStringView text, qsizetype start, ToBody& toBody);
    template <class ToBody>
    void appendConverted(const std::vector<SourceRange>& groups, const InlinePiece& piece, ToBody& toBody);
    template <class ToBody>
    void appendInline(QStringView text, ToBody toBody);
    [[nodiscard]] const Segment* segmentAt(qsizetype offset) const;

    QString m_text;
    std::vector<PlainPart> m_parts;
    std::vector<Segment> m_segments;
};

/** The prose of a body in either format. */
[[nodiscard]] QString plainText(const DocumentBody& body);

} // namespace tw::core::document::markup
