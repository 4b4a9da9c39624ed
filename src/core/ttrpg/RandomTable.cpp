#include "core/ttrpg/RandomTable.h"

namespace tw::core::ttrpg {

RandomTable::RandomTable(ContentId id, RandomTableDetails details)
    : ContentObject(id, staticKind)
    , m_details(std::move(details))
{}

RandomTable::~RandomTable() = default;

bool operator==(const RandomTable& left, const RandomTable& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_details == right.m_details;
}

} // namespace tw::core::ttrpg
