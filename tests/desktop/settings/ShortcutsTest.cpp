#include "desktop/settings/Shortcuts.h"

#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/TypingSettings.h"
#include "desktop/proofreading/ProofreadingService.h"
#include "desktop/settings/AutosaveChoice.h"
#include "desktop/settings/SettingsDialog.h"
#include "desktop/support/TestDesk.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

#include <gtest/gtest.h>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto savePosition = 0U;
constexpr auto findPosition = 1U;
constexpr auto treePosition = 2U;
constexpr auto otherTreePosition = 3U;

class ShortcutsTest : public testing::Test
{
protected:
    ShortcutsTest()
        : file(*menus.addMenu(u"&File"_s))
        , save(add(file, u"&Save"_s, u"Ctrl+S"_s))
        , find(add(*file.addMenu(u"&More"_s), u"Find && Replace"_s, u"Ctrl+F"_s))
        , inTree(add(file, u"Remove"_s, u"Del"_s))
        , inOtherTree(add(file, u"Remove Too"_s, u"Del"_s))
    {
        inTree.setShortcutContext(Qt::WidgetWithChildrenShortcut);
        inTree.setParent(&tree);
        inOtherTree.setShortcutContext(Qt::WidgetWithChildrenShortcut);
        inOtherTree.setParent(&otherTree);
        file.addSeparator();
        file.addAction(u"Without a name"_s);
        // The order of the menu is that of the list.
        start();
    }

    /** As the next start of the program would, with what is in the settings. */
    void start()
    {
        shortcuts = std::make_unique<Shortcuts>(desk.settings, nullptr);
        shortcuts->collect(menus);
    }

    static QAction& add(QMenu& menu, const QString& text, const QString& keys)
    {
        QAction& action = *menu.addAction(text);
        action.setObjectName(u"test."_s + text);
        action.setShortcut(QKeySequence(keys));
        return action;
    }

    test::TestDesk desk;
    QMenuBar menus;
    QMenu& file;
    QAction& save;
    QAction& find;
    QObject tree;
    QObject otherTree;
    QAction& inTree;
    QAction& inOtherTree;
    std::unique_ptr<Shortcuts> shortcuts;
};

} // namespace

TEST_F(ShortcutsTest, everyNamedActionIsListedAsItReads)
{
    ASSERT_EQ(shortcuts->all().size(), 4U);
    EXPECT_EQ(shortcuts->all()[savePosition].title, u"Save"_s);
    EXPECT_EQ(shortcuts->all()[findPosition].title, u"Find & Replace"_s);
    EXPECT_EQ(shortcuts->all()[findPosition].menu, u"File › More"_s);
}

TEST_F(ShortcutsTest, conflictsAreOnlyWhereBothCanAnswer)
{
    const auto conflict = [this](std::size_t position, const QString& keys) {
        const Shortcut* const other =
            findConflict(shortcuts->all(), shortcuts->all()[position], QKeySequence(keys));
        return other ? other->title : QString();
    };
    EXPECT_EQ(conflict(savePosition, u"Ctrl+F"_s), u"Find & Replace"_s);
    EXPECT_EQ(conflict(savePosition, u"Ctrl+S"_s), QString()) << "its own keys";
    EXPECT_EQ(conflict(savePosition, u"Del"_s), u"Remove"_s);
    EXPECT_EQ(conflict(treePosition, u"Del"_s), QString()) << "two panels never have the focus at once";
    EXPECT_EQ(conflict(otherTreePosition, u"Ctrl+S"_s), u"Save"_s);
    EXPECT_EQ(conflict(savePosition, {}), QString());
}

TEST_F(ShortcutsTest, chosenKeysHoldAtOnceAndAtTheNextStart)
{
    shortcuts->assign(savePosition, QKeySequence(u"Ctrl+F"_s));
    shortcuts->clear(treePosition);
    for (const bool isNextStart : {false, true}) {
        if (isNextStart) {
            save.setShortcut(QKeySequence(u"Ctrl+S"_s));
            find.setShortcut(QKeySequence(u"Ctrl+F"_s));
            inTree.setShortcut(QKeySequence(u"Del"_s));
            start();
        }
        EXPECT_EQ(save.shortcut(), QKeySequence(u"Ctrl+F"_s));
        EXPECT_TRUE(find.shortcuts().isEmpty()) << "the other one lost them";
        EXPECT_TRUE(inTree.shortcuts().isEmpty());
        EXPECT_EQ(inOtherTree.shortcut(), QKeySequence(u"Del"_s));
    }

    shortcuts->reset(findPosition);
    EXPECT_EQ(find.shortcut(), QKeySequence(u"Ctrl+F"_s));
    EXPECT_TRUE(save.shortcuts().isEmpty()) << "no keys belong to two";
    shortcuts->resetAll();
    EXPECT_EQ(save.shortcut(), QKeySequence(u"Ctrl+S"_s));
    EXPECT_EQ(inTree.shortcut(), QKeySequence(u"Del"_s));
    desk.settings.beginGroup(u"shortcuts"_s);
    EXPECT_TRUE(desk.settings.allKeys().isEmpty()) << "standard keys are not stored";
    desk.settings.endGroup();
}

