// Writes the page of all tools: tool-docs FILE
#include "mcp/server/ToolReference.h"

#include <QCoreApplication>
#include <QSaveFile>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QSaveFile file(arguments.value(1));
    if (!file.open(QIODevice::WriteOnly) || file.write(tw::mcp::server::toolReference().toUtf8()) < 0 ||
        !file.commit()) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
        return 1;
    }
    return 0;
}
