#pragma once

#include "core/foundation/Id.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace tw::core::conlang {

struct Phoneme
{
    QString grapheme;
    double weight = 1;
    /** The symbol of the class the phoneme belongs to ("C", "V", ...). */
    QString phonemeClass;
    QStringList features;

    friend bool operator==(const Phoneme&, const Phoneme&) = default;
};

struct SoundInventory
{
    std::vector<Phoneme> phonemes;
    QString stressRule;
    QStringList tones;
    QStringList articulations;

    friend bool operator==(const SoundInventory&, const SoundInventory&) = default;
};

/** One entry of the dictionary. */
struct LexiconEntry
{
    QString word;
    QString gloss;
    QString partOfSpeech;
    QString notes;
    QString semanticField;
    QString inflectionClass;
    /** The headword this one derives from. */
    QString rootId;
    QString etymology;
    /** Meaning of the word with the opposite polarity marker. */
    QString oppositeGloss;
    QStringList senses;
    /** The parts of a compound. */
    QStringList components;
    /** The consonants of a root-and-pattern word, and the pattern they fill. */
    QString root;
    QString pattern;
    QString positionClass;
    bool hasOppositePolarity = false;

    friend bool operator==(const LexiconEntry&, const LexiconEntry&) = default;
};

struct PhonemeCategory
{
    QString symbol;
    QStringList members;

    friend bool operator==(const PhonemeCategory&, const PhonemeCategory&) = default;
};

struct SyllableTemplate
{
    QString shape;
    double weight = 1;

    friend bool operator==(const SyllableTemplate&, const SyllableTemplate&) = default;
};

struct RewriteRule
{
    QString match;
    QString replacement;

    friend bool operator==(const RewriteRule&, const RewriteRule&) = default;
};

struct Phonotactics
{
    std::vector<PhonemeCategory> categories;
    std::vector<SyllableTemplate> templates;
    std::vector<RewriteRule> rewriteRules;
    QStringList forbiddenSequences;
    /** Each group: the vowels that may stand together in a word. */
    std::vector<QStringList> harmonyGroups;
    /** "equiprobable", "slow", "medium", "fast". */
    QString dropoff;
    double monosyllableWeight = 0;

    friend bool operator==(const Phonotactics&, const Phonotactics&) = default;
};

struct OrthographyMapping
{
    QString phoneme;
    QString grapheme;

    friend bool operator==(const OrthographyMapping&, const OrthographyMapping&) = default;
};

struct OrthographyScheme
{
    QString name;
    std::vector<OrthographyMapping> mappings;

    friend bool operator==(const OrthographyScheme&, const OrthographyScheme&) = default;
};

struct Orthography
{
    std::vector<OrthographyScheme> schemes;
    QString defaultScheme;
    QString polarityMarker;

    friend bool operator==(const Orthography&, const Orthography&) = default;
};

struct SoundChangeRule
{
    QString target;
    QString replacement;
    QString environment;

    friend bool operator==(const SoundChangeRule&, const SoundChangeRule&) = default;
};

struct SoundChangeSet
{
    QString name;
    std::vector<SoundChangeRule> rules;

    friend bool operator==(const SoundChangeSet&, const SoundChangeSet&) = default;
};

struct PositionClass
{
    QString name;
    qint32 position = 0;
    QString role;
    QStringList fills;
    bool isRequired = false;

    friend bool operator==(const PositionClass&, const PositionClass&) = default;
};

struct ParadigmRule
{
    QString appliesTo;
    QString name;
    /** "prefix", "suffix", "infix", "particle", ... */
    QString type;
    QString affix;
    QString positionClass;
    bool usesOppositePolarity = false;
    QString rootWord;

    friend bool operator==(const ParadigmRule&, const ParadigmRule&) = default;
};

struct Paradigm
{
    QString feature;
    std::vector<ParadigmRule> rules;

    friend bool operator==(const Paradigm&, const Paradigm&) = default;
};

struct Pronoun
{
    QString label;
    QString form;
    QString gloss;

    friend bool operator==(const Pronoun&, const Pronoun&) = default;
};

struct NumberWord
{
    qint64 value = 0;
    QString word;

    friend bool operator==(const NumberWord&, const NumberWord&) = default;
};

struct NumberSystem
{
    qint32 base = 10;
    QString formationNote;
    std::vector<NumberWord> digits;

    friend bool operator==(const NumberSystem&, const NumberSystem&) = default;
};

struct Grammar
{
    QString typology;
    QString wordOrder;
    QString adjectivePosition;
    QString notes;
    std::vector<PositionClass> positionClasses;
    std::vector<Paradigm> paradigms;
    std::vector<Pronoun> pronouns;
    NumberSystem numberSystem;

    friend bool operator==(const Grammar&, const Grammar&) = default;
};

} // namespace tw::core::conlang
