#include "desktop/inspector/InspectorPanel.h"

#include "core/content/ContentCommands.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/inspector/DocumentSection.h"
#include "desktop/inspector/ObjectSection.h"
#include "desktop/support/TestDesk.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::inspector {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;

namespace {

/** A field of the inspector, by the label beside it, and what a document has of it. */
struct TypedField
{
    QString label;
    QString typed;
    QString stored;
    QString (*read)(const Document& document);
};

class InspectorPanelTest : public testing::Test
{
protected:
    InspectorPanelTest()
    {
        panel.show();
        QApplication::setActiveWindow(&panel);
        desk.announce();
        desk.navigator.setCurrent(one);
    }

    QLineEdit* lineOf(const QString& label)
    {
        for (const QLabel* const candidate : panel.findChildren<QLabel*>()) {
            QWidget* const buddy = candidate->text().remove(u'&') == label ? candidate->buddy() : nullptr;
            if (auto* const line = qobject_cast<QLineEdit*>(buddy))
                return line;
            if (buddy)
                return buddy->findChild<QLineEdit*>();
        }
        return nullptr;
    }

    void type(const TypedField& field)
    {
        QLineEdit* const line = lineOf(field.label);
        ASSERT_TRUE(line);
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, field.typed);
    }

    test::TestDesk desk;
    core::ContentId one = desk.addDocument(u"One"_s, {}, 0);
    core::ContentId two = desk.addDocument(u"Two"_s, {}, 1);
    InspectorPanel panel{desk.context, nullptr};
};

const std::vector<TypedField> fields{
    {u"Tags"_s, u"oath"_s, u"oath"_s,
     [](const Document& document) {
         return QStringList(document.tags().begin(), document.tags().end()).join(u' ');
     }},
    {u"Status"_s, u"Draft"_s, u"Draft"_s, [](const Document& document) { return document.status(); }},
    {u"Point of view"_s, u"Ada"_s, u"Ada"_s, [](const Document& document) { return document.pointOfView(); }},
    {u"Target"_s, u"1200"_s, u"1200"_s,
     [](const Document& document) { return QString::number(document.wordCountTarget()); }},
    {u"Story date"_s, u"1900"_s, u"dated"_s,
     [](const Document& document) { return document.sceneInstant() ? u"dated"_s : QString(); }},
};

} // namespace

TEST_F(InspectorPanelTest, whatStillStandsInAFieldIsSavedAsOneStep)
{
    for (const TypedField& field : fields) {
        SCOPED_TRACE(field.label.toStdString());
        type(field);
        EXPECT_NE(field.read(desk.document(one)), field.stored);
        EXPECT_TRUE(desk.session.isTypingPending()) << "closing has to ask";
        desk.session.commitPendingEdits();
        EXPECT_FALSE(desk.session.isTypingPending());
        EXPECT_EQ(field.read(desk.document(one)), field.stored);
        desk.session.undo();
        EXPECT_NE(field.read(desk.document(one)), field.stored) << "one step";
        EXPECT_FALSE(desk.session.canUndo());
    }
}

TEST_F(InspectorPanelTest, whatStillStandsInAFieldStaysWithItsDocument)
{
    for (const TypedField& field : fields) {
        SCOPED_TRACE(field.label.toStdString());
        type(field);
        desk.navigator.setCurrent(two);
        EXPECT_EQ(field.read(desk.document(one)), field.stored);
        EXPECT_NE(field.read(desk.document(two)), field.stored);
        EXPECT_NE(lineOf(field.label)->text(), field.typed);
        desk.navigator.setCurrent(one);
    }
}

TEST_F(InspectorPanelTest, whatTheProgramDoesInPassingDoesNotWriteHalfADateAnew)
{
    type(fields.front());
    desk.session.commitPendingEdits(shell::CommitReason::InPassing);
    EXPECT_EQ(fields.front().read(desk.document(one)), fields.front().stored);
    type(fields.back());
    desk.session.commitPendingEdits(shell::CommitReason::InPassing);
    EXPECT_EQ(lineOf(fields.back().label)->text(), fields.back().typed);
    EXPECT_TRUE(desk.session.isTypingPending());
}

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
    desk.session.apply(std::make_unique<core::content::SetObjectLockCommand>(desk.document(one), true));
    tags->setText(u"typed"_s);
    emit tags->editingFinished();
    EXPECT_TRUE(desk.document(one).tags().empty());
    EXPECT_FALSE(tags->isEnabled());
    EXPECT_FALSE(panel.findChild<DocumentSection*>()->isEnabled());
    for (QCheckBox* const box : panel.findChildren<QCheckBox*>())
        EXPECT_TRUE(box->isEnabled()) << box->text().toStdString();
}

TEST_F(InspectorPanelTest, whyADateDoesNotReadCanBeReadWhole)
{
    // As wide as the panel is at first.
    panel.resize(300, 700);
    QCoreApplication::processEvents();
    // The reading comes first, on fewer lines than the reason why it is none.
    for (const QString& typed : {u"1 January 1"_s, u"1 January 1 of"_s}) {
        type({u"Story date"_s, typed, {}, nullptr});
        QCoreApplication::processEvents();
    }
    const auto* const note = panel.findChild<fields::NoteLabel*>();
    ASSERT_TRUE(note && note->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([note] { return note->height() >= note->heightForWidth(note->width()); }));
}

} // namespace tw::desktop::inspector
