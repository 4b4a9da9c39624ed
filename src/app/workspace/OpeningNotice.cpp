#include "app/workspace/OpeningNotice.h"

#include <QCoreApplication>
#include <QDir>

namespace tw::app::workspace {

using persistence::BundleOpening;

OpeningNotice openingNotice(BundleOpening opening, const QString& bundlePath, const QString& backupPath)
{
    const auto translated = [](const char* text) { return QCoreApplication::translate("Workspace", text); };
    const QString path = QDir::toNativeSeparators(bundlePath);
    const QString backup = QDir::toNativeSeparators(backupPath);
    switch (opening) {
    case BundleOpening::Unpacked:
    case BundleOpening::Intact:
        break;
    case BundleOpening::Restored:
        return {
            {},
            translated(
                QT_TRANSLATE_NOOP("Workspace", "Restored unsaved changes from your last session into %1."))
                .arg(path)};
    case BundleOpening::Replaced:
        return {
            translated(QT_TRANSLATE_NOOP("Workspace", "Project File Changed")),
            translated(
                QT_TRANSLATE_NOOP(
                    "Workspace",
                    "%1 was changed outside Vellory, so the file's version was loaded. Your previous local "
                    "working state was backed up to:\n%2"))
                .arg(path, backup)};
    case BundleOpening::Disowned:
        return {
            {},
            translated(
                QT_TRANSLATE_NOOP(
                    "Workspace",
                    "What %1 holds was loaded. Other changes that were kept for it were backed up to %2."))
                .arg(path, backup)};
    case BundleOpening::SetAside:
        return {
            translated(QT_TRANSLATE_NOOP("Workspace", "Unsaved Changes Kept Aside")),
            translated(
                QT_TRANSLATE_NOOP(
                    "Workspace",
                    "Your last session left changes that are not in %1 and could not be read, so the file's "
                    "version was loaded. The changes were backed up to:\n%2"))
                .arg(path, backup)};
    }
    return {};
}

} // namespace tw::app::workspace
