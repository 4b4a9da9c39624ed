#include "desktop/assistant/ClientConfiguration.h"
#include "desktop/assistant/ProjectTools.h"
#include "desktop/settings/AssistantPage.h"
#include "desktop/support/TestDesk.h"

#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace tw::desktop::assistant {

using namespace Qt::Literals::StringLiterals;

TEST(ProjectToolsTest, aToolIsOneStepThatThePanelsHearOf)
{
    test::TestDesk desk;
    ASSERT_TRUE(desk.session.saveAs(desk.folder.filePath(u"tide"_s)));
    ProjectTools tools(desk.session, nullptr);
    ASSERT_TRUE(tools.server());
    int announced = 0;
    int saved = 0;
    QObject::connect(&desk.session, &shell::ProjectSession::changed, &tools, [&] { ++announced; });
    QObject::connect(&desk.session, &shell::ProjectSession::saved, &tools, [&] { ++saved; });

    const auto listed = tools.call(u"get_manuscript_tree"_s, {});
    EXPECT_TRUE(listed.ok) << listed.text.toStdString();
    EXPECT_EQ(announced, 0);

    const auto created = tools.call(u"create_document"_s, {{u"title"_s, u"The Ebb"_s}});
    ASSERT_TRUE(created.ok) << created.text.toStdString();
    EXPECT_EQ(announced, 1);
    EXPECT_EQ(saved, 1);
    EXPECT_EQ(tools.changeLog().entries, QStringList{created.text});
    EXPECT_EQ(desk.session.undoText(), u"MCP: create_document"_s);
    const auto count = desk.session.project().objects().size();
    desk.session.undo();
    EXPECT_EQ(desk.session.project().objects().size(), count - 1);
    EXPECT_FALSE(tools.call(u"no_such_tool"_s, {}).ok);
}

TEST(ProjectToolsTest, anotherProjectGetsItsOwnToolsAndAnEmptyLog)
{
    test::TestDesk desk;
    ASSERT_TRUE(desk.session.saveAs(desk.folder.filePath(u"tide"_s)));
    ProjectTools tools(desk.session, nullptr);
    ASSERT_TRUE(tools.call(u"create_document"_s, {{u"title"_s, u"The Ebb"_s}}).ok);
    desk.session.startNew(u"Second"_s);
    EXPECT_TRUE(tools.changeLog().entries.isEmpty());
    const auto tree = tools.call(u"get_manuscript_tree"_s, {});
    EXPECT_FALSE(tree.text.contains(u"The Ebb"_s)) << tree.text.toStdString();
}

TEST(ClientConfigurationTest, everyFormKeepsPathsAsTheyAre)
{
    const QString path = u"/home/jo/Low \"Water\" & it's $HOME.vellory"_s;
    const ServerCommand command{u"low-water"_s, u"/usr/bin/vellory-mcp"_s, {u"--read-only"_s, path}};
    for (const auto& [form, servers] :
         {std::pair(ClientForm::ServersByName, u"mcpServers"_s),
          std::pair(ClientForm::TypedServers, u"servers"_s)}) {
        const QJsonObject json =
            QJsonDocument::fromJson(clientConfiguration(form, command).toUtf8()).object();
        const QJsonObject server = json.value(servers).toObject().value(u"low-water"_s).toObject();
        EXPECT_EQ(server.value(u"command"_s).toString(), command.program);
        EXPECT_EQ(server.value(u"args"_s).toArray().at(1).toString(), path);
    }
    EXPECT_TRUE(clientConfiguration(ClientForm::Toml, command)
                    .contains(u"\"/home/jo/Low \\\"Water\\\" & it's $HOME.vellory\""_s));
    EXPECT_TRUE(clientConfiguration(ClientForm::CommandLine, command)
                    .endsWith(u"'/home/jo/Low \"Water\" & it'\\''s $HOME.vellory'"_s));
    EXPECT_EQ(serverNameFor(u"Ébb & Flow, II"_s), u"ebb-flow-ii"_s);
    EXPECT_EQ(serverNameFor(u"潮"_s), u"vellory"_s);
}

TEST(AssistantPageTest, showsTheOpenProject)
{
    test::TestDesk desk;
    const QString path = desk.folder.filePath(u"tide"_s);
    EXPECT_FALSE(settings::AssistantPage(desk.context, nullptr).snippet().contains(path));
    ASSERT_TRUE(desk.session.saveAs(path));
    settings::AssistantPage page(desk.context, nullptr);
    auto* const forms = page.findChild<QComboBox*>();
    for (int form = 0; form < forms->count(); ++form) {
        forms->setCurrentIndex(form);
        EXPECT_TRUE(page.snippet().contains(path)) << page.snippet().toStdString();
    }
}

} // namespace tw::desktop::assistant
