#include "app/codex/MentionIndex.h"

#include "core/document/DocumentCommands.h"
#include "core/document/markup/PlainText.h"
#include "core/entity/EntityCommands.h"
#include "core/timeline/TimelineEvent.h"

#include <random>

#include <gtest/gtest.h>

namespace tw::app::codex {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using core::document::DocumentKind;
using core::entity::Entity;
using core::project::Project;

namespace {

class MentionIndexTest : public testing::Test
{
protected:
    Entity& addEntity(const QString& name, const QStringList& aliases = {})
    {
        auto entity = std::make_unique<Entity>(ContentId::create(), core::CategoryId(), name);
        entity->setAliases(aliases);
        Entity& added = *entity;
        project.insert(std::move(entity));
        return added;
    }

    Document& addDocument(const QString& body)
    {
        auto document = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, u"Text"_s);
        document->setBody({body, {}});
        Document& added = *document;
        project.insert(std::move(document));
        return added;
    }

    /** Without an index. */
    qsizetype literalCount(const Document& document, const Entity& entity) const
    {
        return countNames(core::document::markup::plainText(document.body()), namesOf(entity));
    }

    qsizetype count(const Document& document, const Entity& entity)
    {
        for (const auto& [id, count] : index.inDocuments(project, entity)) {
            if (id == document.id())
                return count;
        }
        return 0;
    }

    Project project;
    MentionIndex index;
};

} // namespace

TEST_F(MentionIndexTest, countsWholeNamesOnceWhereTheyOverlap)
{
    const Entity& marda = addEntity(u"Marda"_s, {u"Captain Marda"_s, u" the Captain "_s, u"Marda"_s, u" "_s});
    const Entity& marks = addEntity(u"?!"_s, {u"“Gun”"_s, u"O’Neill-Ødegård"_s, u"𝒜da"_s});
    const struct
    {
        const char* text;
        int marda, marks;
    } cases[] = {
        {"Captain Marda and the Captain.", 2, 0},
        {"the Captain Marda", 2, 0},
        {"Mardana, marda, Marda's, *Mar*da [Marda](x) {.tw style=\"Marda\"}", 3, 0},
        {"“Gun”, Gun, “Gun”s ?!?! O’Neill-Ødegård O’Neill-Ødegårds", 0, 5},
        {"𝒜da 𝒜dam x𝒜da", 0, 1},
        {"", 0, 0},
    };
    for (const auto& sample : cases) {
        const Document& document = addDocument(QString::fromUtf8(sample.text));
        EXPECT_EQ(count(document, marda), sample.marda) << sample.text;
        EXPECT_EQ(count(document, marks), sample.marks) << sample.text;
        EXPECT_EQ(literalCount(document, marda), sample.marda) << sample.text;
    }
}

TEST_F(MentionIndexTest, saysWhatLookingThroughEveryTextSaysWhateverChanges)
{
    std::mt19937 random(7);
    const auto oneOf = [&random](const QStringList& words) { return words[random() % words.size()]; };
    const auto text = [&](int least, int most) {
        QString words;
        for (int left = least + static_cast<int>(random() % (most - least + 1)); left > 0; --left)
            words +=
                oneOf({u"a"_s, u"b"_s, u"ab"_s, u"B"_s}) + oneOf({u" "_s, u" "_s, u"-"_s, u". "_s, u""_s});
        return words;
    };
    std::vector<Entity*> entities;
    for (int made = 0; made < 30; ++made)
        entities.push_back(&addEntity(text(1, 3), {text(1, 2), text(0, 4)}));
    std::vector<Document*> documents;
    for (int made = 0; made < 8; ++made)
        documents.push_back(&addDocument(text(0, 60)));
    for (int round = 0; round < 120; ++round) {
        switch (random() % 4) {
        case 0:
            core::document::SetDocumentBodyCommand(*documents[random() % 8], {text(0, 60), {}}).redo();
            break;
        case 1:
            core::entity::SetEntityNameCommand(*entities[random() % entities.size()], text(1, 3)).redo();
            break;
        case 2:
            entities.push_back(&addEntity(text(1, 3)));
            break;
        default:
            EXPECT_TRUE(project.take(entities.back()->id()));
            entities.pop_back();
        }
        for (const Entity* const entity : entities) {
            for (const Document* const document : documents)
                ASSERT_EQ(count(*document, *entity), literalCount(*document, *entity))
                    << entity->name().toStdString() << " in " << document->body().text.toStdString();
        }
    }
}

TEST_F(MentionIndexTest, knowsTheEventsOfAnEntityInEachProject)
{
    const ContentId entityId = addEntity(u"Marda"_s).id();
    const auto addEvent = [&](Project& target, std::vector<ContentId> participants, const ContentId& place) {
        core::timeline::EventDetails details;
        details.participants = std::move(participants);
        details.locationId = place;
        const ContentId id = ContentId::create();
        target.insert(std::make_unique<core::timeline::TimelineEvent>(id, details));
        return id;
    };
    const ContentId both = addEvent(project, {entityId, entityId}, entityId);
    EXPECT_EQ(index.inEvents(project, entityId), std::vector{both});
    EXPECT_TRUE(project.take(both));
    EXPECT_TRUE(index.inEvents(project, entityId).empty());
    Project other;
    const ContentId there = addEvent(other, {}, entityId);
    EXPECT_EQ(index.inEvents(other, entityId), std::vector{there});
    EXPECT_TRUE(index.inEvents(project, entityId).empty());
}

} // namespace tw::app::codex
