#include "desktop/proofreading/BlockFindings.h"

#include <QTextBlock>

#include <algorithm>

namespace tw::desktop::proofreading {

BlockFindings::BlockFindings(const QTextDocument& document)
    : m_document(document)
    , m_paragraphs(static_cast<std::size_t>(document.blockCount()))
{}

void BlockFindings::expireAll()
{
    for (Paragraph& paragraph : m_paragraphs)
        paragraph.isExpired = true;
    m_firstExpired = 0;
}

void BlockFindings::noteChange(int position, int removed, int added)
{
    const QTextBlock firstBlock = m_document.findBlock(position);
    QTextBlock lastBlock = m_document.findBlock(position + added);
    if (!lastBlock.isValid())
        lastBlock = m_document.lastBlock();
    const int first = std::max(0, firstBlock.blockNumber());
    const int last = std::max(first, lastBlock.blockNumber());
    const int growth = m_document.blockCount() - static_cast<int>(m_paragraphs.size());
    // Before the change, these were the paragraphs up to `last - growth`.
    const auto begin = m_paragraphs.begin() + std::min<std::ptrdiff_t>(first, std::ssize(m_paragraphs));
    if (growth > 0)
        m_paragraphs.insert(begin, static_cast<std::size_t>(growth), Paragraph());
    else
        m_paragraphs.erase(begin, begin + std::min<std::ptrdiff_t>(-growth, m_paragraphs.end() - begin));
    m_paragraphs.resize(static_cast<std::size_t>(m_document.blockCount()));

    const bool isWithinOne = growth == 0 && first == last;
    for (int block = first; block <= last; ++block) {
        Paragraph& paragraph = m_paragraphs[static_cast<std::size_t>(block)];
        paragraph.isExpired = true;
        if (isWithinOne)
            moveFindings(paragraph, position - firstBlock.position(), removed, added);
        // Changes of format report as much added as removed, and the text stays.
        else if (growth != 0 || removed != added)
            paragraph.findings.clear();
    }
    m_firstExpired = std::min(m_firstExpired, static_cast<std::size_t>(first));
}

void BlockFindings::moveFindings(Paragraph& paragraph, qsizetype start, int removed, int added)
{
    if (removed == added)
        return;
    std::erase_if(paragraph.findings, [&](const ProseFinding& finding) {
        return finding.start < start + removed && finding.end() > start;
    });
    for (ProseFinding& finding : paragraph.findings) {
        if (finding.start >= start + removed)
            finding.start += added - removed;
    }
}

int BlockFindings::nextExpired(int first, int last) const
{
    const int end = std::min(last + 1, static_cast<int>(m_paragraphs.size()));
    for (int block = std::max(first, 0); block < end; ++block) {
        if (m_paragraphs[static_cast<std::size_t>(block)].isExpired)
            return block;
    }
    return -1;
}

int BlockFindings::nextExpired()
{
    while (m_firstExpired < m_paragraphs.size() && !m_paragraphs[m_firstExpired].isExpired)
        ++m_firstExpired;
    return m_firstExpired < m_paragraphs.size() ? static_cast<int>(m_firstExpired) : -1;
}

void BlockFindings::set(int block, std::vector<ProseFinding> findings)
{
    m_paragraphs[static_cast<std::size_t>(block)] = {std::move(findings), false};
}

const std::vector<ProseFinding>& BlockFindings::of(int block) const
{
    static const std::vector<ProseFinding> none;
    const auto index = static_cast<std::size_t>(block);
    return index < m_paragraphs.size() ? m_paragraphs[index].findings : none;
}

} // namespace tw::desktop::proofreading
