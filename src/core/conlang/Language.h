#pragma once

#include "core/conlang/LanguageParts.h"
#include "core/content/ContentObject.h"

#include <QJsonObject>

#include <vector>

namespace tw::core::conlang {

/** What the general edit of a language changes: name, sounds, speakers and dictionary. */
struct LanguageDetails
{
    QString name;
    QStringList consonants;
    QStringList vowels;
    /** Syllable shapes such as "CVC". */
    QStringList patterns;
    qint32 minSyllables = 1;
    qint32 maxSyllables = 3;
    QString grammarNotes;
    /** Entities who speak it. */
    std::vector<ContentId> speakerIds;
    std::vector<LexiconEntry> lexicon;
    SoundInventory inventory;

    friend bool operator==(const LanguageDetails&, const LanguageDetails&) = default;
};

/** A constructed language. */
class Language final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Language;

    Language(ContentId id, QString name);
    ~Language() override;

    [[nodiscard]] const LanguageDetails& details() const { return m_details; }
    void setDetails(LanguageDetails details) { m_details = std::move(details); }

    [[nodiscard]] const Phonotactics& phonotactics() const { return m_phonotactics; }
    void setPhonotactics(Phonotactics phonotactics) { m_phonotactics = std::move(phonotactics); }

    [[nodiscard]] const Orthography& orthography() const { return m_orthography; }
    void setOrthography(Orthography orthography) { m_orthography = std::move(orthography); }

    [[nodiscard]] const std::vector<SoundChangeSet>& soundChanges() const { return m_soundChanges; }
    void setSoundChanges(std::vector<SoundChangeSet> changes) { m_soundChanges = std::move(changes); }

    [[nodiscard]] const Grammar& grammar() const { return m_grammar; }
    void setGrammar(Grammar grammar) { m_grammar = std::move(grammar); }

    /** The constructed script (glyphs, strokes, guides, variants), kept verbatim. */
    [[nodiscard]] const QJsonObject& writingSystem() const { return m_writingSystem; }
    void setWritingSystem(QJsonObject system) { m_writingSystem = std::move(system); }

    friend bool operator==(const Language& left, const Language& right);

private:
    LanguageDetails m_details;
    Phonotactics m_phonotactics;
    Orthography m_orthography;
    std::vector<SoundChangeSet> m_soundChanges;
    Grammar m_grammar;
    QJsonObject m_writingSystem;
};

} // namespace tw::core::conlang
