#include "app/spreadsheet/CellAddress.h"

namespace tw::app::spreadsheet {

namespace {

constexpr qint32 letters = 26;
constexpr int mostColumnLetters = 3;
constexpr int mostRowDigits = 7;

int letterValue(QChar letter)
{
    const char16_t upper = letter.toUpper().unicode();
    return upper >= u'A' && upper <= u'Z' ? upper - u'A' + 1 : 0;
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

QString columnName(qint32 column)
{
    QString name;
    for (qint32 rest = column + 1; rest > 0; rest = (rest - 1) / letters)
        name.prepend(QChar(u'A' + (rest - 1) % letters));
    return name;
}

QString addressText(CellPosition position)
{
    return columnName(position.column) + QString::number(qint64{position.row} + 1);
}

QString referenceText(const CellReference& reference)
{
    QString text = columnName(reference.position.column);
    if (reference.isColumnFixed)
        text.prepend(u'$');
    if (reference.isRowFixed)
        text += u'$';
    return text + QString::number(qint64{reference.position.row} + 1);
}

std::optional<CellReference> referenceFromText(QStringView text)
{
    CellReference reference;
    qsizetype index = 0;
    const auto skipDollar = [&] {
        const bool isThere = index < text.size() && text[index] == u'$';
        index += isThere ? 1 : 0;
        return isThere;
    };

    reference.isColumnFixed = skipDollar();
    qint32 column = 0;
    const qsizetype columnBegin = index;
    for (; index < text.size() && letterValue(text[index]) > 0; ++index) {
        if (index - columnBegin == mostColumnLetters)
            return std::nullopt;
        column = column * letters + letterValue(text[index]);
    }

    reference.isRowFixed = skipDollar();
    qint32 row = 0;
    const qsizetype rowBegin = index;
    for (; index < text.size() && isDigit(text[index]); ++index) {
        if (index - rowBegin == mostRowDigits)
            return std::nullopt;
        row = row * 10 + text[index].digitValue();
    }

    if (index != text.size() || column == 0 || column > mostColumns || row == 0 || row > mostRows ||
        text[rowBegin] == u'0')
        return std::nullopt;
    reference.position = {row - 1, column - 1};
    return reference;
}

} // namespace tw::app::spreadsheet
