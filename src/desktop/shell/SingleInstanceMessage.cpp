#include "desktop/shell/SingleInstanceMessage.h"

#include <QStringDecoder>

#include <algorithm>

namespace tw::desktop::shell {

namespace {

constexpr char lineFeed = '\n';

} // namespace

QByteArray encodeInstanceMessage(const QString& path)
{
    const QByteArray line = path.toUtf8() + lineFeed;
    // A path that the other side would read differently is opened here instead.
    SingleInstanceMessage reading;
    reading.append(line);
    const bool arrives = reading.state() == SingleInstanceMessage::State::Complete && reading.path() == path;
    return arrives ? line : QByteArray();
}

SingleInstanceMessage::State SingleInstanceMessage::append(QByteArrayView bytes)
{
    if (m_state != State::Incomplete)
        return m_state;
    const qsizetype room = longestInstanceMessage - m_buffer.size();
    const QByteArrayView taken = bytes.first(std::min(room, bytes.size()));
    const qsizetype end = taken.indexOf(lineFeed);
    m_buffer.append(end < 0 ? taken : taken.first(end));
    if (end >= 0) {
        finish(m_buffer);
        m_buffer.clear();
    } else if (m_buffer.size() == longestInstanceMessage) {
        m_state = State::Refused;
        m_buffer.clear();
    }
    return m_state;
}

void SingleInstanceMessage::finish(QByteArrayView line)
{
    // A mark of the byte order would be part of the name, as any other character.
    QStringDecoder decode(
        QStringDecoder::Utf8, QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString text = decode(line);
    m_state = decode.hasError() ? State::Refused : State::Complete;
    if (m_state == State::Complete)
        m_path = text.trimmed();
}

} // namespace tw::desktop::shell
