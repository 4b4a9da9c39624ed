// Whatever a model calls with whatever arguments: a failure leaves everything as it was, a success is at most
// one step, on disk at once, and undoing all steps gives the first project back.
#include "ToolFixture.h"
#include "app/mcp/ToolFamilies.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "core/content/ObjectName.h"
#include "core/entity/Schema.h"
#include "support/RandomCommands.h"
#include "support/SampleWorld.h"

#include <QDirIterator>
#include <QJsonArray>

#include <random>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using persistence::ProjectFileMap;

namespace {

constexpr int callCount = 5000;
/** Between two looks at everything, whether it should have changed or not. */
constexpr int fullCheckInterval = 100;

class RandomCallsTest : public ToolFixture
{
protected:
    RandomCallsTest()
        : ToolFixture(
              {registerMcpCoreTools, registerMcpWorldTools, registerMcpDocumentTools,
               registerMcpTimeAndSpaceTools})
    {
        test::fillWithEveryKind(workspace.projectForEdit());
        test::fillSampleWorld(workspace.projectForEdit());
        workspace.markModified();
        EXPECT_TRUE(workspace.save(persistence::SaveExtent::Everything));
        before = persistence::serializeProject(project());
        (void)workspace.projectForEdit().takeChanges();
    }

    int number(int least, int most) { return std::uniform_int_distribution(least, most)(random); }
    bool chance(int oneIn) { return number(1, oneIn) == 1; }

    template <class List>
    auto oneOf(const List& list)
    {
        return *std::next(std::begin(list), number(0, static_cast<int>(std::size(list)) - 1));
    }

    QString anyName()
    {
        const auto& objects = project().objects();
        const auto& categories = project().taxonomy().categories();
        const int kind = number(0, 9);
        if (kind < 5 && !objects.empty())
            return core::content::objectName(
                *std::next(objects.begin(), number(0, int(objects.size()) - 1))->second);
        if (kind < 7 && !categories.empty())
            return std::next(categories.begin(), number(0, int(categories.size()) - 1))->second.name;
        return oneOf(QStringList{
            u"Summary"_s, u"Spouse"_s, u"Rank"_s, u"Age"_s, u"Ada"_s, u"Marda"_s, u"1250"_s, u"date"_s,
            u"reference"_s, u"text"_s, u"Players"_s, u"%1 {.tw u}"_s, u"  "_s, QString(), u"a\nb"_s,
            u"\u0000é𐐀"_s, QString(400, u'x')});
    }

    /** Mostly what the argument asks for. */
    QString anyText(const QString& argument)
    {
        const auto& objects = project().objects();
        if (chance(4) || objects.empty())
            return anyName();
        if (argument == u"footnote_id")
            return u"1"_s;
        if (argument.endsWith(u"id"))
            return std::next(objects.begin(), number(0, int(objects.size()) - 1))->first.toString();
        if (argument == u"field" || argument == u"fields" || argument == u"property" || argument == u"before")
            return oneOf(QStringList{u"Summary"_s, u"Spouse"_s, u"Rank"_s, u"Age"_s, u"Ruler"_s, u"Alive"_s});
        if (argument == u"category" || argument == u"reference_category")
            return oneOf(QStringList{u"Characters"_s, u"Places"_s, u"Nobles"_s, u"Cities"_s});
        if (argument == u"audiences")
            return oneOf(QStringList{u"Players"_s, u"Editors"_s});
        if (argument == u"type")
            return oneOf(QStringList{u"text"_s, u"number"_s, u"reference"_s, u"choice"_s, u"entity"_s});
        return anyName();
    }

