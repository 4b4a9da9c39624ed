#include "desktop/icons/IconSet.h"

#include "desktop/icons/LineIconEngine.h"
#include "desktop/theme/ThemeManager.h"

#include <QPainter>
#include <QSvgRenderer>

// Resources of a static library are linked only when something names them; the macro wants the global
// namespace.
static void initializeIconResources()
{
    Q_INIT_RESOURCE(icons);
}

namespace tw::desktop::icons {

using namespace Qt::Literals::StringLiterals;

IconSet::IconSet(const theme::ThemeManager& themes, QObject* parent)
    : QObject(parent)
    , m_themes(themes)
    , m_colors(std::make_shared<IconColors>())
{
    initializeIconResources();
    takeUpTheme();
    connect(&m_themes, &theme::ThemeManager::themeChanged, this, &IconSet::takeUpTheme);
}

IconSet::~IconSet() = default;

QIcon IconSet::icon(Icon icon) const
{
    return QIcon(new LineIconEngine(iconName(icon), m_colors));
}

QIcon IconSet::icon(Icon icon, const QColor& color) const
{
    auto colors = std::make_shared<IconColors>(*m_colors);
    colors->normal = color;
    return QIcon(new LineIconEngine(iconName(icon), std::move(colors)));
}

void IconSet::takeUpTheme()
{
    const theme::Theme& theme = m_themes.theme();
    m_colors->normal = theme.color(theme::Role::Ink);
    m_colors->disabled = theme.color(theme::Role::FaintInk);
    m_colors->selected = theme.color(theme::Role::SelectionInk);
}

QIcon applicationIcon()
{
    initializeIconResources();
    QIcon result;
    QSvgRenderer renderer(u":/icons/vellory.svg"_s);
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        renderer.render(&painter);
        result.addPixmap(pixmap);
    }
    return result;
}

} // namespace tw::desktop::icons
