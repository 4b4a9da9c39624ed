#include "app/search/TitleIndex.h"

#include "core/document/Document.h"
#include "core/entity/Entity.h"
#include "core/project/Project.h"
#include "core/undo/UndoStack.h"
#include "support/RandomCommands.h"

#include <gtest/gtest.h>

namespace tw::app::search {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::content::ContentKind;
using core::document::Document;
using core::document::DocumentKind;
using core::entity::Entity;
using core::project::Project;

namespace {

constexpr qsizetype all = 1000;
const std::set<ContentKind> writtenKinds{ContentKind::Document, ContentKind::Entity};

void addDocument(Project& project, const QString& title, const core::content::NameSet& audiences = {})
{
    auto document = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, title);
    document->setVisibleTo(audiences);
    project.insert(std::move(document));
}

Entity& addEntity(Project& project, const QString& name, const QStringList& aliases)
{
    auto entity = std::make_unique<Entity>(ContentId::create(), core::CategoryId(), name);
    entity->setAliases(aliases);
    Entity& added = *entity;
    project.insert(std::move(entity));
    return added;
}

QString titleIn(const Project& project, const ContentId& id)
{
    const auto* const document = project.findAs<Document>(id);
    return document ? document->title() : project.findAs<Entity>(id)->name();
}

/** What is found, the best first: titles, an alias after its entity, a library's position behind. */
QStringList found(const TitleIndex& index, const QString& typed, std::vector<const Project*> projects)
{
    QStringList lines;
    for (const TitleHit& hit : index.find(NameQuery(typed), all)) {
        QString line = titleIn(*projects[static_cast<std::size_t>(hit.library + 1)], hit.id);
        if (!hit.alias.isEmpty())
            line += u" = "_s + hit.alias;
        if (hit.library >= 0)
            line += u" @"_s + QString::number(hit.library);
        lines.append(line);
    }
    return lines;
}

} // namespace

TEST(NameQueryTest, ranksNamesByHowWellTheyFit)
{
    using enum NameRank;
    const struct
    {
        QString typed;
        QString name;
        std::optional<NameRank> rank;
    } cases[] = {
        {u"the spike"_s, u"The  Spike"_s, Exact},
        {u"the"_s, u"The Spike"_s, Beginning},
        {u"the spi"_s, u"The Spike"_s, Beginning},
        {u"spi"_s, u"The Spike"_s, WordBeginnings},
        {u"spi the"_s, u"The Spike"_s, WordBeginnings},
        {u"water"_s, u"The Low-Water Mark"_s, WordBeginnings},
        {u"in"_s, u"Raining in Staithe"_s, WordBeginnings},
        {u"pike th"_s, u"The Spike"_s, Inside},
        {u"tspk"_s, u"The Spike"_s, LettersInOrder},
        {u"ts pk"_s, u"The Spike"_s, LettersInOrder},
        {u"kps"_s, u"The Spike"_s, {}},
        {u"spikes"_s, u"The Spike"_s, {}},
        {u"spi spi spi"_s, u"The Spike"_s, WordBeginnings},
        {u"ete"_s, u"Été"_s, Exact},
        {u"Ångström"_s, u"angstrom"_s, Exact},
        {u"strasse"_s, u"Straße"_s, Exact},
        {u"soren aeble"_s, u"Søren Æble"_s, Exact},
        {u"ὀδυσσευς"_s, u"Ὀδυσσεύς"_s, Exact},
        {u"かた"_s, u"かたな"_s, Beginning},
        {u"कि"_s, u"का"_s, {}},
        {u"7"_s, u"Chapter 17"_s, Inside},
        {u"—"_s, u"One — Two"_s, WordBeginnings},
        {u" "_s, u"anything"_s, Beginning},
    };
    for (const auto& sample : cases) {
        const auto rank = NameQuery(sample.typed).rankOf(FoldedName(sample.name));
        EXPECT_EQ(rank, sample.rank) << sample.typed.toStdString() << " in " << sample.name.toStdString();
    }
    EXPECT_TRUE(NameQuery(u" \t"_s).isEmpty());
}

TEST(TitleIndexTest, findsTitlesAndAliasesHereAndInLibrariesTheBestFirst)
{
    Project project;
    Project library;
    addDocument(project, u"Tide"_s);
    addDocument(project, u"Tide Tables"_s);
    addDocument(project, u"Low Tide"_s);
    addDocument(project, QString());
    Entity& clerk = addEntity(project, u"Ibbet Lusk"_s, {u"Tidewaiter"_s, u"the Tide Clerk"_s});
    addDocument(library, u"Tide"_s);
    addEntity(library, u"Tides"_s, {});
    auto twin = std::make_unique<Entity>(clerk.id(), core::CategoryId(), u"Tide Clerk of the Library"_s);
    library.insert(std::move(twin));
    const TitleIndex index({writtenKinds, {}}, project, {&library});

    EXPECT_EQ(
        found(index, u"tide"_s, {&project, &library}),
        (QStringList{
            u"Tide"_s, u"Tide @0"_s, u"Tide Tables"_s, u"Ibbet Lusk = Tidewaiter"_s, u"Tides @0"_s,
            u"Low Tide"_s}));
    EXPECT_EQ(index.find(NameQuery(u"tide"_s), 2).size(), 2U);
    EXPECT_TRUE(index.find(NameQuery(u""_s), all).empty());
    const TitleIndex documents({{ContentKind::Document}, {}}, project, {});
    EXPECT_TRUE(found(documents, u"ibbet"_s, {&project}).isEmpty());
}

TEST(TitleIndexTest, anAudienceFindsOnlyWhatIsForIt)
{
    Project project;
    addDocument(project, u"Harbour"_s);
    addDocument(project, u"Harbour secrets"_s, {u"Keepers"_s});
    for (const auto& [audience, count] : {std::pair(u""_s, 2), {u"Keepers"_s, 2}, {u"Players"_s, 1}}) {
        const TitleIndex index({writtenKinds, audience}, project, {});
        EXPECT_EQ(found(index, u"harbour"_s, {&project}).size(), count) << audience.toStdString();
    }
}

TEST(TitleIndexTest, followedChangesFindWhatANewIndexFinds)
{
    Project project;
    test::fillWithEveryKind(project);
    test::RandomCommands random(project, 20261122);
    const TitleScope scope{
        {core::content::allContentKinds.begin(), core::content::allContentKinds.end()}, {}};
    static_cast<void>(project.takeChanges());
    TitleIndex followed(scope, project, {});
    core::undo::UndoStack stack;
    qsizetype hits = 0;
    for (int step = 0; step < 400; ++step) {
        if (random.number(0, 3) == 0)
            stack.undo();
        else
            stack.push(random.next());
        core::project::ProjectChanges changes = project.takeChanges();
        changes.changed.merge(changes.added);
        changes.changed.merge(changes.removed);
        followed.update(project, changes.changed);
        const TitleIndex fresh(scope, project, {});
        for (const QString& typed : {u"a"_s, u"e n"_s, u"t1"_s}) {
            const auto left = followed.find(NameQuery(typed), all);
            const auto right = fresh.find(NameQuery(typed), all);
            const bool isSame = std::ranges::equal(left, right, [](const TitleHit& one, const TitleHit& two) {
                return one.id == two.id && one.alias == two.alias && one.rank == two.rank;
            });
            ASSERT_TRUE(isSame) << "step " << step;
            hits += std::ssize(left);
        }
    }
    EXPECT_GT(hits, 0);
}

} // namespace tw::app::search
