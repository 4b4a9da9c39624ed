#include "core/research/Source.h"

namespace tw::core::research {

Source::Source(ContentId id, SourceDetails details)
    : ContentObject(id, staticKind)
    , m_details(std::move(details))
{}

Source::~Source() = default;

bool operator==(const Source& left, const Source& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_details == right.m_details;
}

} // namespace tw::core::research
