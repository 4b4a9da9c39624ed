#include "mcp/server/ToolReference.h"

#include "mcp/server/ToolCatalogue.h"
#include "support/TestFiles.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <set>

namespace tw::mcp::server {

using namespace Qt::Literals::StringLiterals;
using app::mcp::Tool;

TEST(ToolReferenceTest, thePageInTheSourcesIsCurrent)
{
    QFile page(test::repositoryPath(u"docs/tools.md"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll() == toolReference().toUtf8())
        << "Run ninja tool-docs and look at what changed.";
}

TEST(ToolReferenceTest, everyToolIsWellFormed)
{
    static const QRegularExpression wellNamed(u"^[a-z]+(_[a-z]+)*$"_s);
    std::set<QString> names;
    for (const ToolFamily& family : toolFamilies()) {
        for (const Tool& tool : family.tools) {
            const std::string name = tool.spec.name.toStdString();
            EXPECT_TRUE(wellNamed.match(tool.spec.name).hasMatch()) << name;
            EXPECT_TRUE(names.insert(tool.spec.name).second) << name;
            EXPECT_TRUE(tool.handler != nullptr) << name;
            EXPECT_FALSE(tool.title.isEmpty()) << name;
            EXPECT_FALSE(tool.access == app::mcp::ToolAccess::ReadOnly && tool.hints.isDestructive) << name;
            const QJsonObject schema = tool.spec.inputSchema;
            const QJsonObject properties = schema.value(u"properties").toObject();
            EXPECT_TRUE(
                tool.subject.isEmpty() || (properties.contains(tool.subject) && properties.contains(u"id")))
                << name;
            for (const QJsonValue& required : schema.value(u"required").toArray())
                EXPECT_TRUE(properties.contains(required.toString()))
                    << name << required.toString().toStdString();
            for (auto property = properties.begin(); property != properties.end(); ++property) {
                EXPECT_TRUE(wellNamed.match(property.key()).hasMatch())
                    << name << property.key().toStdString();
                EXPECT_FALSE(property->toObject().value(u"description").toString().isEmpty())
                    << name << ' ' << property.key().toStdString();
            }
        }
    }
}

} // namespace tw::mcp::server
