#include "core/conlang/Language.h"

namespace tw::core::conlang {

Language::Language(ContentId id, QString name)
    : ContentObject(id, staticKind)
{
    m_details.name = std::move(name);
}

Language::~Language() = default;

bool operator==(const Language& left, const Language& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_details == right.m_details && left.m_phonotactics == right.m_phonotactics &&
           left.m_orthography == right.m_orthography && left.m_soundChanges == right.m_soundChanges &&
           left.m_grammar == right.m_grammar && left.m_writingSystem == right.m_writingSystem;
}

} // namespace tw::core::conlang
