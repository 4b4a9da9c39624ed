#include "desktop/fields/LongWords.h"

#include <QTextCursor>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace tw::desktop::fields {

using namespace Qt::Literals::StringLiterals;

TEST(LongWordsTest, linesBreakAnywhereWhileThereIsAWordWithoutEnd)
{
    QTextEdit edit;
    QTextDocument& document = *edit.document();
    breakLongWordsAnywhere(document);
    const auto mode = [&] { return document.defaultTextOption().wrapMode(); };
    EXPECT_EQ(mode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    const QString text = u"Words, and 字字字. "_s.repeated(longestWord);
    edit.setPlainText(text);
    EXPECT_EQ(mode(), QTextOption::WrapAtWordBoundaryOrAnywhere) << "however much there is of them";
    QTextCursor cursor(&document);
    cursor.setPosition(7);
    cursor.insertText(QString(longestWord + 1, u'x'));
    EXPECT_EQ(mode(), QTextOption::WrapAnywhere);
    cursor.insertText(u"y"_s);
    cursor.deletePreviousChar();
    EXPECT_EQ(mode(), QTextOption::WrapAnywhere);
    cursor.setPosition(7, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    EXPECT_EQ(mode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    EXPECT_EQ(edit.toPlainText(), text);
}

} // namespace tw::desktop::fields
