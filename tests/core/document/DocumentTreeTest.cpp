#include "core/document/DocumentTree.h"
#include "core/document/DocumentCommands.h"
#include "core/document/DocumentPlaces.h"
#include "core/undo/UndoStack.h"

#include <gtest/gtest.h>

namespace tw::core::document {

using namespace Qt::Literals::StringLiterals;

namespace {

class DocumentTreeTest : public testing::Test
{
protected:
    ContentId add(const QString& title, const ContentId& parent, qint32 index)
    {
        auto document = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, title);
        document->setParentId(parent);
        document->setSortIndex(index);
        const ContentId id = document->id();
        project.add(std::move(document));
        return id;
    }

    Document& edit(const ContentId& id) { return *project.findAsForEdit<Document>(id); }

    /** "1:0 2:1": titles with their sort indices, in order. */
    QString children(const ContentId& parent) const
    {
        QStringList texts;
        for (const ContentId& id : childDocuments(project, parent)) {
            const auto* const document = project.findAs<Document>(id);
            texts.append(u"%1:%2"_s.arg(document->title()).arg(document->sortIndex()));
        }
        return texts.join(u' ');
    }

    void move(const ContentId& id, const ContentId& parent, qint32 index)
    {
        stack.push(std::make_unique<MoveDocumentCommand>(project, id, parent, index));
    }

    project::Project project;
    undo::UndoStack stack;
};

} // namespace

TEST_F(DocumentTreeTest, moveRenumbersTheSiblingsItTouches)
{
    std::vector<ContentId> ids;
    for (int number = 1; number <= 5; ++number)
        ids.push_back(add(QString::number(number), {}, number * 10));
    const ContentId part = ids[4];
    move(ids[2], {}, 0);
    EXPECT_EQ(children({}), u"3:0 1:1 2:2 4:3 5:4"_s);
    stack.undo();
    EXPECT_EQ(children({}), u"1:10 2:20 3:30 4:40 5:50"_s);

    add(u"a"_s, part, 3);
    add(u"b"_s, part, 4);
    move(ids[0], part, 99);
    EXPECT_EQ(children(part), u"a:0 b:1 1:2"_s);
    EXPECT_EQ(children({}), u"2:0 3:1 4:2 5:3"_s);
    move(ids[1], part, -1);
    EXPECT_EQ(children(part), u"2:0 a:1 b:2 1:3"_s);
    stack.undo();
    stack.undo();
    EXPECT_EQ(children(part), u"a:3 b:4"_s);
    EXPECT_EQ(children({}), u"1:10 2:20 3:30 4:40 5:50"_s);
}

TEST_F(DocumentTreeTest, impossibleMovesDoNothing)
{
    const ContentId chapter = add(u"chapter"_s, {}, 0);
    const ContentId scene = add(u"scene"_s, chapter, 0);
    const struct
    {
        ContentId document;
        ContentId parent;
    } cases[] = {
        {chapter, scene}, {chapter, chapter}, {chapter, ContentId::create()}, {ContentId::create(), chapter}};
    for (const auto& attempt : cases) {
        move(attempt.document, attempt.parent, 0);
        stack.undo();
        EXPECT_EQ(children({}), u"chapter:0"_s);
        EXPECT_EQ(children(chapter), u"scene:0"_s);
    }
    EXPECT_FALSE(canMoveDocument(project, chapter, scene));
    EXPECT_TRUE(canMoveDocument(project, scene, {}));
}

TEST_F(DocumentTreeTest, treeShowsEveryDocumentOnceAlsoWhenLinksAreDamaged)
{
    const ContentId chapter = add(u"chapter"_s, {}, 0);
    const ContentId scene = add(u"scene"_s, chapter, 0);
    const ContentId orphan = add(u"orphan"_s, ContentId::create(), 0);
    const ContentId child = add(u"child"_s, orphan, 0);
    const ContentId loopA = add(u"a"_s, {}, 0);
    const ContentId loopB = add(u"b"_s, loopA, 0);
    edit(loopA).setParentId(loopB);

    const DocumentTree tree = documentTree(project);
    std::size_t shown = 0;
    for (const auto& [parent, children] : tree)
        shown += children.size();
    EXPECT_EQ(shown, 6U);
    EXPECT_EQ(tree.at({}).size(), 4U) << "chapter, orphan and the two in the loop";
    EXPECT_EQ(tree.at(orphan), std::vector{child});
    EXPECT_EQ(documentSubtree(project, chapter), (std::vector{chapter, scene}));
}

TEST_F(DocumentTreeTest, chainsAndLoopsCostNoMoreThanTheirDocuments)
{
    constexpr qint32 length = 20'000;
    ContentId above;
    ContentId first;
    for (qint32 index = 0; index < length; ++index) {
        above = add(QString(), above, index);
        first = first.isNull() ? above : first;
    }
    EXPECT_EQ(documentTree(project).size(), static_cast<std::size_t>(length));
    const std::vector<ContentId> order = documentsInReadingOrder(project);
    EXPECT_EQ(order.size(), static_cast<std::size_t>(length));
    EXPECT_EQ(order.back(), above);
    EXPECT_EQ(documentSubtree(project, first), order);

    edit(first).setParentId(above);
    EXPECT_EQ(documentTree(project).at({}).size(), static_cast<std::size_t>(length));
    EXPECT_EQ(documentsInReadingOrder(project).size(), static_cast<std::size_t>(length));
}

TEST_F(DocumentTreeTest, placesTellWhetherTheShapeIsAnother)
{
    const ContentId chapter = add(u"chapter"_s, {}, 0);
    const ContentId scene = add(u"scene"_s, {}, 1);
    DocumentPlaces places(project);
    static_cast<void>(project.takeChanges());
    const auto isMoved = [&] { return places.follow(project, project.takeChanges()); };
    const auto touched = [&](const ContentId& id) -> Document& {
        edit(id).touch();
        return edit(id);
    };
    touched(scene).setTitle(u"Scene"_s);
    EXPECT_FALSE(isMoved());
    move(scene, chapter, 0);
    EXPECT_TRUE(isMoved());
    EXPECT_FALSE(isMoved());
    touched(scene).setSortIndex(7);
    EXPECT_TRUE(isMoved());
    touched(scene).setDocumentKind(DocumentKind::Note);
    EXPECT_TRUE(isMoved());
    const ContentId other = add(u"other"_s, {}, 2);
    EXPECT_TRUE(isMoved());
    EXPECT_TRUE(project.take(other));
    EXPECT_TRUE(isMoved());
    project::ProjectChanges everything;
    everything.isEverything = true;
    EXPECT_TRUE(places.follow(project, everything));
}

} // namespace tw::core::document
