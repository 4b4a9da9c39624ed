#include "desktop/codex/CodexModel.h"

#include "core/document/DocumentCommands.h"
#include "core/taxonomy/TaxonomyCommands.h"
#include "desktop/codex/CodexFixture.h"
#include "desktop/trees/NavigatorTree.h"
#include "desktop/trees/TreeRoles.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <random>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::taxonomy::ReparentCategoryCommand;

namespace {

class CodexModelTest : public CodexFixture
{
protected:
    void drop(const CodexModel& from, const QList<CodexItem>& items, int row, const QModelIndex& parent)
    {
        QModelIndexList indexes;
        for (const CodexItem& item : items)
            indexes.append(from.indexOf(item));
        const std::unique_ptr<QMimeData> data(from.mimeData(indexes));
        if (model.canDropMimeData(data.get(), Qt::MoveAction, row, 0, parent))
            model.dropMimeData(data.get(), Qt::MoveAction, row, 0, parent);
    }

    QModelIndex at(const CodexItem& item) const { return model.indexOf(item); }

    CodexModel model{desk.context};
};

const QString startShape = u"[People [Clerks Annis] Bream] [Places [Staithe [Wards Counter]]]"_s;

} // namespace

TEST_F(CodexModelTest, showsCategoriesBeforeEntitiesAndWhatHangsUnderThem)
{
    EXPECT_EQ(shape(model), startShape);
    EXPECT_EQ(at(CodexItem::category(people)).data(trees::CountRole).toString(), u"2"_s);
    EXPECT_EQ(at(CodexItem::category(places)).data(trees::CountRole).toString(), u"2"_s)
        << "also what is in categories under an entity";
    EXPECT_FALSE(at(CodexItem::entity(annis)).data(trees::CountRole).isValid());
    EXPECT_EQ(at(CodexItem::category(wards)).data(Qt::ToolTipRole).toString(), u"Places › Staithe › Wards"_s);

    addEntity(u"abel 10"_s, people);
    addEntity(u"Abel 9"_s, people);
    addEntity(u"Nobody"_s, {});
    addEntity(u"Adrift"_s, CategoryId::create());
    entity(bream).setSortIndex(-1);
    entity(bream).touch();
    desk.announce();
    EXPECT_EQ(
        shape(model), u"[People [Clerks Annis] Bream Abel 9 abel 10] [Places [Staithe [Wards Counter]]] "
                      u"[Uncategorised Adrift Nobody]"_s)
        << "by sort index, then by name as a reader sorts";
}

TEST_F(CodexModelTest, damagedLinksHideNothing)
{
    category(people).parentId = clerks;        // A loop of two.
    category(places).parentEntityId = counter; // A loop through entities.
    const CategoryId orphan = addCategory(u"Orphan"_s, {CategoryId::create(), {}}, 5);
    addCategory(u"Stray"_s, {{}, ContentId::create()}, 6);
    const CategoryId self = addCategory(u"Self"_s, {}, 7);
    category(self).parentId = self;
    addEntity(u"Inside"_s, orphan);
    desk.announce();
    const QString shown = shape(model);
    for (const QString& name :
         {u"People"_s, u"Clerks"_s, u"Annis"_s, u"Bream"_s, u"Places"_s, u"Staithe"_s, u"Wards"_s,
          u"Counter"_s, u"[Orphan Inside]"_s, u"[Stray]"_s, u"[Self]"_s})
        EXPECT_EQ(shown.count(name), 1) << qPrintable(name) << " in " << qPrintable(shown);
}

TEST_F(CodexModelTest, onlyAChangeOfShapeResets)
{
    const auto document = desk.addDocument(u"Chapter"_s, {}, 0);
    desk.announce();
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    desk.session.apply(std::make_unique<core::document::SetDocumentBodyCommand>(
        desk.document(document), core::document::DocumentBody{u"Annis walks."_s, {}}));
    EXPECT_EQ(changes.count(), 0) << "prose is none of the codex's business";
    EXPECT_TRUE(renameEntity(desk.session, bream, u"  Bream the Elder "_s));
    EXPECT_EQ(changes.count(), 1) << "the row stays where it is";
    EXPECT_TRUE(renameCategory(desk.session, people, u"Folk"_s));
    EXPECT_EQ(at(CodexItem::category(people)).data().toString(), u"Folk"_s);
    EXPECT_EQ(resets.count(), 0);
    addEntity(u"Cole"_s, people);
    desk.announce();
    EXPECT_EQ(resets.count(), 1);
}

