#include "core/content/ContentCommands.h"
#include "core/document/DocumentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/undo/UndoStack.h"

#include <gtest/gtest.h>

namespace tw::core::project {

using namespace Qt::Literals::StringLiterals;
using content::ContentKind;
using document::Document;
using document::DocumentKind;

TEST(IdTest, readsTheTwoTextFormsAndNothingElse)
{
    const ContentId id = ContentId::create();
    const QString text = id.toString();
    EXPECT_EQ(text.size(), 36);
    EXPECT_EQ(ContentId::fromString(text), id);
    EXPECT_EQ(ContentId::fromString(u'{' + text + u'}'), id);
    EXPECT_EQ(ContentId::fromString(text.toUpper()), id);
    for (const QString& bad :
         {QString(), u"x"_s, text + u"x"_s, text + u"ab"_s, text.chopped(1), u'{' + text,
          text.left(35) + u'g'})
        EXPECT_TRUE(ContentId::fromString(bad).isNull()) << bad.toStdString();
}

TEST(IdTest, bytesAndTextsOfAnIdAgreeAndSortAlike)
{
    ContentId previous;
    for (int count = 0; count < 200; ++count) {
        const ContentId id = ContentId::create();
        const QByteArray text = id.toString().toLatin1();
        const foundation::IdText plain = id.text();
        EXPECT_EQ(QByteArray(plain.data(), std::ssize(plain)), text);
        EXPECT_EQ(ContentId::fromText(text), id);
        EXPECT_EQ(ContentId::fromText(text.toUpper()), id);
        EXPECT_EQ(id < previous, id.toString() < previous.toString());
        previous = id;

        QByteArray damaged = text;
        const qsizetype position = count % text.size();
        damaged[position] = text.at(position) == '-' ? '0' : 'g';
        EXPECT_TRUE(ContentId::fromText(damaged).isNull()) << damaged.toStdString();
    }
    for (const QByteArrayView bad :
         {"", "{f81d4fae-7dec-11d0-a765-00a0c91e6bf6}", "f81d4fae-7dec-11d0-a765-00a0c91e6bf"})
        EXPECT_TRUE(ContentId::fromText(bad).isNull());
}

TEST(ContentKindTest, namesAreExact)
{
    for (const ContentKind kind : content::allContentKinds)
        EXPECT_EQ(content::contentKindFromName(QString(content::contentKindName(kind))), kind);
    EXPECT_FALSE(content::contentKindFromName(u"Document"));
    EXPECT_EQ(content::contentKindFromName(u"timeline_event"), ContentKind::TimelineEvent);
    EXPECT_TRUE(content::contentKindName(static_cast<ContentKind>(15)).isEmpty());
}

TEST(ProjectTest, addGivesDefaultAudiencesAndUndoOfARemovalDoesNot)
{
    Project project;
    undo::UndoStack stack;
    auto open = std::make_unique<Document>(ContentId::create(), DocumentKind::Prose, u"Open"_s);
    const ContentId openId = open->id();
    stack.push(std::make_unique<content::AddObjectCommand>(project, std::move(open)));
    EXPECT_TRUE(project.find(openId)->isVisibleTo(u"Players"_s));

    stack.push(std::make_unique<content::SetDefaultAudiencesCommand>(project, content::NameSet{u"GM"_s}));
    auto hidden = std::make_unique<Document>(ContentId::create(), DocumentKind::Note, u"Hidden"_s);
    const ContentId hiddenId = hidden->id();
    const Document* const address = hidden.get();
    stack.push(std::make_unique<content::AddObjectCommand>(project, std::move(hidden)));
    EXPECT_FALSE(project.find(hiddenId)->isVisibleTo(u"Players"_s));

    stack.push(std::make_unique<content::RemoveObjectCommand>(project, openId));
    EXPECT_FALSE(project.contains(openId));
    stack.undo();
    EXPECT_TRUE(project.find(openId)->visibleTo().empty()) << "an undo never changes an object";
    stack.undo();
    EXPECT_EQ(project.objectsOfKind(ContentKind::Document).size(), 1U);
    stack.redo();
    EXPECT_EQ(project.findAs<Document>(hiddenId), address);
    EXPECT_EQ(project.findAs<entity::Entity>(hiddenId), nullptr);
    EXPECT_EQ(project.take(ContentId::create()), nullptr);
}

TEST(ProjectTest, addingATakenIdIsUndoneToNothing)
{
    Project project;
    undo::UndoStack stack;
    const ContentId id = ContentId::create();
    for (const QString& title : {u"first"_s, u"second"_s}) {
        stack.push(std::make_unique<content::AddObjectCommand>(
            project, std::make_unique<Document>(id, DocumentKind::Prose, title)));
    }
    stack.undo();
    EXPECT_EQ(project.findAs<Document>(id)->title(), u"first"_s);
}

TEST(ProjectTest, takeChangesNamesWhatMovedSinceLastAsked)
{
    Project project;
    undo::UndoStack stack;
    const ContentId id = ContentId::create();
    stack.push(std::make_unique<content::AddObjectCommand>(
        project, std::make_unique<Document>(id, DocumentKind::Prose, u"A"_s)));
    EXPECT_EQ(project.takeChanges().added, std::set{id});
    EXPECT_TRUE(project.takeChanges().isEmpty());

    auto& document = *project.findAsForEdit<Document>(id);
    const quint64 revision = document.revision();
    stack.push(std::make_unique<document::SetDocumentTitleCommand>(document, u"B"_s));
    EXPECT_GT(document.revision(), revision);
    EXPECT_EQ(project.takeChanges().changed, std::set{id});
    stack.push(std::make_unique<content::SetPinnedCommand>(project, id, true));
    EXPECT_TRUE(project.takeChanges().areSettingsChanged);
    EXPECT_EQ(stack.undoText(), u"Pin"_s);
    stack.undo();
    stack.undo();
    EXPECT_TRUE(project.takeChanges().concerns(id));
    stack.undo();
    EXPECT_EQ(project.takeChanges().removed, std::set{id});
    stack.redo();
    EXPECT_NE(project.find(id)->revision(), revision) << "a new stay starts a new range of revisions";
}

TEST(ProjectTest, unsetIsNotEmpty)
{
    Project project;
    entity::Entity person(ContentId::create(), {}, u"Someone"_s);
    undo::UndoStack stack;
    stack.push(std::make_unique<entity::SetFieldValueCommand>(person, u"rank"_s, QString()));
    EXPECT_EQ(person.value(u"rank"_s), QString());
    stack.push(std::make_unique<entity::SetFieldValueCommand>(person, u"rank"_s, std::nullopt));
    EXPECT_FALSE(person.value(u"rank"_s));
    stack.undo();
    EXPECT_TRUE(person.value(u"rank"_s));
    stack.undo();
    EXPECT_FALSE(person.value(u"rank"_s));
}

} // namespace tw::core::project
