#include "core/document/screenplay/ScreenplayLayout.h"

#include <gtest/gtest.h>

namespace tw::core::document::screenplay {

using namespace Qt::Literals::StringLiterals;

namespace {

int pages(const QString& text)
{
    std::vector<QStringView> lines;
    for (const QStringView line : QStringView(text).split(u'\n'))
        lines.push_back(line);
    return pagesOf(lines);
}

} // namespace

TEST(ScreenplayLayoutTest, pagesFollowFromTheLinesAsTheyAreSet)
{
    const QString shot = u"Rain.\n\n"_s;
    const QString word = u"word "_s;
    EXPECT_EQ(pages({}), 0);
    EXPECT_EQ(pages(u"\n\n\n"_s), 0);
    EXPECT_EQ(pages(shot.repeated(27)), 1);
    EXPECT_EQ(pages(shot.repeated(28)), 2) << "a line and the one between";
    EXPECT_EQ(pages(word.repeated(12 * pageLines)), 1) << "twelve words a line of action";
    EXPECT_EQ(pages(word.repeated(12 * pageLines + 1)), 2);
    EXPECT_EQ(pages(u"MARA\n"_s + word.repeated(7 * (pageLines - 1))), 1) << "seven words a line of speech";
    EXPECT_EQ(pages(u"MARA\n"_s + word.repeated(7 * (pageLines - 1) + 1)), 2);
    EXPECT_EQ(pages(QString(lineCharacters * pageLines, u'x')), 1) << "a word is broken when it must be";
    EXPECT_EQ(pages(QString(lineCharacters * pageLines + 1, u'x')), 2);
}

} // namespace tw::core::document::screenplay
