#include "desktop/speech/ReadAloud.h"

#include <QTextToSpeech>
#include <QVoice>

#include <algorithm>

namespace tw::desktop::speech {

using namespace Qt::Literals::StringLiterals;

namespace {

/** Engines refuse or cut what is much longer. */
constexpr qsizetype longestPiece = 2000;

/** What a character of the page stands for that is no word. */
QString readable(QString text)
{
    text.remove(QChar::ObjectReplacementCharacter);
    text.replace(QChar::LineSeparator, u' ');
    return text.simplified();
}

bool hasWords(const QString& text)
{
    return std::ranges::any_of(text, [](QChar character) { return character.isLetterOrNumber(); });
}

} // namespace

QStringList speakablePieces(const QString& text)
{
    QString lines = text;
    lines.replace(QChar::ParagraphSeparator, u'\n');
    QStringList pieces;
    for (const QStringView line : QStringView(lines).split(u'\n', Qt::SkipEmptyParts)) {
        QString rest = readable(line.toString());
        while (rest.size() > longestPiece) {
            // At the end of a sentence if there is one, else between words.
            qsizetype end = rest.lastIndexOf(u". "_s, longestPiece) + 1;
            if (end <= 0)
                end = rest.lastIndexOf(u' ', longestPiece);
            if (end <= 0)
                end = longestPiece;
            pieces.append(rest.first(end));
            rest = rest.sliced(end).trimmed();
        }
        if (hasWords(rest))
            pieces.append(rest);
    }
    return pieces;
}

std::optional<QLocale> nearestLocale(const QList<QLocale>& available, const QLocale& language)
{
    if (available.contains(language))
        return language;
    const auto near = std::ranges::find(available, language.language(), &QLocale::language);
    return near == available.end() ? std::nullopt : std::optional(*near);
}

ReadAloud::ReadAloud(QObject* parent)
    : QObject(parent)
{}

ReadAloud::~ReadAloud()
{
    if (m_speech) {
        m_speech->disconnect(this);
        m_speech->stop();
    }
}

bool ReadAloud::findSpeech()
{
    // One that failed stays as it is, and another try may well succeed.
    if (m_speech && m_speech->state() == QTextToSpeech::Error)
        delete std::exchange(m_speech, nullptr);
    if (m_speech)
        return true;
    QStringList engines = QTextToSpeech::availableEngines();
    engines.removeAll(u"mock"_s);
    if (engines.isEmpty())
        return false;
    m_speech = new QTextToSpeech(engines.constFirst(), this);
    m_systemLocale = m_speech->locale();
    connect(m_speech, &QTextToSpeech::stateChanged, this, [this](QTextToSpeech::State state) {
        if (state == QTextToSpeech::Ready && m_isReading) {
            sayNext();
        } else if (state == QTextToSpeech::Error && m_isReading) {
            stop();
            emit failed(m_speech->errorString());
        }
    });
    return m_speech->state() != QTextToSpeech::Error;
}

bool ReadAloud::findVoice(const QLocale& language)
{
    if (!findSpeech())
        return false;
    // The text before this one may have been in another language.
    const QLocale locale = nearestLocale(m_speech->availableLocales(), language).value_or(m_systemLocale);
    if (m_speech->locale() != locale)
        m_speech->setLocale(locale);
    return !m_speech->availableVoices().isEmpty();
}

ReadingStart ReadAloud::read(const QString& text, const QLocale& language)
{
    stop();
    const QStringList pieces = speakablePieces(text);
    if (pieces.isEmpty())
        return ReadingStart::NothingToRead;
    if (!findVoice(language))
        return ReadingStart::NoVoice;
    m_waiting = pieces;
    setReading(true);
    sayNext();
    return ReadingStart::Reading;
}

void ReadAloud::sayNext()
{
    if (m_waiting.isEmpty())
        setReading(false);
    else
        m_speech->say(m_waiting.takeFirst());
}

void ReadAloud::stop()
{
    m_waiting.clear();
    setReading(false);
    if (m_speech && m_speech->state() == QTextToSpeech::Speaking)
        m_speech->stop();
}

void ReadAloud::setReading(bool isReading)
{
    if (std::exchange(m_isReading, isReading) != isReading)
        emit readingChanged(isReading);
}

} // namespace tw::desktop::speech
