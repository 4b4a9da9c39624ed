#include "desktop/manuscript/StatusColors.h"

#include "core/document/Document.h"
#include "core/project/Project.h"
#include "desktop/theme/Theme.h"

#include <QGuiApplication>
#include <QPainter>

#include <set>

namespace tw::desktop::manuscript {

QStringList usualStatuses()
{
    const auto translated = [](const char* text) {
        return QCoreApplication::translate("DocumentStatus", text);
    };
    return {
        translated(QT_TRANSLATE_NOOP("DocumentStatus", "Idea")),
        translated(QT_TRANSLATE_NOOP("DocumentStatus", "First draft")),
        translated(QT_TRANSLATE_NOOP("DocumentStatus", "Revised")),
        translated(QT_TRANSLATE_NOOP("DocumentStatus", "Final")),
    };
}

QStringList orderedStatuses(const core::project::Project& project)
{
    QStringList statuses = usualStatuses();
    std::set<QString> others;
    for (const auto* document : core::project::objectsOf<core::document::Document>(project)) {
        if (!document->status().isEmpty() && !statuses.contains(document->status()))
            others.insert(document->status());
    }
    return statuses + QStringList(others.begin(), others.end());
}

QColor statusColor(const theme::Theme& theme, const QString& status)
{
    if (status.isEmpty())
        return {};
    const QString folded = status.toCaseFolded();
    const QStringList usual = usualStatuses();
    for (qsizetype index = 0; index < usual.size(); ++index) {
        if (usual.at(index).toCaseFolded() == folded)
            return theme.threadColor(static_cast<int>(index));
    }
    // The remaining colours are shared by whatever the writer invents.
    uint sum = 0;
    for (const QChar character : folded)
        sum = sum * 31 + character.unicode();
    const auto usualCount = static_cast<uint>(usual.size());
    return theme.threadColor(static_cast<int>(usualCount + sum % (theme::threadColorCount - usualCount)));
}

QIcon statusIcon(const theme::Theme& theme, const QString& status)
{
    const QColor color = statusColor(theme, status);
    if (!color.isValid())
        return {};
    constexpr int size = 16;
    constexpr qreal radius = 4.5;
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap picture(QSize(size, size) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(size / 2.0, size / 2.0), radius, radius);
    return QIcon(picture);
}

} // namespace tw::desktop::manuscript