TEST_F(CodexModelTest, renamesInPlaceButNotWhatIsLocked)
{
    EXPECT_TRUE(model.setData(at(CodexItem::entity(annis)), u" Annis Lusk "_s));
    EXPECT_EQ(entity(annis).name(), u"Annis Lusk"_s);
    EXPECT_EQ(desk.session.undoText(), u"Rename entity"_s);
    EXPECT_FALSE(model.setData(at(CodexItem::entity(annis)), u"  "_s));
    EXPECT_TRUE(model.setData(at(CodexItem::category(people)), u"Folk"_s));
    EXPECT_EQ(desk.session.undoText(), u"Rename category"_s);
    EXPECT_TRUE(model.flags(at(CodexItem::entity(annis))).testFlag(Qt::ItemIsEditable));
    entity(annis).setLocked(true);
    EXPECT_FALSE(model.flags(at(CodexItem::entity(annis))).testFlag(Qt::ItemIsEditable));
}

TEST_F(CodexModelTest, aNameThatIsStillBeingTypedIsSavedThoughItsRowMoves)
{
    trees::NavigatorTree tree(desk.context, nullptr);
    tree.setSource(model);
    tree.show();
    addEntity(u"Cole"_s, people);
    desk.announce();
    for (const bool isTakenBack : {true, false}) {
        tree.renameSource(at(CodexItem::entity(bream)));
        auto* const line = tree.findChild<QLineEdit*>();
        ASSERT_TRUE(line);
        QTest::keyClicks(line, u"Zed"_s);
        EXPECT_TRUE(desk.session.isTypingPending());
        if (isTakenBack)
            QTest::keyClick(line, Qt::Key_Escape);
        desk.session.commitPendingEdits();
        EXPECT_FALSE(desk.session.isTypingPending());
        EXPECT_EQ(entity(bream).name(), isTakenBack ? u"Bream"_s : u"Zed"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(shape(model), u"[People [Clerks Annis] Cole Zed] [Places [Staithe [Wards Counter]]]"_s);
}

TEST_F(CodexModelTest, droppingMovesOrSaysWhyNot)
{
    const CategoryId things = addCategory(u"Things"_s, {}, 2);
    desk.announce();
    const QString before = shape(model);
    const auto categoryItem = [](const CategoryId& id) { return CodexItem::category(id); };
    const struct
    {
        QList<CodexItem> dragged;
        int row;
        CodexItem target;
        const char16_t* result; ///< Empty: refused, nothing moves.
    } cases[] = {
        {{CodexItem::entity(annis)},
         -1,
         categoryItem(things),
         u"[People [Clerks] Bream] [Places [Staithe [Wards Counter]]] [Things Annis]"},
        {{CodexItem::entity(annis), CodexItem::entity(bream)},
         -1,
         categoryItem(wards),
         u"[People [Clerks]] [Places [Staithe [Wards Annis Bream Counter]]] [Things]"},
        {{categoryItem(things)},
         0,
         {},
         u"[Things] [People [Clerks Annis] Bream] [Places [Staithe [Wards Counter]]]"},
        {{categoryItem(clerks)},
         1,
         {},
         u"[People Bream] [Clerks Annis] [Places [Staithe [Wards Counter]]] [Things]"},
        {{categoryItem(clerks), CodexItem::entity(annis)},
         -1,
         categoryItem(things),
         u"[People Bream] [Places [Staithe [Wards Counter]]] [Things [Clerks Annis]]"},
        {{categoryItem(things)},
         -1,
         CodexItem::entity(bream),
         u"[People [Clerks Annis] [Bream [Things]]] [Places [Staithe [Wards Counter]]]"},
        {{categoryItem(people)}, -1, categoryItem(clerks), u""},
        {{categoryItem(places)}, -1, CodexItem::entity(counter), u""},
        {{CodexItem::entity(annis)}, -1, CodexItem::entity(bream), u""},
        {{CodexItem::entity(annis)}, -1, {}, u""},
        {{CodexItem::entity(staithe)}, -1, categoryItem(wards), u""},
    };
    QSignalSpy said(&desk.navigator, &shell::Navigator::said);
    for (const auto& step : cases) {
        drop(model, step.dragged, step.row, at(step.target));
        const QString expected = QString::fromUtf16(step.result);
        EXPECT_EQ(shape(model), expected.isEmpty() ? before : expected);
        if (!expected.isEmpty())
            desk.session.undo();
        EXPECT_EQ(shape(model), before) << "one step takes it back";
    }
    ASSERT_EQ(said.count(), 2);
    EXPECT_EQ(said[0][0].toString(), u"Reparenting there would create a cycle."_s);
    EXPECT_TRUE(said[1][0].toString().startsWith(u"“Counter” lies beneath the category “Places”"_s));

    const auto moved = moveInCodex(desk.session, {{bream, staithe}, {}}, {{wards, {}}, {}});
    EXPECT_TRUE(moved.message().startsWith(u"The category “Wards” hangs somewhere beneath “Staithe”"_s));
    EXPECT_EQ(shape(model), before);
    EXPECT_FALSE(desk.session.canUndo());
}

TEST_F(CodexModelTest, whatIsLockedStaysInItsCategory)
{
    QSignalSpy said(&desk.navigator, &shell::Navigator::said);
    const QString before = shape(model);
    entity(annis).setLocked(true);
    drop(model, {CodexItem::entity(annis), CodexItem::entity(bream)}, -1, at(CodexItem::category(places)));
    EXPECT_EQ(shape(model), before);
    ASSERT_EQ(said.count(), 1);
    EXPECT_EQ(said[0][0].toString(), u"“Annis” is locked. Unlock it in the inspector to move it."_s);
    EXPECT_FALSE(renameEntity(desk.session, annis, u"Other"_s));
    EXPECT_FALSE(desk.session.canUndo());
}

TEST_F(CodexModelTest, staysTrueThroughRandomEdits)
{
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    std::mt19937 random(11);
    const auto anyEntity = [&] {
        const auto entities = desk.session.project().objectsOfKind(core::content::ContentKind::Entity);
        return entities.empty() ? ContentId() : entities[random() % entities.size()]->id();
    };
    const auto anyCategory = [&] {
        const auto& categories = desk.session.project().taxonomy().categories();
        return categories.empty()
                   ? CategoryId()
                   : std::next(categories.begin(), static_cast<std::ptrdiff_t>(random() % categories.size()))
                         ->first;
    };
    for (int round = 0; round < 300; ++round) {
        const QString name = QString::number(random() % 50);
        switch (random() % 11) {
        case 0:
        case 1:
            codex::addEntity(desk.session, anyCategory(), name);
            break;
        case 2:
            codex::addCategory(desk.session, placeBehind(desk.session, anyCategory()), name);
            break;
        case 3:
            codex::addCategory(desk.session, {{{}, anyEntity()}, {}}, name);
            break;
        case 4:
            removeFromCodex(desk.session, {{anyEntity()}, {}});
            break;
        case 5:
            removeFromCodex(desk.session, {{anyEntity(), anyEntity()}, {anyCategory(), anyCategory()}});
            break;
        case 6:
            static_cast<void>(moveInCodex(
                desk.session, {{anyEntity()}, {anyCategory()}}, {{anyCategory(), {}}, anyCategory()}));
            break;
        case 7:
            static_cast<void>(moveInCodex(desk.session, {{}, {anyCategory()}}, {{{}, anyEntity()}, {}}));
            break;
        case 8:
            renameEntity(desk.session, anyEntity(), name);
            break;
        case 9:
            // As a damaged file would have it: unchecked, so that loops come about.
            desk.session.apply(std::make_unique<ReparentCategoryCommand>(
                desk.session.projectForCommands(), anyCategory(), anyCategory(), 0));
            break;
        default:
            random() % 2 == 0 ? desk.session.undo() : desk.session.redo();
        }
        const CodexModel fresh(desk.context);
        ASSERT_EQ(model.tree(), fresh.tree()) << "round " << round;
        ASSERT_EQ(shape(model), shape(fresh)) << "round " << round;
        const std::size_t things =
            desk.session.project().taxonomy().categories().size() +
            desk.session.project().objectsOfKind(core::content::ContentKind::Entity).size();
        const bool hasGroup = model.indexOf(CodexItem::uncategorised()).isValid();
        ASSERT_EQ(model.tree().nodeCount(), 1 + things + (hasGroup ? 1U : 0U)) << "everything stands once";
    }
}

} // namespace tw::desktop::codex
