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

QString textOf(bool isOn)
{
    return isOn ? u"true"_s : u"false"_s;
}

bool isOn(const QSettings& settings, QLatin1StringView key, bool otherwise)
{
    return settings.value(key, textOf(otherwise)).toString() == "true"_L1;
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

} // namespace tw::desktop::proofreading
