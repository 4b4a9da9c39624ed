#include "desktop/codex/MentionSearch.h"

#include "core/document/DocumentCommands.h"
#include "desktop/support/TestDesk.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::document::DocumentBody;

TEST(MentionSearchTest, countsWholeWordsOnly)
{
    const struct
    {
        const char16_t* text;
        QStringList names;
        int count;
    } cases[] = {
        {u"Annis. Annis’s hand; (Annis)", {u"Annis"_s}, 3},
        {u"Annisette, preAnnis and Annis2", {u"Annis"_s}, 0},
        {u"Where there’s a will, Will knows.", {u"Will"_s}, 1},
        {u"At the Long Stop. The long stop.", {u"The Long Stop"_s}, 2},
        {u"Tibb and No. 31", {u"Tibb"_s, u"No. 31"_s}, 2},
        {u"Élan Él", {u"Él"_s}, 1},
        {u"", {u"Annis"_s}, 0},
    };
    for (const auto& [text, names, count] : cases)
        EXPECT_EQ(countMentions(QString::fromUtf16(text), names), count)
            << qPrintable(QString::fromUtf16(text));
}

TEST(MentionSearchTest, readsAgainOnlyWhatChanged)
{
    test::TestDesk desk;
    const auto part = desk.addDocument(u"Part"_s, {}, 0);
    const auto second = desk.addDocument(u"Second"_s, part, 1);
    const auto first = desk.addDocument(u"First"_s, part, 0);
    const auto last = desk.addDocument(u"Last"_s, {}, 1);
    desk.document(second).setBody({u"Annis twice: Annis."_s, {}});
    desk.document(first).setBody({u"Annis."_s, {}});
    desk.announce();

    MentionSearch search(desk.session, nullptr);
    QSignalSpy finished(&search, &MentionSearch::finished);
    search.setNames({u"Annis"_s, u" Annis "_s, u""_s});
    search.finishNow();
    EXPECT_EQ(search.mentions(), (std::vector<Mention>{{first, 1}, {second, 2}})) << "in reading order";

    desk.session.apply(std::make_unique<core::document::SetDocumentBodyCommand>(
        desk.document(last), DocumentBody{u"Annis at last."_s, {}}));
    EXPECT_FALSE(search.isComplete());
    EXPECT_EQ(finished.count(), 1) << "nothing is read while nobody looks";
    search.setActive(true);
    EXPECT_TRUE(finished.wait());
    EXPECT_EQ(search.mentions().size(), 3U);
    search.setNames({u"Tibb"_s});
    search.finishNow();
    EXPECT_TRUE(search.mentions().empty());
}

} // namespace tw::desktop::codex
