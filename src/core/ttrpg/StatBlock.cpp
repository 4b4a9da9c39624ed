#include "core/ttrpg/StatBlock.h"

namespace tw::core::ttrpg {

StatBlock::StatBlock(ContentId id, StatBlockDetails details)
    : ContentObject(id, staticKind)
    , m_details(std::move(details))
{}

StatBlock::~StatBlock() = default;

bool operator==(const StatBlock& left, const StatBlock& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_details == right.m_details;
}

} // namespace tw::core::ttrpg
