#include "app/style/StyleRule.h"

namespace tw::app::style {

std::vector<StyleFinding> StyleRule::findings(QStringView text) const
{
    std::vector<StyleFinding> found;
    inspect(ScannedText(text), found);
    return found;
}

} // namespace tw::app::style
