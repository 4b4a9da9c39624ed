#include "app/style/spelling/DictionaryFiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStringDecoder>

namespace tw::app::style::spelling {

namespace {

using namespace Qt::StringLiterals;

/** Several times the largest dictionaries there are. */
constexpr qint64 mostBytes = 64 * 1024 * 1024;
/** Lists often have somewhat fewer words than they say. */
constexpr qint64 leastShareOfWords = 2;
/** A script of fewer than one letter in so many is that of a few foreign words. */
constexpr qint64 rareScript = 500;
constexpr char defaultEncoding[] = "ISO-8859-1";

core::Failure failure(const Dictionary& dictionary, const QString& path, const QString& why)
{
    return {QCoreApplication::translate(
                "SpellChecker",
                "The dictionary “%1” cannot be used: %2 %3 Install it again, or choose another language.")
                .arg(dictionary.language, QFileInfo(path).fileName(), why)};
}

core::Result<QByteArray> readAll(const Dictionary& dictionary, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failure(
            dictionary, path,
            QCoreApplication::translate("SpellChecker", "cannot be read (%1).").arg(file.errorString()));
    if (file.size() > mostBytes)
        return failure(dictionary, path, QCoreApplication::translate("SpellChecker", "is far too large."));
    QByteArray bytes = file.readAll();
    if (bytes.contains('\0'))
        return failure(dictionary, path, QCoreApplication::translate("SpellChecker", "is not a text."));
    return bytes;
}

/** The encoding that the rules name, as converters call it. */
QByteArray encodingOf(const QByteArray& affixes)
{
    for (const QByteArray& line : affixes.split('\n')) {
        // A mark of the byte order may come before the first word.
        const QByteArray trimmed =
            line.startsWith("\xef\xbb\xbf") ? line.sliced(3).trimmed() : line.trimmed();
        if (!trimmed.startsWith("SET ") && !trimmed.startsWith("SET\t"))
            continue;
        const QByteArray name = trimmed.sliced(4).trimmed();
        if (name.startsWith("ISO8859-"))
            return "ISO-8859-" + name.sliced(8);
        if (name.startsWith("microsoft-cp"))
            return "windows-" + name.sliced(12);
        return name == "TIS620-2533" ? QByteArray("TIS-620") : name;
    }
    return defaultEncoding;
}

core::Result<void> checkWordCount(const Dictionary& dictionary, const QByteArray& words)
{
    const QByteArray bare = words.startsWith("\xef\xbb\xbf") ? words.sliced(3) : words;
    const qsizetype lineEnd = bare.indexOf('\n');
    bool isNumber = false;
    const qint64 count =
        bare.first(lineEnd < 0 ? bare.size() : lineEnd).trimmed().split(' ').first().toLongLong(&isNumber);
    if (!isNumber || count <= 0)
        return failure(
            dictionary, dictionary.wordsPath,
            QCoreApplication::translate("SpellChecker", "does not begin with the number of its words."));
    if (bare.count('\n') < count / leastShareOfWords)
        return failure(
            dictionary, dictionary.wordsPath,
            QCoreApplication::translate("SpellChecker", "has fewer words than it says and is cut short."));
    return {};
}

QSet<QChar::Script> scriptsOf(const QString& words)
{
    QHash<QChar::Script, qint64> letters;
    qint64 all = 0;
    bool isInWord = true;
    for (qsizetype index = 0; index < words.size(); ++index) {
        const QChar unit = words[index];
        // What stands behind a slash are the names of rules.
        if (unit == u'\n')
            isInWord = true;
        else if (unit == u'/' || unit == u'\t')
            isInWord = false;
        if (!isInWord || unit.unicode() < u'A')
            continue;
        const bool isPair = unit.isHighSurrogate() && index + 1 < words.size();
        const char32_t character = isPair ? QChar::surrogateToUcs4(unit, words[index + 1]) : unit.unicode();
        if (!QChar::isLetter(character))
            continue;
        ++letters[QChar::script(character)];
        ++all;
    }
    QSet<QChar::Script> scripts;
    for (const auto& [script, count] : letters.asKeyValueRange()) {
        if (count * rareScript >= all)
            scripts.insert(script);
    }
    return scripts;
}

} // namespace

core::Result<DictionaryFacts> examineDictionary(const Dictionary& dictionary)
{
    const core::Result<QByteArray> affixes = readAll(dictionary, dictionary.affixPath);
    if (!affixes)
        return core::Failure{affixes.message()};
    const core::Result<QByteArray> words = readAll(dictionary, dictionary.wordsPath);
    if (!words)
        return core::Failure{words.message()};
    if (const core::Result<void> counted = checkWordCount(dictionary, words.value()); !counted)
        return core::Failure{counted.message()};

    const QByteArray encoding = encodingOf(affixes.value());
    QStringDecoder decoder(encoding.constData());
    if (!decoder.isValid())
        return failure(
            dictionary, dictionary.affixPath,
            QCoreApplication::translate("SpellChecker", "names the encoding %1, which is unknown here.")
                .arg(QString::fromLatin1(encoding)));
    return DictionaryFacts{encoding, scriptsOf(decoder.decode(words.value()))};
}

} // namespace tw::app::style::spelling
