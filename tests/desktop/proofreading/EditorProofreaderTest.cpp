#include "desktop/proofreading/ProofreadingFixture.h"

#include "core/document/DocumentCommands.h"
#include "core/entity/Entity.h"
#include "core/writing/WritingCommands.h"
#include "desktop/proofreading/ProseText.h"

#include <QAction>
#include <QMenu>
#include <QTest>
#include <QTextBlock>

namespace tw::desktop::proofreading {

using namespace Qt::Literals::StringLiterals;

namespace {

using EditorProofreaderTest = test::ProofreadingFixture;

QAction* actionNamed(const QMenu& menu, const QString& text)
{
    for (QAction* const action : menu.actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

TEST_F(EditorProofreaderTest, marksWhatIsWrongInEachParagraphAndNothingOfTheMarkup)
{
    open(u"The *shipp* sailed quickly\n\nthe the ship\n\n```\nshipp\n```\n\nat `dawnn` {.tw align=center}"_s);
    EXPECT_EQ(
        marked(), (QStringList{u"spelling: shipp"_s, u"adverb: quickly"_s, u"repeated-word: the the"_s}));
}

TEST_F(EditorProofreaderTest, putsASuggestionInAsOneNamedStep)
{
    open(u"They sailed **In order to** win"_s);
    ASSERT_EQ(marked(), QStringList{u"wordiness: In order to"_s});
    const auto place = proofreader().findingAt(15);
    ASSERT_TRUE(place);
    QMenu menu;
    proofreader().fillMenu(menu, *place);
    QAction* const suggestion = actionNamed(menu, u"To"_s);
    ASSERT_TRUE(suggestion);
    QTest::keyClicks(&page->editor(), u"X"_s);
    proofreader().finishNow();
    // The menu knows the place as it was: a text that has changed there stays as it is.
    suggestion->trigger();
    EXPECT_EQ(page->editor().toPlainText(), u"XThey sailed In order to win"_s);

    QMenu fresh;
    proofreader().fillMenu(fresh, *proofreader().findingAt(16));
    actionNamed(fresh, u"To"_s)->trigger();
    EXPECT_EQ(body(), u"XThey sailed **To** win"_s);
    desk.session.undo();
    EXPECT_EQ(body(), u"XThey sailed **In order to** win"_s);
    desk.session.undo();
    EXPECT_EQ(body(), u"They sailed **In order to** win"_s);
}

TEST_F(EditorProofreaderTest, ignoresARemarkInThisDocumentAlone)
{
    open(u"the shipp and the shipp"_s);
    service->ignore(id, ProblemKind::Spelling, u"shipp"_s);
    EXPECT_EQ(marked(), QStringList());
    EXPECT_FALSE(service->ignored(core::ContentId::create()).contains(ProblemKind::Spelling, u"shipp"));
    EXPECT_EQ(desk.session.undoText(), u"Ignore finding"_s);
    desk.session.undo();
    EXPECT_EQ(marked(), (QStringList{u"spelling: shipp"_s, u"spelling: shipp"_s}));
    desk.session.redo();
    service->restoreIgnored(id);
    EXPECT_EQ(marked(), (QStringList{u"spelling: shipp"_s, u"spelling: shipp"_s}));
    EXPECT_TRUE(desk.session.project().proofreading().empty()) << "nothing is kept of what is nothing";
}

TEST_F(EditorProofreaderTest, manyIgnoredFindingsCostATypistNothing)
{
    open(u"the ship"_s);
    QStringList keys;
    for (int number = 0; number < 10'000; ++number)
        keys.append(u"spelling word%1"_s.arg(number));
    desk.session.apply(std::make_unique<core::writing::SetProofreadingCommand>(
        desk.session.projectForCommands(), std::vector<core::writing::DocumentProofreading>{{id, {}, keys}}));
    EXPECT_EQ(marked(), QStringList());
    const IgnoredFindings* const read = &service->ignored(id);
    int told = 0;
    QObject::connect(service.get(), &ProofreadingService::ignoredChanged, service.get(), [&] { ++told; });
    QTest::keyClicks(&page->editor(), u"word7 word9999 shipp "_s);
    desk.session.commitPendingEdits();
    EXPECT_EQ(marked(), QStringList{u"spelling: shipp"_s});
    EXPECT_EQ(&service->ignored(id), read) << "nobody reads the list again";
    EXPECT_EQ(told, 0);
    service->ignore(id, ProblemKind::Spelling, u"shipp"_s);
    EXPECT_EQ(marked(), QStringList());
    EXPECT_EQ(desk.session.project().proofreading().front().ignored.size(), 10'000) << "the oldest went";
    EXPECT_EQ(told, 1);
}

TEST_F(EditorProofreaderTest, whatTheSettingsKeptMovesIntoTheProjectOnce)
{
    open(u"the shipp"_s);
    const QString project = desk.folder.filePath(u"project"_s);
    ASSERT_TRUE(desk.session.saveAs(project));
    const QString languages = u"proofreading/languages/"_s + id.toString();
    const QString ignored = u"proofreading/ignored/"_s + id.toString();
    const QString elsewhere = u"proofreading/ignored/"_s + core::ContentId::create().toString();
    desk.settings.setValue(languages, QStringList{u"en_US"_s});
    desk.settings.setValue(ignored, QStringList{u"spelling shipp"_s});
    desk.settings.setValue(elsewhere, QStringList{u"spelling other"_s});
    const auto reopen = [&] {
        ASSERT_TRUE(desk.session.open(project));
        QCoreApplication::processEvents();
        readDictionaries();
    };
    reopen();
    EXPECT_EQ(marked(), QStringList());
    EXPECT_EQ(service->ownLanguagesOf(id), QStringList{u"en_US"_s});
    EXPECT_TRUE(desk.settings.contains(ignored)) << "until the project is on disk";
    service->restoreIgnored(id);
    ASSERT_TRUE(desk.session.save());
    EXPECT_FALSE(desk.settings.contains(languages) || desk.settings.contains(ignored));
    EXPECT_TRUE(desk.settings.contains(elsewhere)) << "of another project";
    reopen();
    EXPECT_EQ(marked(), QStringList{u"spelling: shipp"_s}) << "what was decided later stays";
    EXPECT_EQ(service->ownLanguagesOf(id), QStringList{u"en_US"_s});
}

TEST_F(EditorProofreaderTest, learnsWordsAndForgetsThem)
{
    open(u"the Thalos sailed"_s);
    ASSERT_EQ(marked(), QStringList{u"spelling: Thalos"_s});
    service->addToDictionary(u"Thalos"_s);
    EXPECT_EQ(marked(), QStringList());
    EXPECT_EQ(service->userWords(), QStringList{u"Thalos"_s});
    service->removeFromDictionary(u"Thalos"_s);
    EXPECT_EQ(marked(), QStringList{u"spelling: Thalos"_s});
}

TEST_F(EditorProofreaderTest, followsTheSettings)
{
    open(u"the shipp sailed quickly"_s);
    ProofreadingSettings settings = service->settings();
    settings.marksSpelling = false;
    service->setSettings(settings);
    EXPECT_EQ(marked(), QStringList{u"adverb: quickly"_s});
    service->disableRule(ProblemKind::Adverb);
    EXPECT_EQ(marked(), QStringList());
    EXPECT_EQ(proofreadingSettingsFrom(desk.settings), service->settings());
}

TEST_F(EditorProofreaderTest, acceptsTheNamesOfTheCodex)
{
    desk.session.projectForCommands().add(std::make_unique<core::entity::Entity>(
        core::ContentId::create(), core::CategoryId(), u"Maëlle Oduya"_s));
    open(u"the Maëlle’s ship and Oduya"_s);
    // The desk heard of her before the service did.
    service = nullptr;
    page = nullptr;
    service = std::make_unique<ProofreadingService>(
        desk.context,
        SpellingPlaces{
            desk.folder.filePath(u"userdictionary.txt"_s), {desk.folder.filePath(u"dictionaries"_s)}},
        nullptr);
    readDictionaries();
    EXPECT_TRUE(service->check(id, CheckScope::Everything)->findings(u"the Maëlle’s ship and Oduya").empty());
}

TEST_F(EditorProofreaderTest, leavesTheWordUnderTheHandsUntilTheCursorIsGone)
{
    open(u"the ship"_s);
    page->editor().setFocus();
    page->editor().moveCursor(QTextCursor::End);
    QTest::keyClicks(&page->editor(), u" saild"_s);
    // It is found, and drawn as soon as the cursor stands elsewhere.
    EXPECT_EQ(marked(), QStringList{u"spelling: saild"_s});
    const QImage writing = page->editor().grab().toImage();
    page->editor().moveCursor(QTextCursor::Start);
    EXPECT_NE(page->editor().grab().toImage(), writing);
}

TEST_F(EditorProofreaderTest, theListOfProblemsReadsWhatTheEditorReads)
{
    const QString body = u"The `zzz` ship {.tw color=zzz} sailed [quickly]{.tw zzz}."_s;
    open(body);
    EXPECT_EQ(paragraphsOf({body, {}}), QStringList{proseOf(page->editor().document()->firstBlock())});
    EXPECT_FALSE(paragraphsOf({body, {}}).constFirst().contains(u"zzz"_s));
}

TEST_F(EditorProofreaderTest, aDocumentIsSpokenInItsOwnLanguage)
{
    open(u"The ship."_s);
    EXPECT_EQ(service->spokenLanguageOf(id), QLocale());
    service->setLanguagesOf(id, {u"fr_CA"_s, u"en_US"_s});
    EXPECT_EQ(service->spokenLanguageOf(id), QLocale(u"fr_CA"_s));
    EXPECT_EQ(service->spokenLanguageOf({}), QLocale());
    service->setLanguagesOf(id, {u"names"_s});
    EXPECT_EQ(service->spokenLanguageOf(id), QLocale());
}

TEST_F(EditorProofreaderTest, saysWhichDictionaryIsMissingOrBroken)
{
    QStringList said;
    QObject::connect(&desk.navigator, &shell::Navigator::said, service.get(), [&said](const QString& text) {
        said.append(text);
    });
    open(u"the shipp"_s);
    service->setLanguagesOf(id, {u"xx_YY"_s});
    EXPECT_EQ(marked(), QStringList()) << "without its dictionary, no word is wrong";
    ASSERT_EQ(said.size(), 1);
    EXPECT_TRUE(said.front().contains(u"xx_YY"_s)) << qPrintable(said.front());
    service->setLanguagesOf(id, {});
    EXPECT_EQ(marked(), QStringList{u"spelling: shipp"_s});
}

} // namespace tw::desktop::proofreading
