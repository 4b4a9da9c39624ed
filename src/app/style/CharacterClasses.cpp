#include "app/style/CharacterClasses.h"

namespace tw::app::style {

namespace {

constexpr char32_t nextLine = 0x85;
/** Counted among the blanks by regular expressions, although Unicode made a format character of it. */
constexpr char32_t mongolianVowelSeparator = 0x180e;

quint8 classesOf(char32_t character)
{
    if (character == U'.' || character == U'!' || character == U'?')
        return SentenceEnd;
    if (character == U'_')
        return WordCharacter;
    if ((character >= U'\t' && character <= U'\r') || character == nextLine ||
        character == mongolianVowelSeparator)
        return WhiteSpace;
    switch (QChar::category(character)) {
    case QChar::Letter_Uppercase:
    case QChar::Letter_Lowercase:
    case QChar::Letter_Titlecase:
    case QChar::Letter_Modifier:
    case QChar::Letter_Other:
        return Letter | WordCharacter;
    case QChar::Number_DecimalDigit:
    case QChar::Number_Letter:
    case QChar::Number_Other:
        return WordCharacter;
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return WhiteSpace;
    default:
        return 0;
    }
}

} // namespace

const CharacterClasses& CharacterClasses::shared()
{
    static const CharacterClasses classes;
    return classes;
}

CharacterClasses::CharacterClasses()
{
    for (char32_t character = 0; character < m_classes.size(); ++character)
        m_classes[character] = QChar::isSurrogate(character) ? quint8(0) : classesOf(character);
}

ClassifiedCharacter CharacterClasses::ofPair(QStringView text, qsizetype index)
{
    if (index + 1 >= text.size() || !text[index + 1].isLowSurrogate())
        return {};
    return {classesOf(QChar::surrogateToUcs4(text[index], text[index + 1])), 2};
}

} // namespace tw::app::style
