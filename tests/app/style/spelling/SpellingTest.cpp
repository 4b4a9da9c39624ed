#include "app/style/spelling/CodexWords.h"
#include "app/style/spelling/Speller.h"
#include "app/style/spelling/WordSetSpellChecker.h"
#include "core/entity/Entity.h"
#include "core/project/Project.h"

#include <gtest/gtest.h>

namespace tw::test {

namespace {

using namespace Qt::StringLiterals;
using namespace app::style::spelling;

QStringList textsOf(const QString& text, const std::vector<TextSpan>& spans)
{
    QStringList texts;
    for (const TextSpan& span : spans)
        texts.append(text.sliced(span.start, span.length));
    return texts;
}

std::shared_ptr<const SpellChecker> listOf(const QSet<QString>& words)
{
    return std::make_shared<WordSetSpellChecker>(words);
}

/** Knows words of Greek letters alone, none of which is right. */
class GreekChecker final : public SpellChecker
{
public:
    [[nodiscard]] bool canJudge(const QString& word) const override
    {
        return word.front().script() == QChar::Script_Greek;
    }
    [[nodiscard]] bool isCorrect(const QString&) const override { return false; }
    [[nodiscard]] QStringList suggestions(const QString&) const override { return {}; }
};

} // namespace

TEST(SpellingWords, areLettersWithApostrophesAndHyphensInside)
{
    struct Case
    {
        QString text;
        QStringList words;
    };
    const Case cases[] = {
        {u"“Don’t,” she said—it's 'well-known'."_s,
         {u"Don’t"_s, u"she"_s, u"said"_s, u"it's"_s, u"well-known"_s}},
        {u"the 3rd of mp3s, 12.5 and x²"_s, {u"the"_s, u"of"_s, u"and"_s}},
        {u"see https://example.org/a-b_c?d=e, www.example.org and me@example.org now"_s,
         {u"see"_s, u"and"_s, u"now"_s}},
        {u"[here](http://example.org/x)"_s, {u"here"_s}},
        {u"_soft_ ship\u00adyard e\u0301te\u0301 \U0001d51f\U0001d52f"_s,
         {u"soft"_s, u"ship\u00adyard"_s, u"e\u0301te\u0301"_s, u"\U0001d51f\U0001d52f"_s}},
        {u"-- ' - rock'n'roll' -x"_s, {u"rock'n'roll"_s, u"x"_s}},
        {QString(), {}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(textsOf(each.text, spellingWords(each.text)), each.words) << qPrintable(each.text);
}

TEST(SpellingWords, haveOneFormHoweverTheyAreTyped)
{
    EXPECT_EQ(spellingForm(u"don’t"), u"don't"_s);
    EXPECT_EQ(spellingForm(u"ship\u00adyard"), u"shipyard"_s);
    EXPECT_EQ(spellingForm(u"e\u0301te\u0301"), u"été"_s);
    EXPECT_EQ(spellingForm(u"well\u2011known"), u"well-known"_s);
}

TEST(WordSetSpellChecker, acceptsAWordAtTheStartOfASentenceInCapitalsAndAsAnOwner)
{
    const WordSetSpellChecker checker({u"skiff"_s, u"McRae"_s, u"Thalos"_s});
    for (const QString& word :
         {u"skiff"_s, u"Skiff"_s, u"SKIFF"_s, u"skiff's"_s, u"McRae"_s, u"MCRAE"_s, u"Thalos'"_s,
          u"THALOS'S"_s})
        EXPECT_TRUE(checker.isCorrect(word)) << qPrintable(word);
    for (const QString& word : {u"mcrae"_s, u"sKiff"_s, u"thalos"_s, u"skiffs"_s, u""_s, u"'"_s})
        EXPECT_FALSE(checker.isCorrect(word)) << qPrintable(word);
}

TEST(WordSetSpellChecker, suggestsWhatIsNearTheNearestFirst)
{
    const WordSetSpellChecker checker({u"harbour"_s, u"arbour"_s, u"Harold"_s, u"he"_s, u"hat"_s});
    EXPECT_EQ(checker.suggestions(u"habrour"_s), (QStringList{u"harbour"_s, u"arbour"_s}));
    EXPECT_EQ(checker.suggestions(u"teh"_s), QStringList());
    EXPECT_EQ(checker.suggestions(u"hta"_s), QStringList{u"hat"_s});
    EXPECT_EQ(checker.suggestions(QString(500, u'h')), QStringList());
}

TEST(Speller, findsWhatNoneOfTheSourcesKnows)
{
    const auto misspelt = [](const QString& text) {
        SpellingSources sources;
        sources.languages = {
            listOf({u"the"_s, u"ship"_s, u"well-known"_s, u"known"_s, u"dont"_s}),
            listOf({u"das"_s, u"Schiff"_s}), std::make_shared<GreekChecker>()};
        sources.ownWords = {listOf({u"Thalos"_s})};
        sources.skipsAllCapitals = true;
        return textsOf(text, Speller(sources).misspellings(text));
    };
    EXPECT_EQ(misspelt(u"The ship, das Schiff, das shipp"_s), QStringList{u"shipp"_s});
    EXPECT_EQ(misspelt(u"Thalos’s ship; THALOS; NATO; a"_s), QStringList());
    EXPECT_EQ(misspelt(u"well-known, ship-known, wel-known"_s), QStringList{u"wel"_s});
    EXPECT_EQ(misspelt(u"λόγος"_s), QStringList{u"λόγος"_s});
    EXPECT_EQ(misspelt(QString(65, u'x')), QStringList());
    EXPECT_EQ(misspelt(QString(65, u'x') + u"-yy"_s), QStringList{u"yy"_s});
}

TEST(Speller, acceptsWordsThatNoLanguageCanJudgeAndAllWithoutALanguage)
{
    SpellingSources sources;
    EXPECT_TRUE(Speller(sources).misspellings(u"xyzzy").empty());
    sources.languages = {std::make_shared<GreekChecker>()};
    EXPECT_TRUE(Speller(sources).misspellings(u"xyzzy ship").empty());
}

TEST(Speller, suggestsOwnWordsFirstWithTheApostropheOfTheWriter)
{
    SpellingSources sources;
    sources.languages = {listOf({u"don't"_s, u"done"_s})};
    sources.ownWords = {listOf({u"Dont"_s})};
    EXPECT_EQ(Speller(sources).suggestions(u"do’nt"), (QStringList{u"Dont"_s, u"don’t"_s, u"done"_s}));
}

TEST(CodexWords, areTheWordsOfNamesAndAliases)
{
    core::project::Project project;
    auto entity = std::make_unique<core::entity::Entity>(
        core::ContentId::create(), core::CategoryId(), u"Maëlle O’Dunn-Teras"_s);
    entity->setAliases({u"the Tide-Reader"_s, u"R2"_s});
    project.add(std::move(entity));
    EXPECT_EQ(
        codexWords(project), (QSet<QString>{
                                 u"Maëlle"_s, u"O'Dunn-Teras"_s, u"O'Dunn"_s, u"Teras"_s, u"the"_s,
                                 u"Tide-Reader"_s, u"Tide"_s, u"Reader"_s}));
}

} // namespace tw::test
