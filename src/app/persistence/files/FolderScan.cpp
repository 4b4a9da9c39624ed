#include "app/persistence/files/FolderScan.h"

#include "app/persistence/files/PlatformFiles.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace tw::app::persistence {

bool isTextFile(QStringView name)
{
    constexpr std::array<QStringView, 5> suffixes{u"json", u"md", u"txt", u"yaml", u"yml"};
    const QStringView suffix = name.sliced(name.lastIndexOf(u'.') + 1);
    if (suffix.size() == name.size())
        return false;
    return std::ranges::any_of(
        suffixes, [&](QStringView known) { return suffix.compare(known, Qt::CaseInsensitive) == 0; });
}

FolderScan scanFolder(const QString& folder, ScannedFiles which)
{
    const auto wants = [which](QStringView name) { return which == ScannedFiles::All || isTextFile(name); };
    FolderScan scan = platform::walkFolder(folder, wants);
    if (!QFileInfo::exists(folder))
        scan.isComplete = true;
    return scan;
}

} // namespace tw::app::persistence
