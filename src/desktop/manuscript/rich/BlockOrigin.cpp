#include "desktop/manuscript/rich/BlockOrigin.h"

namespace tw::desktop::manuscript::rich {

BlockOrigin::BlockOrigin(std::shared_ptr<BlockTally> tally, QTextBlock block)
    : m_tally(std::move(tally))
    , m_block(std::move(block))
{}

BlockOrigin::~BlockOrigin()
{
    m_tally->words -= m_words;
    if (m_isTouched)
        m_tally->touched.erase(this);
}

void BlockOrigin::touch()
{
    if (m_isTouched)
        return;
    m_isTouched = true;
    m_tally->touched.insert(this);
}

bool BlockOrigin::isBlank() const
{
    return kind == core::document::markup::BlockKind::Paragraph && content.view().trimmed().isEmpty();
}

QStringView BlockOrigin::source() const
{
    const bool isOnePiece =
        content.body.constData() == gap.body.constData() && gap.start == content.start + content.length;
    return isOnePiece ? QStringView(content.body).mid(content.start, content.length + gap.length)
                      : content.view();
}

void BlockOrigin::setPlace(int newPlace)
{
    place = newPlace;
    placedKind = kind;
    wasBlank = isBlank();
}

void BlockOrigin::setWords(qint64 words)
{
    m_tally->words += words - m_words;
    m_words = words;
}

} // namespace tw::desktop::manuscript::rich
