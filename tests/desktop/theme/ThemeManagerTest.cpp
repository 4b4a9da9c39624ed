#include "desktop/theme/ThemeManager.h"

#include <QApplication>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tw::desktop::theme {
namespace {

using namespace Qt::Literals::StringLiterals;

const QString themeKey = u"appearance/theme"_s;
const QString scaleKey = u"a11y/uiFontScale"_s;

class ThemeManagerTest : public testing::Test
{
protected:
    QTemporaryDir m_folder;
    QSettings m_settings{m_folder.filePath(u"settings.ini"_s), QSettings::IniFormat};
};

TEST_F(ThemeManagerTest, storedChoiceDecidesTheTheme)
{
    struct Case
    {
        QVariant stored;
        QLatin1String expected;
    };
    for (const Case& row : {
             Case{{}, "Light"_L1},
             Case{u"Dark"_s, "Dark"_L1},
             Case{u"sepia"_s, "Sepia"_L1},
             Case{u"HighContrast"_s, "HighContrast"_L1},
             Case{u"Of a plugin that is gone"_s, "Light"_L1},
         }) {
        m_settings.setValue(themeKey, row.stored);
        const ThemeManager manager(m_settings);
        EXPECT_EQ(QString(manager.theme().name), QString(row.expected));
        EXPECT_EQ(m_settings.value(themeKey), row.stored);
    }
}

TEST_F(ThemeManagerTest, choosingIsStoredAndSaidOnce)
{
    ThemeManager manager(m_settings);
    QSignalSpy changes(&manager, &ThemeManager::themeChanged);
    manager.setChoice(u"Dark"_s);
    manager.setChoice(u"Dark"_s);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(m_settings.value(themeKey).toString(), u"Dark"_s);
    EXPECT_EQ(QString(manager.theme().name), u"Dark"_s);
}

TEST_F(ThemeManagerTest, fontScaleStaysInItsRange)
{
    for (const auto& [stored, expected] : {
             std::pair<QVariant, qreal>{{}, 1.0},
             {1.5, 1.5},
             {u"1.25"_s, 1.25},
             {0.01, 0.75},
             {40, 2.0},
             {u"large"_s, 1.0},
             {u"nan"_s, 1.0},
         }) {
        m_settings.setValue(scaleKey, stored);
        EXPECT_DOUBLE_EQ(ThemeManager(m_settings).fontScale(), expected) << stored.toString().toStdString();
    }
}

TEST_F(ThemeManagerTest, anAppliedThemeFollowsTheChoice)
{
    ThemeManager manager(m_settings);
    manager.apply(*qApp);
    QLineEdit field;
    const qreal points = QApplication::font().pointSizeF();
    for (const Theme& theme : builtInThemes()) {
        manager.setChoice(theme.name);
        EXPECT_EQ(field.palette().color(QPalette::Base), theme.color(Role::Page));
        EXPECT_EQ(field.palette().color(QPalette::Text), theme.color(Role::Ink));
    }
    manager.setFontScale(1.5);
    EXPECT_DOUBLE_EQ(QApplication::font().pointSizeF(), 1.5 * points);
}

TEST_F(ThemeManagerTest, theFieldWithTheKeyboardShowsTheAccent)
{
    ThemeManager manager(m_settings);
    manager.apply(*qApp);
    QWidget window;
    QLineEdit field(&window);
    field.resize(field.sizeHint());
    window.show();
    const auto edge = [&] { return field.grab().toImage().pixelColor(field.width() / 2, 0); };
    field.clearFocus();
    EXPECT_NE(edge(), manager.theme().color(Role::Accent));
    window.activateWindow();
    field.setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(edge(), manager.theme().color(Role::Accent));
}

} // namespace
} // namespace tw::desktop::theme
