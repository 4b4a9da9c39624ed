#include "desktop/manuscript/ReadingPlaces.h"

#include <QCryptographicHash>
#include <QHash>
#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView placesKey = "editor/places"_L1;
constexpr qsizetype hashLength = 12;

} // namespace

int ReadingPlace::positionIn(int presentLength) const
{
    if (presentLength == length || length <= 0)
        return std::clamp(position, 0, std::max(0, presentLength - 1));
    const double share = static_cast<double>(position) / length;
    return std::clamp(static_cast<int>(share * presentLength), 0, std::max(0, presentLength - 1));
}

ReadingPlaces::ReadingPlaces(QSettings& settings, const QString& projectPath)
    : m_settings(settings)
    , m_project(QString::fromLatin1(
          QCryptographicHash::hash(projectPath.toUtf8(), QCryptographicHash::Sha1).toHex().first(hashLength)))
{}

QString ReadingPlaces::keyOf(const core::ContentId& documentId) const
{
    return m_project + u'/' + documentId.toString() + u' ';
}

std::optional<ReadingPlace> ReadingPlaces::find(const core::ContentId& documentId) const
{
    const auto found = latestOf({documentId});
    return found ? std::optional(found->second) : std::nullopt;
}

std::optional<std::pair<core::ContentId, ReadingPlace>> ReadingPlaces::latestOf(
    const std::vector<core::ContentId>& documentIds) const
{
    QHash<QString, core::ContentId> documents;
    for (const core::ContentId& id : documentIds)
        documents.insert(keyOf(id), id);
    for (const QString& line : m_settings.value(placesKey).toStringList()) {
        // "project/document position length top"
        const qsizetype keyLength = line.indexOf(u' ') + 1;
        const auto document = documents.constFind(line.first(keyLength));
        const QList<QStringView> numbers = QStringView(line).sliced(keyLength).split(u' ');
        if (document != documents.cend() && numbers.size() == 3)
            return std::pair(
                *document, ReadingPlace{numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt()});
    }
    return {};
}

void ReadingPlaces::remember(const core::ContentId& documentId, const ReadingPlace& place)
{
    const QString key = keyOf(documentId);
    QStringList lines = m_settings.value(placesKey).toStringList();
    lines.removeIf([&key](const QString& line) { return line.startsWith(key); });
    lines.prepend(key + u"%1 %2 %3"_s.arg(place.position).arg(place.length).arg(place.top));
    m_settings.setValue(placesKey, lines.first(std::min(lines.size(), mostPlaces)));
}

} // namespace tw::desktop::manuscript
