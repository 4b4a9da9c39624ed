#include "app/mcp/ToolFamilies.h"
#include "app/mcp/ToolFixture.h"
#include "core/entity/Entity.h"
#include "core/map/Map.h"
#include "core/spreadsheet/Spreadsheet.h"
#include "core/timeline/Timeline.h"
#include "core/timeline/TimelineEvent.h"

#include <QJsonArray>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;

namespace {

class TimeAndSpaceToolsTest : public ToolFixture
{
protected:
    TimeAndSpaceToolsTest()
        : ToolFixture({registerMcpTimeAndSpaceTools})
    {}
};

/** Values of every type, most of them wrong wherever they stand. */
QJsonArray oddValues()
{
    QJsonObject deep;
    for (int level = 0; level < 50; ++level)
        deep = {{u"name"_s, QJsonArray{deep}}};
    return {
        QJsonValue(),
        true,
        -1,
        1e300,
        u""_s,
        u"%1 %2"_s,
        QString(10'000, u'x'),
        QString(QChar(0xd800)),
        QJsonArray(),
        QJsonArray{QJsonValue(), 5, u"x"_s},
        QJsonArray{QJsonObject{{u"name"_s, 5}}},
        QJsonArray{QJsonArray{QJsonArray()}},
        QJsonObject(),
        QJsonObject{{u"A1"_s, QJsonObject()}},
        deep,
    };
}

} // namespace

TEST_F(TimeAndSpaceToolsTest, standInTheOrderOfTheCatalogue)
{
    QStringList names;
    for (const McpToolSpec& tool : server.tools())
        names += tool.name;
    EXPECT_EQ(
        names, QStringList(
                   {u"get_calendar"_s,
                    u"update_calendar"_s,
                    u"get_map"_s,
                    u"create_map"_s,
                    u"update_map"_s,
                    u"list_media"_s,
                    u"add_media"_s,
                    u"set_media_caption"_s,
                    u"get_spreadsheet"_s,
                    u"create_spreadsheet"_s,
                    u"update_spreadsheet"_s,
                    u"get_chart"_s,
                    u"create_chart"_s,
                    u"update_chart"_s,
                    u"get_timeline"_s,
                    u"update_timeline"_s,
                    u"create_timeline_event"_s,
                    u"create_missing_entities"_s,
                    u"update_timeline_event"_s,
                    u"manage_eras"_s,
                    u"get_conflicts"_s,
                    u"list_continuity_rules"_s,
                    u"create_continuity_rule"_s,
                    u"delete_continuity_rule"_s}));
}

TEST_F(TimeAndSpaceToolsTest, oddArgumentsNeverLeaveHalfAChange)
{
    add<core::entity::Entity>(core::CategoryId(), u"N"_s);
    add<core::map::Map>(u"N"_s);
    add<core::spreadsheet::Spreadsheet>(u"N"_s);
    add<core::timeline::Timeline>(u"N"_s);
    core::timeline::EventDetails details;
    details.title = u"N"_s;
    add<core::timeline::TimelineEvent>(details);

    for (const McpToolSpec& tool : server.tools()) {
        const QJsonObject properties = tool.inputSchema.value(u"properties").toObject();
        for (const QString& name : properties.keys()) {
            for (const QJsonValue& odd : oddValues()) {
                QJsonObject arguments{{u"title"_s, u"N"_s}, {u"name"_s, u"N"_s}, {u"date"_s, u"1"_s}};
                arguments.insert(name, odd);
                const qsizetype stepsBefore = steps();
                const qsizetype logBefore = log.entries.size();
                const McpToolResult result = server.callTool(tool.name, arguments);
                EXPECT_FALSE(result.text.isEmpty());
                const qsizetype changes = steps() - stepsBefore;
                EXPECT_TRUE(changes == 0 || (changes == 1 && result.ok)) << tool.name.toStdString();
                EXPECT_EQ(log.entries.size() - logBefore, changes) << tool.name.toStdString();
                EXPECT_FALSE(workspace.isModified());
                if (changes > 0) {
                    workspace.undoStack().undo();
                    ASSERT_TRUE(workspace.save());
                }
            }
        }
    }
}

} // namespace tw::app::mcp
