#include "bench/mcp-benchmark/LineProcess.h"

#include <cstdio>

#include <unistd.h>

namespace tw::bench {

LineProcess::LineProcess(const QString& program, const QStringList& arguments)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(program, arguments);
    if (!m_process.waitForStarted())
        qFatal("%s does not start", qPrintable(program));
}

LineProcess::~LineProcess()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

QByteArray LineProcess::roundTrip(const QByteArray& line)
{
    m_process.write(line + '\n');
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead())
            qFatal("%s does not answer", qPrintable(m_process.program()));
    }
    return m_process.readLine();
}

void echoLines()
{
    char buffer[64 * 1024];
    for (;;) {
        const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0)
            return;
        std::fwrite(buffer, 1, static_cast<std::size_t>(count), stdout);
        std::fflush(stdout);
    }
}

} // namespace tw::bench
