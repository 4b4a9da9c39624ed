#pragma once

#include <QLocale>
#include <QObject>
#include <QStringList>

class QTextToSpeech;

namespace tw::desktop::speech {

/** The paragraphs of a text that have something to be read, in pieces that a voice takes at once. */
[[nodiscard]] QStringList speakablePieces(const QString& text);

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
    /** Begins with this text instead of whatever is being read. False when no voice is installed. */
    bool read(const QString& text, const QLocale& language);
    void stop();

signals:
    void readingChanged(bool isReading);

private:
    [[nodiscard]] bool findVoice(const QLocale& language);
    void sayNext();
    void setReading(bool isReading);

    QTextToSpeech* m_speech = nullptr;
    QStringList m_waiting;
    bool m_isReading = false;
};

} // namespace tw::desktop::speech
