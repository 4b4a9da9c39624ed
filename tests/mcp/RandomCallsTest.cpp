#include "app/persistence/codec/ProjectWriter.h"
#include "core/content/ObjectName.h"
#include "mcp/ServerFixture.h"
#include "support/RandomCommands.h"

#include <random>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;
using app::mcp::Tool;

namespace {

/** Arguments that mostly fit a schema, and sometimes do not. */
class RandomArguments
{
public:
    RandomArguments(QStringList names, quint32 seed)
        : m_names(std::move(names))
        , m_random(seed)
    {}

    [[nodiscard]] int below(int end) { return std::uniform_int_distribution(0, end - 1)(m_random); }
    template <class List>
    [[nodiscard]] auto oneOf(const List& list)
    {
        return list[static_cast<decltype(std::size(list))>(below(static_cast<int>(std::size(list))))];
    }

    [[nodiscard]] QJsonObject record(const QJsonObject& schema)
    {
        const QJsonObject properties = schema.value(u"properties").toObject();
        const QJsonArray required = schema.value(u"required").toArray();
        QJsonObject record;
        for (auto property = properties.begin(); property != properties.end(); ++property) {
            if (required.contains(property.key()) ? below(20) > 0 : below(3) == 0)
                record.insert(property.key(), value(property->toObject()));
        }
        return record;
    }

private:
    [[nodiscard]] QJsonValue value(const QJsonObject& schema)
    {
        if (below(12) == 0)
            return anything();
        if (schema.contains(u"enum")) {
            const QJsonArray choices = schema.value(u"enum").toArray();
            return choices.at(below(static_cast<int>(choices.size())));
        }
        const QString type = schema.value(u"type").toString();
        if (type == "integer"_L1 || type == "number"_L1)
            return number();
        if (type == "boolean"_L1)
            return below(2) == 0;
        if (type == "array"_L1) {
            QJsonArray array;
            for (int count = below(4); count > 0; --count)
                array.append(value(schema.value(u"items").toObject()));
            return array;
        }
        if (type == "object"_L1 && schema.contains(u"properties"))
            return record(schema);
        if (type == "object"_L1)
            return QJsonObject{{text(), value(schema.value(u"additionalProperties").toObject())}};
        return text();
    }

    [[nodiscard]] QJsonValue number()
    {
        static const double extremes[] = {0, -1, 1, 0.5, 1e300, -1e300, 9223372036854775807.0, 2147483648.0};
        return below(2) == 0 ? QJsonValue(below(10)) : QJsonValue(oneOf(extremes));
    }

    [[nodiscard]] QString text()
    {
        static const QString odd[] = {{},       u" "_s,  u"%1 %2"_s, u"a\nb"_s, u"(["_s,
                                      u"\\1"_s, u"A1"_s, u"1250"_s,  u"../x"_s, QString(5000, u'x')};
        return below(3) > 0 ? oneOf(m_names) : oneOf(odd);
    }

    [[nodiscard]] QJsonValue anything()
    {
        switch (below(6)) {
        case 0:
            return QJsonValue::Null;
        case 1:
            return below(2) == 0;
        case 2:
            return number();
        case 3:
            return QJsonArray{number(), text(), QJsonObject()};
        case 4:
            return QJsonObject{{text(), QJsonArray{QJsonArray()}}};
        default:
            return text();
        }
    }

    QStringList m_names;
    std::mt19937 m_random;
};

QByteArray contentOf(const core::project::Project& project)
{
    QByteArray content;
    for (const auto& [path, bytes] : app::persistence::serializeProject(project))
        content += path.toUtf8() + '\n' + bytes;
    return content;
}

} // namespace

using RandomCallsTest = ServerFixture;

/** Whatever a model passes: a call either succeeds as one step that is saved, or changes nothing at all. */
TEST_F(RandomCallsTest, everyCallOfEveryToolSucceedsWholeOrChangesNothing)
{
    constexpr int calls = 1500;
    core::project::Project& project = workspace->projectForEdit();
    test::fillWithEveryKind(project);
    QStringList names;
    for (const auto& [id, object] : project.objects())
        names += {core::content::objectName(*object), id.toString()};
    for (const auto& [id, category] : project.taxonomy().categories())
        names.append(category.name);
    ASSERT_TRUE(workspace->save());

    RandomArguments random(names, 20260722);
    std::vector<Tool> tools;
    for (const ToolFamily& family : toolFamilies())
        tools.insert(tools.end(), family.tools.begin(), family.tools.end());
    int successes = 0;
    for (int call = 0; call < calls; ++call) {
        const Tool tool = random.oneOf(tools);
        const QJsonObject arguments = random.record(tool.spec.inputSchema);
        const std::string what = tool.spec.name.toStdString() + ' ' +
                                 QJsonDocument(arguments).toJson(QJsonDocument::Compact).toStdString();
        const qsizetype steps = workspace->history().position().undoLength;
        const QByteArray before = contentOf(project);
        const auto result = catalogue->server().callTool(tool.spec.name, arguments);
        EXPECT_FALSE(result.text.isEmpty()) << what;
        ASSERT_FALSE(workspace->isModified()) << what;
        const qsizetype added = workspace->history().position().undoLength - steps;
        if (!result.ok || tool.access == app::mcp::ToolAccess::ReadOnly) {
            ASSERT_EQ(added, 0) << what;
            ASSERT_TRUE(contentOf(project) == before) << what;
        } else if (tool.spec.name != "undo_last"_L1) {
            ASSERT_LE(added, 1) << what;
            ASSERT_EQ(added == 0, contentOf(project) == before) << what;
        }
        successes += result.ok ? 1 : 0;
    }
    EXPECT_GT(successes, calls / 4);
}

} // namespace tw::mcp::server
