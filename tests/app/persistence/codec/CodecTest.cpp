#include "app/persistence/codec/CategoryCodec.h"
#include "app/persistence/codec/FullProject.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectCodec.h"
#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/json/JsonWriter.h"
#include "core/chart/Chart.h"
#include "core/conlang/Language.h"
#include "core/document/Document.h"
#include "core/entity/Entity.h"
#include "core/map/Map.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;
using tw::core::CategoryId;
using tw::core::ContentId;
using tw::core::content::allContentKinds;
using tw::core::content::ContentKind;
using tw::core::content::ContentObject;
using tw::core::project::Project;

namespace {

const QByteArray anyId = "6f1c1e0a-2b3c-4d5e-8f90-a1b2c3d4e5f6";

std::unique_ptr<ContentObject> parsedObject(const QByteArray& bytes)
{
    ParseScratch scratch;
    auto object = parseObject(bytes, u"a.json"_s, scratch);
    EXPECT_EQ(object.message(), QString());
    return object ? std::move(object).value() : nullptr;
}

template <class Kind>
std::unique_ptr<Kind> parsedAs(const QByteArray& type, const QByteArray& keys)
{
    std::unique_ptr<ContentObject> object =
        parsedObject("{\"id\": \"" + anyId + "\", \"type\": \"" + type + "\"" + keys + "}");
    return std::unique_ptr<Kind>(tw::core::content::objectCast<Kind>(object.release()));
}

ProjectFileMap filesBelow(const QString& root)
{
    ProjectFileMap files;
    const QDir folder(root);
    for (const QString& sub : {u""_s, u"objects/"_s, u"taxonomy/"_s}) {
        for (const QString& name : QDir(folder.filePath(sub)).entryList(QDir::Files)) {
            QFile file(folder.filePath(sub + name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            files[sub + name] = file.readAll();
        }
    }
    return files;
}

/** Writes values the way a careless hand would: keys turned around, scalars as texts, keys nobody knows. */
class CarelessHand
{
public:
    explicit CarelessHand(QByteArray& output)
        : m_writer(output)
    {}

    void write(const QJsonValue& value)
    {
        if (value.isObject()) {
            m_writer.beginObject();
            m_writer.key("aKeyFromTheFuture"_L1);
            m_writer.writeDouble(1.5);
            const QJsonObject object = value.toObject();
            QStringList keys = object.keys();
            std::reverse(keys.begin(), keys.end());
            for (const QString& key : keys) {
                m_writer.key(QStringView(key));
                // These hold whatever keys and values they like.
                const bool isFree =
                    key == u"writingSystem" || key == u"values" || key == u"fieldValues" || key == u"fields";
                isFree&& object.value(key).isObject() ? m_writer.writeValue(object.value(key))
                                                      : write(object.value(key));
            }
            m_writer.endObject();
        } else if (value.isArray()) {
            m_writer.beginArray();
            const QJsonArray array = value.toArray();
            for (const QJsonValue& element : array)
                write(element);
            m_writer.endArray();
        } else {
            m_writer.writeText(
                value.isBool() ? (value.toBool() ? u"TRUE"_s : u"0"_s) : value.toVariant().toString());
        }
    }

private:
    JsonWriter m_writer;
};

} // namespace

TEST(Codecs, writeTheFilesOfTheGoldenProject)
{
    const QString golden = tw::test::repositoryPath(u"tests/app/persistence/codec/golden");
    const std::unique_ptr<Project> project = tw::test::fullProject();
    const ProjectFileMap expected = filesBelow(golden);
    const ProjectFileMap files = serializeProject(*project);
    EXPECT_EQ(files.size(), expected.size());
    for (const auto& [path, bytes] : expected)
        EXPECT_EQ(files.contains(path) ? files.at(path) : QByteArray(), bytes) << path.toStdString();

    const auto loaded = parseProject(expected);
    ASSERT_EQ(loaded.message(), QString());
    EXPECT_TRUE(*loaded.value().project == *project);
    for (const LoadedFile& file : loaded.value().files)
        EXPECT_TRUE(file.isCanonical) << file.relativePath.toStdString();
}

TEST(Codecs, readWhatACarelessHandLeftBehind)
{
    const std::unique_ptr<Project> project = tw::test::fullProject();
    ProjectFileMap files = serializeProject(*project);
    for (auto& [path, bytes] : files) {
        QByteArray careless;
        CarelessHand(careless).write(QJsonDocument::fromJson(bytes).object());
        bytes = careless;
    }
    const auto loaded = parseProject(files);
    ASSERT_EQ(loaded.message(), QString());
    EXPECT_TRUE(*loaded.value().project == *project);
    for (const LoadedFile& file : loaded.value().files)
        EXPECT_FALSE(file.isCanonical) << file.relativePath.toStdString();
    EXPECT_EQ(serializeProject(*loaded.value().project), serializeProject(*project));
}

TEST(Codecs, takeMissingKeysAndNullsForTheDefaults)
{
    for (const ContentKind kind : allContentKinds) {
        const auto fresh = tw::test::freshObject(kind, ContentId::fromString(QString::fromLatin1(anyId)));
        const QByteArray name = tw::core::content::contentKindName(kind).data();
        const QByteArray head = "{\"id\": \"" + anyId + "\", \"type\": \"" + name + "\"";
        const auto bare = parsedObject(head + "}");
        ASSERT_TRUE(bare);
        EXPECT_TRUE(isSameData(*bare, *fresh)) << name.constData();
        const auto again = parsedObject(serializeObject(*fresh));
        ASSERT_TRUE(again);
        EXPECT_TRUE(isSameData(*again, *fresh)) << name.constData();
        const auto nulls = parsedObject(
            head + R"(, "title": null, "body": null, "sceneInstant": null, "values": null, "cells": null})");
        EXPECT_TRUE(isSameData(*nulls, *fresh)) << name.constData();
    }
    QByteArray defaults;
    appendProjectDocument(defaults, Project());
    for (const QByteArray& bytes : {QByteArray("{}"), defaults}) {
        const auto loaded = parseProject({{u"project.json"_s, bytes}});
        ASSERT_EQ(loaded.message(), QString());
        EXPECT_TRUE(*loaded.value().project == Project());
    }
}

TEST(Codecs, keepEmptyValuesWhoseDefaultIsNotEmpty)
{
    const ContentId id = ContentId::create();
    tw::core::chart::ChartDetails details;
    details.chartKind.clear();
    tw::core::conlang::LanguageDetails sounds;
    sounds.minSyllables = 0;
    sounds.maxSyllables = 0;
    sounds.inventory.phonemes = {{{}, 0, {}, {}}};
    tw::core::conlang::Language language(id, {});
    language.setDetails(sounds);
    tw::core::conlang::Grammar grammar;
    grammar.numberSystem.base = 0;
    language.setGrammar(grammar);
    const tw::core::chart::Chart chart(id, details);
    for (const ContentObject* object : std::initializer_list<const ContentObject*>{&chart, &language})
        EXPECT_TRUE(isSameData(*parsedObject(serializeObject(*object)), *object));

    Project project;
    tw::core::timeline::TimelineViewSettings view{{},    {},    {},    0,     0,  false, {}, {},
                                                  false, false, false, false, {}, {},    {}};
    view.laneArrangements = {{{}, {}, false, false}};
    project.setTimelineView(view);
    tw::core::timeline::ContinuityRule rule;
    rule.comparison.clear();
    project.setContinuityRules({rule});
    const auto loaded = parseProject(serializeProject(project));
    ASSERT_EQ(loaded.message(), QString());
    EXPECT_TRUE(*loaded.value().project == project);
}

TEST(Codecs, readTheShapesThatTheFormatLeavesOpen)
{
    const auto document = parsedAs<tw::core::document::Document>(
        "document",
        R"(, "kind": "opera", "footnotes": [{"text": "a"}, 5, {"text": "b", "id": 7}, {}], "sourceIds": ["x"])");
    ASSERT_TRUE(document);
    EXPECT_EQ(document->documentKind(), tw::core::document::DocumentKind::Prose);
    ASSERT_EQ(document->footnotes().size(), 3u);
    EXPECT_EQ(document->footnotes()[0].id, u"1"_s);
    EXPECT_EQ(document->footnotes()[1].id, u"7"_s);
    EXPECT_EQ(document->footnotes()[2].id, u"3"_s);
    EXPECT_TRUE(document->sourceIds().empty());

    const auto entity = parsedAs<tw::core::entity::Entity>("entity", R"(,
        "tags": [7], "aliases": [1984, "x"], "ownFields": [{"key": "f", "options": [1, 2.5], "fixed": true, "required": true}],
        "values": {"age": 12, "isDead": true, "allies": ["a", 2], "unset": null, "odd": {}},
        "timedValues": [{"key": "k", "instant": "9", "value": 2}, {"key": "k", "instant": 3.9}])");
    ASSERT_TRUE(entity);
    EXPECT_EQ(
        entity->values(), (tw::core::entity::FieldValues{
                              {u"age"_s, u"12"_s}, {u"isDead"_s, u"true"_s}, {u"allies"_s, u"a\n2"_s}}));
    EXPECT_EQ(entity->tags(), tw::core::content::NameSet{u"7"_s});
    EXPECT_EQ(entity->aliases(), (QStringList{u"1984"_s, u"x"_s}));
    EXPECT_TRUE(entity->ownFields().at(0).isFixed);
    EXPECT_FALSE(entity->ownFields().at(0).isRequired);
    EXPECT_EQ(entity->ownFields().at(0).options, (QStringList{u"1"_s, u"2.5"_s}));
    EXPECT_EQ(entity->timedValues(), (tw::core::entity::TimedValues{{u"k"_s, {{3, {}}, {9, u"2"_s}}}}));

    const auto language = parsedAs<tw::core::conlang::Language>("language", R"(, "consonants": "p  t sk",
        "vowels": ["a"], "patterns": "CVC", "grammar": {"positionClasses": [{"name": "n", "fills": "noun phrase"}]})");
    ASSERT_TRUE(language);
    EXPECT_EQ(language->details().consonants, (QStringList{u"p"_s, u"t"_s, u"sk"_s}));
    EXPECT_EQ(language->details().patterns, QStringList{u"CVC"_s});
    EXPECT_EQ(language->grammar().positionClasses.at(0).fills, QStringList{u"noun phrase"_s});

    const auto chart =
        parsedAs<tw::core::chart::Chart>("chart", R"(, "series": [{"values": [1, "2.5", null, "x"]}])");
    ASSERT_TRUE(chart);
    EXPECT_EQ(chart->details().series.at(0).values, (std::vector<double>{1, 2.5, 0, 0}));

    const auto loaded = parseProject({{u"project.json"_s, R"({"calendar": {"months": [], "weekdays": ["One"],
        "eras": [{"eraName": "Late", "startYear": 9}, {"name": "Early"}]}, "reckonings": [{"name": "R"}]})"}});
    ASSERT_EQ(loaded.message(), QString());
    const tw::core::calendar::Calendar& calendar = loaded.value().project->calendar();
    EXPECT_EQ(calendar.months(), tw::core::calendar::Calendar().months());
    EXPECT_EQ(calendar.weekdays(), QStringList{u"One"_s});
    EXPECT_EQ(calendar.eraName(), u"CE"_s);
    EXPECT_EQ(
        calendar.eras(),
        (QList<tw::core::calendar::CalendarEra>{{u"Early"_s, 1, false}, {u"Late"_s, 9, false}}));
    EXPECT_EQ(loaded.value().project->reckonings().at(0).calendar, tw::core::calendar::Calendar());
}

TEST(Codecs, writeWhatJsonCannotHoldAsZero)
{
    tw::core::map::Map map(ContentId::create(), {});
    map.setTravelSettings({std::nan(""), {}, INFINITY});
    const auto again = parsedObject(serializeObject(map));
    const auto settings = static_cast<tw::core::map::Map&>(*again).travelSettings();
    EXPECT_EQ(settings.travelSpeedPerHour, 0.0);
    EXPECT_EQ(settings.widthDistance, 0.0);
}

TEST(CategoryCodec, keepsOneParentAndOneRule)
{
    ParseScratch scratch;
    const auto category = parseCategory(
        R"({"id": ")" + anyId + R"(", "parentId": ")" + anyId + R"(", "parentEntityId": ")" + anyId +
            R"(", "fields": [{"key": "k", "fixed": true, "required": true}]})",
        u"a"_s, scratch);
    ASSERT_EQ(category.message(), QString());
    EXPECT_TRUE(category.value().parentId.isNull());
    EXPECT_FALSE(category.value().parentEntityId.isNull());
    EXPECT_TRUE(category.value().fields.at(0).isFixed);
    EXPECT_FALSE(category.value().fields.at(0).isRequired);
    EXPECT_EQ(category.value().fields.at(0).type, tw::core::taxonomy::FieldType::Text);
}
