#include "app/typing/NameMatcher.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace tw::app::typing {

using namespace Qt::Literals::StringLiterals;

TEST(NameMatcherTest, findsWholeNamesTheLongestFirst)
{
    const QStringList names{u"Ann"_s, u"Ann Lusk"_s, u"the Iron Keep"_s, u"Will"_s, u"Jean-Luc"_s, u"李"_s,
                            u""_s,    u"…"_s};
    std::vector<Name> list;
    for (const QString& name : names)
        list.push_back({name, core::ContentId::create()});
    const NameMatcher matcher(list);
    const struct
    {
        const char16_t* text;
        QStringList found;
    } cases[] = {
        {u"Ann Lusk met Ann.", {u"Ann Lusk"_s, u"Ann"_s}},
        {u"Annabel and Joann", {}},
        {u"ann will; Will won't", {u"Will"_s}},
        {u"The iron keep, THE IRON KEEPER", {u"The iron keep"_s}},
        {u"Ann’s Jean-Luc’s", {u"Ann"_s, u"Jean-Luc"_s}},
        {u"Ann", {u"Ann"_s}},
        {u"李 李李", {u"李"_s}},
        {u"", {}},
    };
    for (const auto& sample : cases) {
        const QString text = QString::fromUtf16(sample.text);
        QStringList found;
        for (const NameMatch& match : matcher.find(text))
            found.append(text.mid(match.start, match.length));
        EXPECT_EQ(found, sample.found) << text.toStdString();
    }
    EXPECT_TRUE(NameMatcher().find(u"anything").empty());
}

} // namespace tw::app::typing
