#include "app/style/spelling/UserDictionary.h"

#include "app/style/spelling/SpellingWords.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>

namespace tw::app::style::spelling {

namespace {

constexpr qint64 mostBytes = 16 * 1024 * 1024;

/** The word of a line; empty when the line holds none. */
QString wordOf(const QByteArray& line)
{
    QByteArray trimmed = line.trimmed();
    if (trimmed.startsWith("\xef\xbb\xbf"))
        trimmed.remove(0, 3);
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(trimmed);
    if (decoder.hasError() || text.size() > longestSpellingWord)
        return {};
    const auto isOdd = [](QChar unit) { return unit.isSpace() || unit.category() == QChar::Other_Control; };
    return std::ranges::any_of(text, isOdd) ? QString() : spellingForm(text);
}

core::Failure failure(const char* text, const QString& path, const QString& why)
{
    return {QCoreApplication::translate("SpellChecker", text).arg(QDir::toNativeSeparators(path), why)};
}

} // namespace

UserDictionary::UserDictionary(QString path)
    : m_path(std::move(path))
    , m_checker(std::make_shared<WordSetSpellChecker>())
{}

core::Result<void> UserDictionary::load()
{
    const core::Result<QByteArray> bytes = read();
    if (!bytes)
        return core::Failure{bytes.message()};
    take(bytes.value());
    return {};
}

core::Result<void> UserDictionary::add(const QString& word)
{
    core::Result<QByteArray> bytes = read();
    if (!bytes)
        return core::Failure{bytes.message()};
    const QByteArray line = spellingForm(word.trimmed()).toUtf8();
    if (wordOf(line).isEmpty())
        return core::Failure{
            QCoreApplication::translate(
                "SpellChecker", "“%1” is not one word of at most %2 characters. Add each word by itself.")
                .arg(word, QString::number(longestSpellingWord))};
    take(bytes.value());
    if (m_words.contains(QString::fromUtf8(line)))
        return {};
    QByteArray changed = std::move(bytes).value();
    if (!changed.isEmpty() && !changed.endsWith('\n'))
        changed.append('\n');
    return write(changed + line + '\n');
}

core::Result<void> UserDictionary::remove(const QString& word)
{
    const core::Result<QByteArray> bytes = read();
    if (!bytes)
        return core::Failure{bytes.message()};
    const QString folded = spellingForm(word).toCaseFolded();
    QByteArray kept;
    for (qsizetype start = 0; start < bytes.value().size();) {
        const qsizetype lineEnd = bytes.value().indexOf('\n', start);
        const qsizetype next = lineEnd < 0 ? bytes.value().size() : lineEnd + 1;
        const QByteArray line = bytes.value().sliced(start, next - start);
        if (wordOf(line).toCaseFolded() != folded)
            kept.append(line);
        start = next;
    }
    return write(kept);
}

core::Result<QByteArray> UserDictionary::read() const
{
    QFile file(m_path);
    if (!file.exists())
        return QByteArray();
    if (file.size() > mostBytes)
        return failure(
            QT_TRANSLATE_NOOP(
                "SpellChecker",
                "The word list “%1” is larger than %2 bytes. Make it smaller, or move it away."),
            m_path, QString::number(mostBytes));
    if (!file.open(QIODevice::ReadOnly))
        return failure(
            QT_TRANSLATE_NOOP(
                "SpellChecker", "The word list “%1” cannot be read: %2. Check who may read the file."),
            m_path, file.errorString());
    return file.readAll();
}

core::Result<void> UserDictionary::write(const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return failure(
            QT_TRANSLATE_NOOP(
                "SpellChecker", "The word list “%1” cannot be written: %2. Check the folder's permissions "
                                "and the free space."),
            m_path, file.errorString());
    take(bytes);
    return {};
}

void UserDictionary::take(const QByteArray& bytes)
{
    QSet<QString> words;
    for (const QByteArray& line : bytes.split('\n')) {
        if (const QString word = wordOf(line); !word.isEmpty())
            words.insert(word);
    }
    m_words = words.values();
    std::ranges::sort(m_words, [](const QString& left, const QString& right) {
        return std::pair(left.toCaseFolded(), left) < std::pair(right.toCaseFolded(), right);
    });
    m_checker = std::make_shared<WordSetSpellChecker>(words);
}

} // namespace tw::app::style::spelling
