#include "desktop/fields/LongWords.h"

#include <QTextBlock>
#include <QTextBoundaryFinder>
#include <QTextDocument>
#include <QTextOption>

namespace tw::desktop::fields {

namespace {

bool hasLongWord(const QTextDocument& document)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.length() <= longestWord)
            continue;
        QTextBoundaryFinder finder(QTextBoundaryFinder::Line, block.text());
        qsizetype start = 0;
        for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
            if (end - start > longestWord)
                return true;
            start = end;
        }
    }
    return false;
}

} // namespace

void breakLongWordsAnywhere(QTextDocument& document)
{
    // Told before the layout is, which would start with the costly way.
    QObject::connect(
        &document, &QTextDocument::contentsChange, &document,
        [&document, usual = document.defaultTextOption().wrapMode()](int, int removed, int added) {
            QTextOption option = document.defaultTextOption();
            const bool isBroken = option.wrapMode() == QTextOption::WrapAnywhere;
            if (added <= longestWord && !(isBroken && removed > longestWord))
                return;
            option.setWrapMode(hasLongWord(document) ? QTextOption::WrapAnywhere : usual);
            if (option.wrapMode() != document.defaultTextOption().wrapMode())
                document.setDefaultTextOption(option);
        });
}

} // namespace tw::desktop::fields
