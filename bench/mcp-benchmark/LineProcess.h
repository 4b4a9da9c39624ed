#pragma once

#include <QProcess>

namespace tw::bench {

/** A program that answers every line with one line, talked to over its standard input and output. */
class LineProcess
{
public:
    LineProcess(const QString& program, const QStringList& arguments);
    ~LineProcess();

    /** Waits for the answer. Ends the benchmark when none comes. */
    QByteArray roundTrip(const QByteArray& line);

private:
    QProcess m_process;
};

/** The other side of it that does nothing: sends every line of standard input back until that ends. */
void echoLines();

} // namespace tw::bench
