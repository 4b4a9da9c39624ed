#include "desktop/inspector/InspectorPanel.h"
#include "core/content/ContentCommands.h"
#include "desktop/inspector/DocumentSection.h"
#include "desktop/inspector/ObjectSection.h"
#include "desktop/support/TestDesk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace tw::desktop::inspector {

using namespace Qt::Literals::StringLiterals;

namespace {

class InspectorPanelTest : public testing::Test
{
protected:
    InspectorPanelTest()
        : id(desk.addDocument(u"Chapter"_s, {}, 0))
        , panel(desk.context, nullptr)
    {
        desk.announce();
        desk.navigator.setCurrent(id);
        panel.show();
    }

    test::TestDesk desk;
    core::ContentId id;
    InspectorPanel panel;
};

} // namespace

TEST_F(InspectorPanelTest, choosingWhatIsThereIsNoStep)
{
    for (QComboBox* const box : panel.findChildren<QComboBox*>())
        emit box->activated(box->currentIndex());
    for (QLineEdit* const edit : panel.findChildren<QLineEdit*>())
        emit edit->editingFinished();
    EXPECT_FALSE(desk.session.canUndo()) << desk.session.undoText().toStdString();
}

TEST_F(InspectorPanelTest, ofWhatIsLockedOnlyTheSwitchesMove)
{
    auto* const tags = panel.findChild<ObjectSection*>()->findChild<QLineEdit*>();
    desk.session.apply(std::make_unique<core::content::SetObjectLockCommand>(desk.document(id), true));
    tags->setText(u"typed"_s);
    emit tags->editingFinished();
    EXPECT_TRUE(desk.document(id).tags().empty());
    EXPECT_FALSE(tags->isEnabled());
    EXPECT_FALSE(panel.findChild<DocumentSection*>()->isEnabled());
    for (QCheckBox* const box : panel.findChildren<QCheckBox*>())
        EXPECT_TRUE(box->isEnabled()) << box->text().toStdString();
}

} // namespace tw::desktop::inspector
