// How GoogleTest shows Qt's values in a failure. Part of every test file through the precompiled header.
#pragma once

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

#include <ostream>

inline void PrintTo(QStringView text, std::ostream* out)
{
    *out << '"' << text.toUtf8().toStdString() << '"';
}

inline void PrintTo(const QString& text, std::ostream* out)
{
    PrintTo(QStringView(text), out);
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}
