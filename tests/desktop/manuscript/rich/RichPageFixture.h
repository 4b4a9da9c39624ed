// A document on the rich page, with a hand on the keyboard.
#pragma once

#include "desktop/manuscript/TypingBursts.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/support/TestDesk.h"

#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::manuscript::rich {

class RichPageTest : public testing::Test
{
protected:
    RichPageTest()
        : id(desk.addDocument(QStringLiteral("Chapter"), {}, 0))
    {}

    /** A new page with this body, as it is when a chapter opens. */
    void open(const QString& body)
    {
        page.reset();
        desk.document(id).setBody({body, {}});
        page = std::make_unique<RichPage>(desk.context, id, nullptr);
        page->resize(900, 600);
        page->show();
    }

    /** Puts the cursor behind the first occurrence of a text; selects it when asked for. */
    void goTo(const QString& text, QTextCursor::MoveMode mode = QTextCursor::MoveAnchor)
    {
        const QTextCursor found = page->document()->find(text);
        ASSERT_FALSE(found.isNull()) << text.toStdString();
        QTextCursor cursor(page->document());
        cursor.setPosition(mode == QTextCursor::KeepAnchor ? found.selectionStart() : found.selectionEnd());
        cursor.setPosition(found.selectionEnd(), QTextCursor::KeepAnchor);
        page->setTextCursor(cursor);
    }
    void select(const QString& text) { goTo(text, QTextCursor::KeepAnchor); }

    void type(const QString& text) { QTest::keyClicks(page.get(), text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(page.get(), key, modifiers);
    }

    /** The body of the project, all typing committed. */
    const QString& body()
    {
        desk.session.commitPendingEdits();
        return desk.document(id).body().text;
    }

    test::TestDesk desk;
    core::ContentId id;
    std::unique_ptr<RichPage> page;
};

} // namespace tw::desktop::manuscript::rich
