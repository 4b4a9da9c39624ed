#include "desktop/icons/IconSet.h"

#include "desktop/theme/ThemeManager.h"

#include <QDir>
#include <QImage>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace tw::desktop::icons {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Ink
{
    int pixels = 0;
    bool touchesEdge = false;
    QColor color; // of the most opaque pixel
};

Ink inkOf(const QPixmap& pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    Ink ink;
    int strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) == 0)
                continue;
            ++ink.pixels;
            ink.touchesEdge |= x == 0 || y == 0 || x == image.width() - 1 || y == image.height() - 1;
            if (qAlpha(pixel) > strongest) {
                strongest = qAlpha(pixel);
                ink.color = QColor(pixel);
            }
        }
    }
    return ink;
}

class IconSetTest : public testing::Test
{
protected:
    QTemporaryDir m_folder;
    QSettings m_settings{m_folder.filePath(u"settings.ini"_s), QSettings::IniFormat};
    theme::ThemeManager m_themes{m_settings};
    IconSet m_icons{m_themes};
};

TEST_F(IconSetTest, everyIconIsDrawnWithinItsSquare)
{
    for (const NamedIcon& named : allIcons()) {
        for (const int size : {16, 24, 60}) {
            const Ink ink = inkOf(m_icons.icon(named.icon).pixmap(size));
            EXPECT_GT(ink.pixels, size / 2) << named.name.data() << " at " << size;
            EXPECT_FALSE(ink.touchesEdge) << named.name.data() << " at " << size;
        }
    }
}

TEST_F(IconSetTest, everyDrawingHasAName)
{
    std::set<QString> named{u"vellory.svg"_s};
    for (const NamedIcon& icon : allIcons())
        named.insert(icon.name + ".svg"_L1);
    for (const QString& file : QDir(u":/icons"_s).entryList())
        EXPECT_TRUE(named.contains(file)) << file.toStdString();
}

TEST_F(IconSetTest, everyKindHasAnIconOfItsOwn)
{
    std::set<Icon> seen;
    for (const auto kind : core::content::allContentKinds)
        seen.insert(iconForKind(kind));
    EXPECT_EQ(seen.size(), core::content::allContentKinds.size());
}

TEST_F(IconSetTest, modesAndThemesTintTheIcon)
{
    const QIcon icon = m_icons.icon(Icon::Save);
    const QIcon fixed = m_icons.icon(Icon::Save, Qt::red);
    for (const theme::Theme& theme : theme::builtInThemes()) {
        m_themes.setChoice(theme.name);
        EXPECT_EQ(inkOf(icon.pixmap(48)).color, theme.color(theme::Role::Ink));
        EXPECT_EQ(inkOf(icon.pixmap(48, QIcon::Disabled)).color, theme.color(theme::Role::FaintInk));
        EXPECT_EQ(inkOf(icon.pixmap(48, QIcon::Selected)).color, theme.color(theme::Role::SelectionInk));
        EXPECT_EQ(inkOf(fixed.pixmap(48)).color, QColor(Qt::red));
    }
}

TEST_F(IconSetTest, highResolutionScreensGetTheirOwnDrawing)
{
    for (const qreal scale : {1.25, 1.5, 2.0, 2.5}) {
        const QPixmap pixmap = m_icons.icon(Icon::Map).pixmap(QSize(16, 16), scale);
        EXPECT_EQ(pixmap.width(), qRound(16 * scale));
        EXPECT_DOUBLE_EQ(pixmap.devicePixelRatio(), scale);
    }
}

TEST(ApplicationIcon, comesInEverySizeADesktopAsksFor)
{
    for (const int size : {16, 32, 48, 256})
        EXPECT_GT(inkOf(applicationIcon().pixmap(size)).pixels, size * size / 2) << size;
}

} // namespace
} // namespace tw::desktop::icons
