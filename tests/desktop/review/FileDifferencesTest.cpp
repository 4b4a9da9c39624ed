#include "desktop/review/FileDifferences.h"

#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"
#include "core/document/Document.h"

#include <gtest/gtest.h>

namespace tw::desktop::review {

using namespace Qt::Literals::StringLiterals;
using app::persistence::FileMerge;
using app::persistence::FileVersion;
using core::ContentId;
using core::document::Document;
using core::document::DocumentKind;

namespace {

const ContentId chapterId = ContentId::fromString(u"00000000-0000-4000-8000-000000000001");

FileVersion chapter(const QString& title, const QString& body)
{
    Document document(chapterId, DocumentKind::Prose, title);
    document.setBody({body, {}});
    return app::persistence::serializeObject(document);
}

QStringList shown(const FileVersion& mine, const FileVersion& theirs)
{
    QStringList lines;
    const FileMerge file{app::persistence::objectPath(chapterId), {{}, mine, theirs}, {}, {}, {}};
    for (auto& [side, text, words] : fileDifferences(file)) {
        for (auto word = words.rbegin(); word != words.rend(); ++word)
            text.insert(word->end(), u']').insert(word->first, u'[');
        switch (side) {
        case LineSide::Both:
            lines.append(u"  "_s + text);
            break;
        case LineSide::Mine:
            lines.append(u"- "_s + text);
            break;
        case LineSide::Theirs:
            lines.append(u"+ "_s + text);
            break;
        case LineSide::Gap:
            lines.append(u"..."_s);
            break;
        }
    }
    return lines;
}

} // namespace

TEST(FileDifferencesTest, readsAsAPersonWould)
{
    const struct
    {
        QByteArray json;
        QStringList lines;
    } cases[] = {
        {"{\n    \"title\": \"Low \\\"tide\\\"\",\n    \"count\": 3\n}\n",
         {u"title: Low \"tide\""_s, u"count: 3"_s}},
        {"{\n    \"body\": \"One.\\n\\nTwo: \\\"a\\\",\"\n}\n",
         {u"body:"_s, u"One."_s, {}, u"Two: \"a\","_s}},
        {"{\n    \"tags\": [\n        \"salt: ebb\",\n        \"x\"\n    ],\n    \"none\": {\n    }\n}\n",
         {u"tags:"_s, u"    salt: ebb"_s, u"    x"_s, u"none:"_s}},
        {"", {}},
    };
    for (const auto& [json, lines] : cases)
        EXPECT_EQ(readableLines(json), lines) << json.toStdString();
}

TEST(FileDifferencesTest, showsParagraphsAndWordsThatDiffer)
{
    const QString mine = u"one\nThe ebb is here.\nthree\nfour\nfive\nsix\nseven\neight\nnine"_s;
    const QString theirs = u"one\nThe flood is near.\nthree\nfour\nfive\nsix\nseven\neight\nnine\nten"_s;
    EXPECT_EQ(
        shown(chapter(u"Ebb"_s, mine), chapter(u"Ebb"_s, theirs)),
        QStringList(
            {u"..."_s, u"  body:"_s, u"  one"_s, u"- The [ebb] is [here]."_s, u"+ The [flood] is [near]."_s,
             u"  three"_s, u"  four"_s, u"..."_s, u"  eight"_s, u"  nine"_s, u"+ ten"_s,
             u"  bodyFormat: markdown"_s, u"  sortIndex: 0"_s}));
}

TEST(FileDifferencesTest, deletedFileHasNothingInCommon)
{
    for (const QString& line : shown(chapter(u"Ebb"_s, u"one"_s), std::nullopt))
        EXPECT_TRUE(line.startsWith(u"- ")) << line.toStdString();
}

} // namespace tw::desktop::review
