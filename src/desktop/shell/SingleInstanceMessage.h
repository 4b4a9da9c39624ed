#pragma once

#include <QByteArray>
#include <QString>

namespace tw::desktop::shell {

/** The most bytes a message may have, its line feed included. */
inline constexpr qsizetype longestInstanceMessage = 65'536;

/** The one line that hands a path to a running instance; empty for a path that no line can carry. */
[[nodiscard]] QByteArray encodeInstanceMessage(const QString& path);

/** Reads the message of one connection as it arrives, in whatever pieces. What comes is trusted in nothing.
 */
class SingleInstanceMessage
{
public:
    enum class State
    {
        Incomplete,
        Complete,
        /** Endless, or not UTF-8: nothing more is read. */
        Refused,
    };

    /** Ignored unless the message is incomplete. */
    State append(QByteArrayView bytes);

    [[nodiscard]] State state() const { return m_state; }
    /** The path of a complete message, which may be empty: then only the window is asked for. */
    [[nodiscard]] const QString& path() const { return m_path; }

private:
    void finish(QByteArrayView line);

    State m_state = State::Incomplete;
    QByteArray m_buffer;
    QString m_path;
};

} // namespace tw::desktop::shell