    QJsonValue anyValue(const QString& argument, const QJsonObject& property)
    {
        if (chance(25))
            return oneOf(std::vector<QJsonValue>{
                QJsonValue(), 7, -1e300, true, u"x"_s, QJsonArray{QJsonValue(), QJsonArray{}},
                QJsonObject{{u"x"_s, QJsonObject()}}});
        if (property.contains(u"enum"))
            return oneOf(property.value(u"enum").toArray());
        const QJsonValue types = property.value(u"type");
        const QString type = types.isArray() ? oneOf(types.toArray()).toString() : types.toString();
        if (type == u"string")
            return anyText(argument);
        if (type == u"boolean")
            return chance(2);
        if (type == u"integer" || type == u"number")
            return number(-2, 12);
        if (type == u"array") {
            QJsonArray items;
            for (int count = number(0, 3); count > 0; --count)
                items.append(anyValue(argument, property.value(u"items").toObject()));
            return items;
        }
        if (property.contains(u"additionalProperties")) {
            return QJsonObject{
                {anyText(argument), anyValue(argument, property.value(u"additionalProperties").toObject())}};
        }
        return anyArguments(property);
    }

    /** All that is required, mostly, and some of the rest. */
    QJsonObject anyArguments(const QJsonObject& schema)
    {
        const QJsonArray required = schema.value(u"required").toArray();
        const QJsonObject properties = schema.value(u"properties").toObject();
        QJsonObject arguments;
        for (auto property = properties.begin(); property != properties.end(); ++property) {
            const bool isLikely = required.contains(property.key()) || property.key() == u"name" ||
                                  property.key() == u"title" || property.key() == u"target" ||
                                  property.key() == u"entity";
            if (isLikely ? !chance(20) : chance(property.key() == u"id" ? 30 : 4))
                arguments.insert(property.key(), anyValue(property.key(), property->toObject()));
        }
        return arguments;
    }

    ProjectFileMap filesOnDisk() const
    {
        ProjectFileMap found;
        const QDir place(folder());
        QDirIterator entries(folder(), {u"*.json"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            QFile file(entries.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            found.emplace(place.relativeFilePath(file.fileName()), file.readAll());
        }
        return found;
    }

    /** One call and a look at what it left behind. */
    void callAndCheck(const McpToolSpec& tool, bool looksAtEverything)
    {
        const QJsonObject arguments = anyArguments(tool.inputSchema);
        SCOPED_TRACE((tool.name + u' ').toStdString() + QJsonDocument(arguments).toJson().toStdString());
        const qsizetype stepsBefore = steps();
        const qsizetype logBefore = log.entries.size();
        const McpToolResult result = server.callTool(tool.name, arguments);
        EXPECT_FALSE(result.text.isEmpty());
        EXPECT_FALSE(workspace.isModified());
        const bool isStep = steps() != stepsBefore;
        EXPECT_TRUE(!isStep || (result.ok && steps() == stepsBefore + 1));
        EXPECT_EQ(log.entries.size(), logBefore + (isStep ? 1 : 0));
        if (workspace.projectForEdit().takeChanges().isEmpty() && !looksAtEverything && !isStep)
            return;
        ProjectFileMap after = persistence::serializeProject(project());
        EXPECT_EQ(filesOnDisk(), after);
        EXPECT_EQ(after != before, isStep);
        if (isStep) {
            snapshots.push_back(std::exchange(before, std::move(after)));
            changingTools.insert(tool.name);
        }
    }

    std::mt19937 random{20261122};
    ProjectFileMap before;
    /** The project before each step. */
    std::vector<ProjectFileMap> snapshots;
    std::set<QString> changingTools;
};

} // namespace

TEST_F(RandomCallsTest, eachCallIsOneStepOrNothing)
{
    std::vector<McpToolSpec> tools = server.tools();
    // Takes steps away; tested by itself.
    std::erase_if(tools, [](const McpToolSpec& tool) { return tool.name == u"undo_last"; });
    for (int round = 0; round < callCount && !HasFailure(); ++round)
        callAndCheck(oneOf(tools), round % fullCheckInterval == 0);

    // Arguments at random reach most tools: some 30 of them, not the same in every run, for ids differ.
    QStringList changing;
    for (const QString& name : changingTools)
        changing.append(name);
    EXPECT_GT(changing.size(), 20) << changing.join(u' ').toStdString();
    EXPECT_EQ(steps(), std::ssize(snapshots));
    while (!snapshots.empty() && !HasFailure()) {
        workspace.undoStack().undo();
        EXPECT_EQ(persistence::serializeProject(project()), snapshots.back());
        snapshots.pop_back();
    }
}

} // namespace tw::app::mcp
