#include "desktop/proofreading/ProofreadingSettings.h"

#include <QSettings>

namespace tw::desktop::proofreading {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView spellingKey = "editor/spellCheck"_L1;
constexpr QLatin1StringView styleKey = "editor/proofread"_L1;
constexpr QLatin1StringView capitalsKey = "editor/spellCapitals"_L1;
constexpr QLatin1StringView rulesKey = "editor/disabledRules"_L1;
constexpr QLatin1StringView languageKey = "editor/language"_L1;
constexpr qsizetype mostIgnored = 1000;
/** Long sentences are told by how they begin. */
constexpr qsizetype longestKey = 120;

QString textOf(bool isOn)
{
    return isOn ? u"true"_s : u"false"_s;
}

bool isOn(const QSettings& settings, QLatin1StringView key, bool otherwise)
{
    return settings.value(key, textOf(otherwise)).toString() == "true"_L1;
}

QString languagesKey(const core::ContentId& document)
{
    return u"proofreading/languages/"_s + document.toString();
}

QString ignoredKey(const core::ContentId& document)
{
    return u"proofreading/ignored/"_s + document.toString();
}

QString keyOf(ProblemKind kind, QStringView text)
{
    return idOf(kind) + u' ' + text.first(std::min(text.size(), longestKey)).toString();
}

void storeList(QSettings& settings, const QString& key, const QStringList& list)
{
    if (list.isEmpty())
        settings.remove(key);
    else
        settings.setValue(key, list);
}

} // namespace

ProofreadingSettings proofreadingSettingsFrom(const QSettings& settings)
{
    const QStringList disabled = settings.value(rulesKey).toStringList();
    return {
        isOn(settings, spellingKey, true), isOn(settings, styleKey, false),
        !isOn(settings, capitalsKey, false), QSet<QString>(disabled.begin(), disabled.end()),
        settings.value(languageKey).toStringList()};
}

void storeProofreadingSettings(QSettings& settings, const ProofreadingSettings& proofreading)
{
    settings.setValue(spellingKey, textOf(proofreading.marksSpelling));
    settings.setValue(styleKey, textOf(proofreading.marksStyle));
    settings.setValue(capitalsKey, textOf(!proofreading.skipsAllCapitals));
    QStringList disabled = proofreading.disabledRules.values();
    disabled.sort();
    storeList(settings, rulesKey, disabled);
    storeList(settings, languageKey, proofreading.languages);
}

QStringList documentLanguages(const QSettings& settings, const core::ContentId& document)
{
    return settings.value(languagesKey(document)).toStringList();
}

void storeDocumentLanguages(
    QSettings& settings, const core::ContentId& document, const QStringList& languages)
{
    storeList(settings, languagesKey(document), languages);
}

IgnoredFindings IgnoredFindings::of(const QSettings& settings, const core::ContentId& document)
{
    const QStringList keys = settings.value(ignoredKey(document)).toStringList();
    IgnoredFindings ignored;
    ignored.m_keys = QSet<QString>(keys.begin(), keys.end());
    return ignored;
}

bool IgnoredFindings::contains(ProblemKind kind, QStringView text) const
{
    return !m_keys.isEmpty() && m_keys.contains(keyOf(kind, text));
}

void IgnoredFindings::removeFrom(std::vector<ProseFinding>& findings, QStringView paragraph) const
{
    if (m_keys.isEmpty())
        return;
    std::erase_if(findings, [&](const ProseFinding& finding) {
        return contains(finding.kind, paragraph.sliced(finding.start, finding.length));
    });
}

void IgnoredFindings::add(
    QSettings& settings, const core::ContentId& document, ProblemKind kind, QStringView text)
{
    QStringList keys = settings.value(ignoredKey(document)).toStringList();
    const QString key = keyOf(kind, text);
    keys.removeAll(key);
    keys.append(key);
    storeList(settings, ignoredKey(document), keys.mid(std::max<qsizetype>(0, keys.size() - mostIgnored)));
}

void IgnoredFindings::clear(QSettings& settings, const core::ContentId& document)
{
    settings.remove(ignoredKey(document));
}

} // namespace tw::desktop::proofreading
