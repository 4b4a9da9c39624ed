#pragma once

#include <QSet>
#include <QStringList>

class QSettings;

namespace tw::desktop::proofreading {

/** What the user wants of proofreading, in every project. */
struct ProofreadingSettings
{
    /** Marks in the text while it is written; the list of problems has both in any case. */
    bool marksSpelling = true;
    bool marksStyle = false;
    /** Words in capitals are no mistakes. */
    bool skipsAllCapitals = true;
    /** Ids of rules that are switched off. */
    QSet<QString> disabledRules;
    /** Of dictionaries, as "en_US"; empty for that of the system. */
    QStringList languages;

    friend bool operator==(const ProofreadingSettings&, const ProofreadingSettings&) = default;
};

/** "editor/spellCheck", "editor/proofread", "editor/spellCapitals", "editor/disabledRules",
 * "editor/language". */
[[nodiscard]] ProofreadingSettings proofreadingSettingsFrom(const QSettings& settings);
void storeProofreadingSettings(QSettings& settings, const ProofreadingSettings& proofreading);

} // namespace tw::desktop::proofreading
