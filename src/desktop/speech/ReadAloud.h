#pragma once

#include <QLocale>
#include <QObject>
#include <QStringList>

#include <optional>

class QTextToSpeech;

namespace tw::desktop::speech {

/** The paragraphs of a text that have something to be read, in pieces that a voice takes at once. */
[[nodiscard]] QStringList speakablePieces(const QString& text);

/** The one that can read the language: of the same country if there is one. None when nobody speaks it. */
[[nodiscard]] std::optional<QLocale> nearestLocale(const QList<QLocale>& available, const QLocale& language);

/** What became of a text that was to be read. */
enum class ReadingStart
{
    Reading,
    /** It has no words. */
    NothingToRead,
    NoVoice,
};

/**
 * Reads texts aloud with the voices of the system, paragraph by paragraph. The system's speech is looked for
 * when it is first asked for, since that takes a while. Main thread.
 */
class ReadAloud final : public QObject
{
    Q_OBJECT

public:
    explicit ReadAloud(QObject* parent);
    ~ReadAloud() override;

    [[nodiscard]] bool isReading() const { return m_isReading; }
    /**
     * Begins with this text instead of whatever is being read, in the voice of the system where no voice
     * speaks the language.
     */
    [[nodiscard]] ReadingStart read(const QString& text, const QLocale& language);
    void stop();

signals:
    void readingChanged(bool isReading);
    /** The system's speech broke off; the reason is its own text, in any language, maybe empty. */
    void failed(const QString& reason);

private:
    [[nodiscard]] bool findSpeech();
    [[nodiscard]] bool findVoice(const QLocale& language);
    void sayNext();
    void setReading(bool isReading);

    QTextToSpeech* m_speech = nullptr;
    QLocale m_systemLocale;
    QStringList m_waiting;
    bool m_isReading = false;
};

} // namespace tw::desktop::speech
