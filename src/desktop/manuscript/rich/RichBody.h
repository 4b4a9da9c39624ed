#pragma once

#include "desktop/manuscript/rich/BlockOrigin.h"
#include "desktop/manuscript/rich/BodyUnits.h"

#include <QTextDocument>

class QTextTable;

namespace tw::desktop::manuscript::rich {

class RichFormats;

/**
 * Ties a Markdown body to a text document. A block that nobody touched is written back exactly as it was,
 * byte for byte; a touched one alone is written anew. Does not own the document; its holder reports every
 * change of it by noteChange(). Main thread.
 */
class RichBody
{
public:
    enum class Update
    {
        /** Cursors stayed where they were. */
        InPlace,
        /** The document was filled anew. */
        Whole,
    };

    RichBody(QTextDocument& document, const RichFormats& formats);

    /** Makes the document show this body, by the smallest edit. */
    Update apply(const QString& body);
    /** The body as the document has it now. Reads touched blocks, and joins all when there are any. */
    [[nodiscard]] const QString& text();
    /** Words of the body, marks of the markup not among them. */
    [[nodiscard]] qint64 words();
    /** Whether the last apply() or text() is still what the document says. */
    [[nodiscard]] bool isChanged() const { return m_isChanged; }

    void noteChange(int position, int added);
    /** For changes of a table that show nowhere else. */
    void touchTable(const QTextTable& table);

    /**
     * A text document needs a paragraph before its first and after its last table; where one was set at an
     * edge of the text, the empty paragraph there is none of the body's.
     */
    void leaveOutEmptyEdges();

    /** Gives everything the look that the formats have now; changes nothing that is written. */
    void restyle();

private:
    /** One block of the body as the text document holds it: a block, or a whole table. */
    struct Unit
    {
        QTextBlock block;
        QTextTable* table = nullptr;

        [[nodiscard]] BlockOrigin& origin() const { return *BlockOrigin::of(block); }
    };

    [[nodiscard]] std::vector<Unit> units() const;
    BlockOrigin& originAt(const QTextBlock& block) const;
    void settle();
    void readBack(BlockOrigin& origin);
    void appendGap(QString& text, const Unit& upper, const Unit& lower) const;

    /** Every cursor of the document costs at each insertion, so the one of the edit is used. */
    void fill(const BodyUnits& target, QTextCursor& cursor);
    [[nodiscard]] bool adjust(const BodyUnits& target);
    [[nodiscard]] bool adjustPairs(
        const std::vector<Unit>& present, const BodyUnits& target, std::size_t first, std::size_t count);
    [[nodiscard]] bool adjustRegion(
        const std::vector<Unit>& present, const BodyUnits& target, std::size_t first, std::size_t presentEnd,
        std::size_t targetEnd);
    void setOrigins(const BodyUnits& target);
    void setOrigin(const QTextBlock& block, const BodyUnit& unit, int place);

    QTextDocument& m_document;
    const RichFormats& m_formats;
    std::shared_ptr<TouchedBlocks> m_touched = std::make_shared<TouchedBlocks>();
    QString m_text;
    QString m_lead;
    /** What follows the last block. */
    QString m_tail;
    QString m_lineEnd;
    bool m_isChanged = false;
};

} // namespace tw::desktop::manuscript::rich
