#include "core/canvas/Canvas.h"

#include <algorithm>

namespace tw::core::canvas {

Canvas::Canvas(ContentId id, QString title)
    : ContentObject(id, staticKind)
    , m_title(std::move(title))
{}

Canvas::~Canvas() = default;

std::optional<CanvasCard> Canvas::cardOf(const ContentId& objectId) const
{
    const auto card = std::ranges::find(m_cards, objectId, &CanvasCard::objectId);
    if (card == m_cards.end())
        return std::nullopt;
    return *card;
}

bool operator==(const Canvas& left, const Canvas& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_title == right.m_title && left.m_cards == right.m_cards &&
           left.m_connections == right.m_connections;
}

} // namespace tw::core::canvas
