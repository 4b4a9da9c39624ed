#include "core/document/ActiveText.h"
#include "core/undo/UndoStack.h"

#include <gtest/gtest.h>

namespace tw::core::document {

using namespace Qt::Literals::StringLiterals;

TEST(ActiveTextTest, editsGoToTheVariantInUseAndToNothingElse)
{
    Document document(ContentId::create(), DocumentKind::Prose, u"Scene"_s);
    document.setBody({u"main"_s, BodyFormat::Markdown});
    undo::UndoStack stack;
    const auto edit = [&](const QString& text) {
        stack.push(makeSetActiveTextCommand(document, {text, BodyFormat::Markdown}));
    };

    edit(u"main, edited"_s);
    EXPECT_EQ(document.body().text, u"main, edited"_s);
    const QString label = stack.undoText();

    document.setVariants({{{u"Dark"_s, u"dark"_s, BodyFormat::Html}, {u"Light"_s, u"light"_s}}, u"Dark"_s});
    EXPECT_EQ(activeText(document), (DocumentBody{u"dark"_s, BodyFormat::Html}));
    edit(u"dark, edited"_s);
    EXPECT_EQ(stack.undoText(), label);
    EXPECT_EQ(activeText(document), (DocumentBody{u"dark, edited"_s, BodyFormat::Markdown}));
    EXPECT_EQ(document.variants().list[1].body, u"light"_s);
    EXPECT_EQ(document.body().text, u"main, edited"_s);
    stack.undo();
    EXPECT_EQ(activeText(document), (DocumentBody{u"dark"_s, BodyFormat::Html}));

    document.setVariants({document.variants().list, u"Gone"_s});
    EXPECT_EQ(activeText(document), document.body());
}

} // namespace tw::core::document
