#include "desktop/shell/AudienceSelector.h"

#include "core/content/ContentCommands.h"
#include "desktop/manuscript/ManuscriptPanel.h"
#include "desktop/support/TestDesk.h"
#include "desktop/trees/NavigatorTree.h"

#include <QComboBox>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;

namespace {

/** "Part(One Two) Notes" */
QString shape(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = shape(model, index);
        rows.append(index.data().toString() + (below.isEmpty() ? QString() : u'(' + below + u')'));
    }
    return rows.join(u' ');
}

} // namespace

TEST(AudienceSelectorTest, treesShowWhatTheChosenAudienceSees)
{
    test::TestDesk desk;
    const ContentId part = desk.addDocument(u"Part"_s, {}, 0);
    const ContentId one = desk.addDocument(u"One"_s, part, 0);
    desk.addDocument(u"Two"_s, part, 1);
    const ContentId notes = desk.addDocument(u"Notes"_s, {}, 1);
    desk.document(one).setVisibleTo({u"Players"_s});
    desk.document(notes).setVisibleTo({u"Master"_s});
    manuscript::ManuscriptPanel panel(desk.context, nullptr);
    AudienceSelector selector(desk.context, nullptr);
    auto& choice = *selector.findChild<QComboBox*>(u"viewAs"_s);
    const auto shown = [&panel] { return shape(*panel.findChild<trees::NavigatorTree*>()->model()); };
    EXPECT_TRUE(selector.isHidden()) << "nobody to look as";

    desk.session.projectForCommands().setAudiences({u"Players"_s, u"Master"_s});
    desk.announce();
    EXPECT_FALSE(selector.isHidden());
    EXPECT_EQ(shown(), u"Part(One Two) Notes"_s);
    choice.setCurrentIndex(choice.findData(u"Players"_s));
    EXPECT_EQ(shown(), u"Part(One Two)"_s);
    choice.setCurrentIndex(choice.findData(u"Master"_s));
    EXPECT_EQ(shown(), u"Part(Two) Notes"_s);

    // Of what is withheld itself, not even the title shows above what is not.
    desk.session.apply(std::make_unique<core::content::SetObjectVisibilityCommand>(
        desk.document(part), core::content::NameSet{u"Players"_s}));
    EXPECT_EQ(shown(), u"…(Two) Notes"_s);
    auto& tree = *panel.findChild<trees::NavigatorTree*>();
    tree.setFilter(u"note"_s);
    EXPECT_EQ(shown(), u"Notes"_s);
    tree.setFilter({});

    desk.session.projectForCommands().setAudiences({u"Players"_s});
    desk.announce();
    EXPECT_EQ(shown(), u"Part(One Two) Notes"_s) << "an audience that is gone hides nothing";
}

} // namespace tw::desktop::shell
