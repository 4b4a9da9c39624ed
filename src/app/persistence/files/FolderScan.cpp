#include "app/persistence/files/FolderScan.h"

#include "app/persistence/files/PlatformFiles.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace tw::app::persistence {

bool isTextFile(QStringView name)
{
    // Nearly every file of a project.
    if (name.endsWith(u".json"))
        return true;
    constexpr std::array<QStringView, 5> suffixes{u"json", u"md", u"txt", u"yaml", u"yml"};
    const QStringView suffix = name.sliced(name.lastIndexOf(u'.') + 1);
    if (suffix.size() == name.size())
        return false;
    return std::ranges::any_of(
        suffixes, [&](QStringView known) { return suffix.compare(known, Qt::CaseInsensitive) == 0; });
}

namespace {

FolderScan walk(const QString& folder, ScannedFiles which, platform::Stamps stamps, const FolderScan& earlier)
{
    const auto wants = [which](QStringView name) { return which == ScannedFiles::All || isTextFile(name); };
    FolderScan scan = platform::walkFolder(folder, wants, stamps, earlier);
    if (!QFileInfo::exists(folder))
        scan.unreadableFolders.clear();
    return scan;
}

} // namespace

FolderScan scanFolder(const QString& folder, ScannedFiles which, const FolderScan& earlier)
{
    return walk(folder, which, platform::Stamps::Taken, earlier);
}

FolderScan listFolder(const QString& folder, ScannedFiles which)
{
    return walk(folder, which, platform::Stamps::OfLinks, FolderScan());
}

} // namespace tw::app::persistence
