#include "desktop/inspector/InspectorPanel.h"
#include "desktop/support/TestDesk.h"

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

} // namespace tw::desktop::inspector
