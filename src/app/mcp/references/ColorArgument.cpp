#include "app/mcp/references/ColorArgument.h"

#include <QRegularExpression>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

core::Result<QString> readColor(const ToolArguments& arguments)
{
    static const QRegularExpression written(u"\\A#[0-9a-fA-F]{6}\\z"_s);
    const QString color = arguments.text(u"color").trimmed();
    if (!color.isEmpty() && !written.match(color).hasMatch())
        return core::Failure{u"'%1' is not a color; write \"#rrggbb\", e.g. \"#a03020\"."_s.arg(color)};
    return color;
}

} // namespace tw::app::mcp
