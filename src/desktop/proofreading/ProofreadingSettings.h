#pragma once

#include "core/foundation/Id.h"
#include "desktop/proofreading/ProseCheck.h"

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

/** The languages of one document; empty when it has none of its own. */
[[nodiscard]] QStringList documentLanguages(const QSettings& settings, const core::ContentId& document);
void storeDocumentLanguages(
    QSettings& settings, const core::ContentId& document, const QStringList& languages);

/** Findings of one document that the writer does not want to hear of again, by kind and text. */
class IgnoredFindings
{
public:
    [[nodiscard]] static IgnoredFindings of(const QSettings& settings, const core::ContentId& document);

    [[nodiscard]] bool contains(ProblemKind kind, QStringView text) const;
    [[nodiscard]] bool isEmpty() const { return m_keys.isEmpty(); }
    /** Takes away the findings that are ignored. */
    void removeFrom(std::vector<ProseFinding>& findings, QStringView paragraph) const;

    /** Adds one and keeps it in the settings; of very many, the oldest are forgotten. */
    static void add(QSettings& settings, const core::ContentId& document, ProblemKind kind, QStringView text);
    static void clear(QSettings& settings, const core::ContentId& document);

private:
    QSet<QString> m_keys;
};

} // namespace tw::desktop::proofreading
