#include "desktop/screenplay/ScreenplayFormats.h"

#include <QFontDatabase>
#include <QFontInfo>

namespace tw::desktop::screenplay {

using namespace Qt::Literals::StringLiterals;

QString typewriterFamily()
{
    const QStringList installed = QFontDatabase::families();
    for (const QString& family :
         {u"Courier Prime"_s, u"Courier New"_s, u"Nimbus Mono PS"_s, u"FreeMono"_s, u"Liberation Mono"_s}) {
        if (installed.contains(family))
            return family;
    }
    return QFontInfo(QFontDatabase::systemFont(QFontDatabase::FixedFont)).family();
}

QTextBlockFormat formatOf(Element element, qreal characterWidth)
{
    const auto column = core::document::screenplay::columnOf(element);
    QTextBlockFormat format;
    format.setLeftMargin(column.indent * characterWidth);
    format.setRightMargin((lineCharacters - column.indent - column.width) * characterWidth);
    format.setAlignment(element == Element::Transition ? Qt::AlignRight : Qt::AlignLeft);
    return format;
}

QString elementName(Element element)
{
    const auto translated = [](const char* text) {
        return QCoreApplication::translate("ScreenplayElement", text);
    };
    switch (element) {
    case Element::SceneHeading:
        return translated(QT_TRANSLATE_NOOP("ScreenplayElement", "Scene heading"));
    case Element::Action:
        return translated(QT_TRANSLATE_NOOP("ScreenplayElement", "Action"));
    case Element::Character:
        return translated(QT_TRANSLATE_NOOP("ScreenplayElement", "Character"));
    case Element::Dialogue:
        return translated(QT_TRANSLATE_NOOP("ScreenplayElement", "Dialogue"));
    case Element::Parenthetical:
        return translated(QT_TRANSLATE_NOOP("ScreenplayElement", "Parenthetical"));
    case Element::Transition:
        return translated(QT_TRANSLATE_NOOP("ScreenplayElement", "Transition"));
    case Element::Blank:
        break;
    }
    return {};
}

} // namespace tw::desktop::screenplay
