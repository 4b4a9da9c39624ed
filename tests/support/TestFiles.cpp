#include "support/TestFiles.h"

namespace tw::test {

QString repositoryPath(QStringView relativePath)
{
    return QStringLiteral(TW_SOURCE_FOLDER "/").append(relativePath);
}

} // namespace tw::test
