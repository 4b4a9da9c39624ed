#pragma once

#include "core/document/markup/Blocks.h"

#include <QTextBlock>
#include <QTextBlockUserData>

#include <memory>
#include <unordered_set>

namespace tw::desktop::manuscript::rich {

class BlockOrigin;

/** A piece of a body, which it keeps alive: bodies are shared, not copied. */
struct SourcePiece
{
    QString body = {};
    qsizetype start = 0;
    qsizetype length = 0;

    [[nodiscard]] QStringView view() const { return QStringView(body).mid(start, length); }
};

/** What all blocks of one text document add up to, and which of them wait to be read back. */
struct BlockTally
{
    qint64 words = 0;
    std::unordered_set<BlockOrigin*> touched = {};
};

/**
 * Where a block of the text document comes from: the bytes it was read from, which are what it is written as
 * until somebody touches it. Belongs to the block and dies with it; a table's stands at its first cell.
 */
class BlockOrigin final : public QTextBlockUserData
{
public:
    BlockOrigin(std::shared_ptr<BlockTally> tally, QTextBlock block);
    ~BlockOrigin() override;

    BlockOrigin(const BlockOrigin&) = delete;
    BlockOrigin& operator=(const BlockOrigin&) = delete;

    [[nodiscard]] static BlockOrigin* of(const QTextBlock& block)
    {
        return static_cast<BlockOrigin*>(block.userData());
    }
    [[nodiscard]] const QTextBlock& block() const { return m_block; }

    /** Says that the block has to be read back. */
    void touch();
    void setTouched(bool isTouched) { m_isTouched = isTouched; }
    [[nodiscard]] bool isTouched() const { return m_isTouched; }

    [[nodiscard]] qint64 words() const { return m_words; }
    void setWords(qint64 words);

    /** A paragraph without anything in it, which a blank line stands for. */
    [[nodiscard]] bool isBlank() const;
    /** The content with the gap behind it, where both still are as they were read. */
    [[nodiscard]] QStringView source() const;
    /** The block stands there in the body now. */
    void setPlace(int newPlace);

    SourcePiece content;
    /** The line ends that follow; of no meaning when `place` is -1. */
    SourcePiece gap;
    core::document::markup::BlockKind kind = core::document::markup::BlockKind::Paragraph;
    /** What the gaps around the block were made for. */
    core::document::markup::BlockKind placedKind = core::document::markup::BlockKind::Paragraph;
    bool wasBlank = true;
    /** Among the blocks of the body as it was last read or written; -1 for a new one. */
    int place = -1;
    /** An empty block that the text document needs beside a table, and the body does not know. */
    bool isFiller = false;

private:
    std::shared_ptr<BlockTally> m_tally;
    QTextBlock m_block;
    qint64 m_words = 0;
    bool m_isTouched = false;
};

} // namespace tw::desktop::manuscript::rich
