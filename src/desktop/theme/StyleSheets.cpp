#include "desktop/theme/StyleSheets.h"

#include <QFile>

// Resources of a static library are linked only when something names them; the macro wants the global
// namespace.
static void initializeThemeResources()
{
    Q_INIT_RESOURCE(theme);
}

namespace tw::desktop::theme {

using namespace Qt::Literals::StringLiterals;

namespace {

struct NamedRole
{
    QLatin1String name;
    Role role;
};

// The tokens of the sheets. No name may be the beginning of a later one.
constexpr std::array tokens{
    NamedRole{"@window"_L1, Role::Window},
    NamedRole{"@panel"_L1, Role::Panel},
    NamedRole{"@page"_L1, Role::Page},
    NamedRole{"@ink"_L1, Role::Ink},
    NamedRole{"@quietInk"_L1, Role::QuietInk},
    NamedRole{"@faintInk"_L1, Role::FaintInk},
    NamedRole{"@accentInk"_L1, Role::AccentInk},
    NamedRole{"@accent"_L1, Role::Accent},
    NamedRole{"@line"_L1, Role::Line},
    NamedRole{"@border"_L1, Role::Border},
    NamedRole{"@selectionInk"_L1, Role::SelectionInk},
    NamedRole{"@selection"_L1, Role::Selection},
    NamedRole{"@hover"_L1, Role::Hover},
    NamedRole{"@shade"_L1, Role::Shade},
};

QString filledSheet(const QString& path, const Theme& theme)
{
    initializeThemeResources();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("A style sheet is missing from the program");
    QString sheet = QString::fromUtf8(file.readAll());
    for (const auto& token : tokens)
        sheet.replace(token.name, theme.color(token.role).name());
    return sheet;
}

} // namespace

QString applicationStyleSheet(const Theme& theme)
{
    return filledSheet(u":/theme/application.qss"_s, theme);
}

QString dockingStyleSheet(const Theme& theme)
{
    return filledSheet(u":/theme/docking.qss"_s, theme);
}

} // namespace tw::desktop::theme