TEST_F(ShortcutsTest, theDialogTakesEffectAtOnce)
{
    const proofreading::SpellingPlaces places{desk.folder.filePath(u"userdictionary.txt"_s), {}};
    proofreading::ProofreadingService service(desk.context, places, nullptr);
    service.addToDictionary(u"Thalos"_s);
    SettingsDialog dialog(desk.context, *shortcuts, service, nullptr);
    const QSignalSpy pageStyle(&dialog, &SettingsDialog::editorSettingsChanged);
    dialog.findChild<QSpinBox*>(u"autosaveInterval"_s)->setValue(120);
    dialog.findChild<QCheckBox*>(u"autosave"_s)->click();
    const shell::AutosaveSettings expected{false, std::chrono::seconds(120)};
    EXPECT_TRUE(autosaveFrom(desk.settings) == expected);
    auto* const themes = dialog.findChild<QComboBox*>(u"theme"_s);
    themes->setCurrentIndex(themes->findData(u"Dark"_s));
    emit themes->activated(themes->currentIndex());
    EXPECT_EQ(desk.themes.theme().name, u"Dark"_s);
    dialog.findChild<QCheckBox*>(u"reduceMotion"_s)->click();
    EXPECT_TRUE(theme::ThemeManager(desk.settings).isMotionReduced());
    dialog.findChild<QCheckBox*>(u"marksStyle"_s)->click();
    dialog.findChild<QCheckBox*>(u"rule.adverb"_s)->click();
    EXPECT_TRUE(service.settings().marksStyle);
    EXPECT_EQ(service.settings().disabledRules, QSet<QString>{u"adverb"_s});
    dialog.findChild<QListWidget*>(u"userWords"_s)->selectAll();
    dialog.findChild<QPushButton*>(u"removeWords"_s)->click();
    EXPECT_TRUE(service.userWords().isEmpty());
    dialog.findChild<QSpinBox*>(u"pageWidth"_s)->setValue(80);
    EXPECT_EQ(pageStyle.size(), 1);
    EXPECT_EQ(manuscript::pageStyleFrom(desk.settings).columnCharacters, 80);
    EXPECT_TRUE(manuscript::typingRulesFrom(desk.settings).joinsDashes);
    dialog.findChild<QCheckBox*>(u"autoCorrect"_s)->click();
    const app::typing::TypingRules rules = manuscript::typingRulesFrom(desk.settings);
    EXPECT_TRUE(!rules.quotes && !rules.joinsDashes && !rules.joinsEllipsis);
}

TEST(AutosaveChoice, unreadableSettingsAreBroughtIntoRange)
{
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(u"s.ini"_s), QSettings::IniFormat);
    EXPECT_TRUE(autosaveFrom(settings) == shell::AutosaveSettings());
    for (const QString& tooShortOrNoNumber : {u"5"_s, u"-5"_s, u"30.7"_s, u"1e3"_s, u"inf"_s, u""_s}) {
        settings.setValue("editor/autosaveIntervalSeconds", tooShortOrNoNumber);
        EXPECT_EQ(autosaveFrom(settings).interval, std::chrono::seconds(15))
            << tooShortOrNoNumber.toStdString();
    }
    settings.setValue("editor/autosaveIntervalSeconds", u"soon"_s);
    settings.setValue("editor/autosave", u"perhaps"_s);
    EXPECT_EQ(autosaveFrom(settings).interval, std::chrono::seconds(15));
    EXPECT_FALSE(autosaveFrom(settings).isOn);
    for (const QString& tooLong : {u"99999"_s, u"123456789012345678901234567890"_s}) {
        settings.setValue("editor/autosaveIntervalSeconds", tooLong);
        EXPECT_EQ(autosaveFrom(settings).interval, std::chrono::seconds(3600));
    }
}

} // namespace tw::desktop::settings
