#pragma once

#include "desktop/proofreading/ProseCheck.h"

#include <QTextDocument>

#include <vector>

namespace tw::desktop::proofreading {

/**
 * What was found in each paragraph of a text document, kept beside it and in step with its changes: nothing
 * of the document is touched. The document must outlive it.
 */
class BlockFindings
{
public:
    explicit BlockFindings(const QTextDocument& document);

    /** Every paragraph has to be checked again; what was found stays until then. */
    void expireAll();
    /** After the document's contentsChange(), with its numbers. Findings move along with their text. */
    void noteChange(int position, int removed, int added);

    /** The first paragraph from `first` on that has to be checked; -1 for none. */
    [[nodiscard]] int nextExpired(int first, int last) const;
    /** The same over the whole document, in constant time when all is checked. */
    [[nodiscard]] int nextExpired();
    void set(int block, std::vector<ProseFinding> findings);
    [[nodiscard]] const std::vector<ProseFinding>& of(int block) const;

private:
    struct Paragraph
    {
        std::vector<ProseFinding> findings;
        bool isExpired = true;
    };

    void moveFindings(Paragraph& paragraph, qsizetype start, int removed, int added);

    const QTextDocument& m_document;
    std::vector<Paragraph> m_paragraphs;
    /** No paragraph before it has expired. */
    std::size_t m_firstExpired = 0;
};

} // namespace tw::desktop::proofreading
