#include "desktop/fields/ImageFiles.h"

#include <QImageReader>
#include <QStringList>

namespace tw::desktop::fields {

QString imageNamePatterns()
{
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    return patterns.join(u' ');
}

} // namespace tw::desktop::fields
