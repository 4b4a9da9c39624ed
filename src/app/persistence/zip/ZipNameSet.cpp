#include "app/persistence/zip/ZipNameSet.h"

#include <algorithm>

namespace tw::app::persistence {

namespace {

bool startsWithDrive(QStringView name)
{
    if (name.size() < 2 || name.at(1) != u':')
        return false;
    const char16_t letter = name.at(0).toLower().unicode();
    return letter >= u'a' && letter <= u'z';
}

bool isControlCharacter(QChar character)
{
    return character.category() == QChar::Other_Control;
}

} // namespace

ZipNameSet::ZipNameSet(ZipNames names)
    : m_names(names)
{}

bool ZipNameSet::add(const QString& name)
{
    QString key = name;
    key.replace(u'\\', u'/');
    if (m_names == ZipNames::CaseInsensitive)
        key = key.toCaseFolded().normalized(QString::NormalizationForm_C);
    const bool isFolder = key.endsWith(u'/');
    if (isFolder)
        key.chop(1);

    // FNV-1a, so that one pass gives the hash of every folder on the way.
    PathHash hash = 0xCBF29CE484222325;
    for (const QChar character : key) {
        if (character == u'/') {
            if (m_files.contains(hash))
                return false;
            m_folders.insert(hash);
        }
        hash = (hash ^ character.unicode()) * 0x100000001B3;
    }
    if (m_files.contains(hash))
        return false;
    QSet<PathHash>& own = isFolder ? m_folderEntries : m_files;
    if ((isFolder ? m_folderEntries : m_folders).contains(hash))
        return false;
    own.insert(hash);
    if (isFolder)
        m_folders.insert(hash);
    return true;
}

bool isSafeEntryName(QStringView name)
{
    if (startsWithDrive(name) || std::ranges::any_of(name, isControlCharacter))
        return false;
    const QString path = name.toString().replace(u'\\', u'/');
    const QList<QStringView> components = QStringView(path).split(u'/');
    return std::ranges::none_of(
        components, [](QStringView component) { return component.isEmpty() || component.startsWith(u'.'); });
}

} // namespace tw::app::persistence
