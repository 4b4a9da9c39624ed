#pragma once

#include <QString>

#include <vector>

namespace tw::core::document::markup {

/** What plain Markdown cannot say of a paragraph or heading; written as a group "{.tw ...}" at the end of its
 * text. */
struct BlockAttributes
{
    /** "left", "center", "right" or "justify"; other names are kept. Empty for the default. */
    QString align = {};
    /** Factor of the line height; 0 for the default. */
    double spacing = 0;
    /** Levels of indentation. */
    qint32 indent = 0;
    /** Whether the block starts a new page. */
    bool pageBreak = false;
    /** The name of a paragraph style; empty for none. */
    QString style = {};

    [[nodiscard]] bool isEmpty() const { return *this == BlockAttributes(); }
    friend bool operator==(const BlockAttributes&, const BlockAttributes&) = default;
};

/** What plain Markdown cannot say of a run of text; written as "[text]{.tw ...}". */
struct InlineAttributes
{
    /** Colours as text: "#rrggbb" or a name. Empty for none. */
    QString color = {};
    QString background = {};
    QString font = {};
    /** In points; 0 for none. */
    qint32 size = 0;
    bool underline = false;
    bool superscript = false;
    bool subscript = false;

    [[nodiscard]] bool isEmpty() const { return *this == InlineAttributes(); }
    friend bool operator==(const InlineAttributes&, const InlineAttributes&) = default;
};

/** What every group begins with; it ends with the next "}". */
inline constexpr QStringView groupStart = u"{.tw";

/** A stretch of a text. */
struct SourceRange
{
    qsizetype start = 0;
    qsizetype end = 0;
};

/** All groups in a text, whatever they stand in, in ascending order. */
[[nodiscard]] std::vector<SourceRange> findGroups(QStringView text);

/**
 * The whole group, "{.tw" and "}" included; nothing for an empty record. Characters that no value can hold
 * (double quotes, closing braces, line ends) are left out of it.
 */
[[nodiscard]] QString writeBlockAttributes(const BlockAttributes& attributes);
[[nodiscard]] QString writeInlineAttributes(const InlineAttributes& attributes);

/** Reads what stands between "{.tw" and "}". Unknown words are ignored; numbers that do not read are 0. */
[[nodiscard]] BlockAttributes readBlockAttributes(QStringView group);
[[nodiscard]] InlineAttributes readInlineAttributes(QStringView group);

} // namespace tw::core::document::markup
