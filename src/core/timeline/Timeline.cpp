#include "core/timeline/Timeline.h"

namespace tw::core::timeline {

Timeline::Timeline(ContentId id, QString title)
    : ContentObject(id, staticKind)
    , m_title(std::move(title))
{}

Timeline::~Timeline() = default;

bool operator==(const Timeline& left, const Timeline& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_title == right.m_title && left.m_description == right.m_description &&
           left.m_sortIndex == right.m_sortIndex;
}

} // namespace tw::core::timeline
