#include "desktop/manuscript/rich/BlockOrigin.h"

#include "core/document/markup/BodyWords.h"

namespace tw::desktop::manuscript::rich {

BlockOrigin::BlockOrigin(std::shared_ptr<TouchedBlocks> touched, QTextBlock block)
    : m_touched(std::move(touched))
    , m_block(std::move(block))
{}

BlockOrigin::~BlockOrigin()
{
    if (m_isTouched)
        m_touched->erase(this);
}

void BlockOrigin::touch()
{
    if (m_isTouched)
        return;
    m_isTouched = true;
    m_touched->insert(this);
}

qint64 BlockOrigin::words()
{
    if (m_words < 0)
        m_words = core::document::markup::countBodyWords(content.view());
    return m_words;
}

void BlockOrigin::setContent(SourcePiece piece)
{
    content = std::move(piece);
    m_words = -1;
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

} // namespace tw::desktop::manuscript::rich
