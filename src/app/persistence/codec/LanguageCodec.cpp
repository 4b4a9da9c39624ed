#include "app/persistence/codec/KindCodec.h"

#include "core/conlang/Language.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::conlang::Grammar;
using core::conlang::Language;
using core::conlang::LanguageDetails;
using core::conlang::LexiconEntry;
using core::conlang::NumberSystem;
using core::conlang::NumberWord;
using core::conlang::Orthography;
using core::conlang::OrthographyMapping;
using core::conlang::OrthographyScheme;
using core::conlang::Paradigm;
using core::conlang::ParadigmRule;
using core::conlang::Phoneme;
using core::conlang::PhonemeCategory;
using core::conlang::Phonotactics;
using core::conlang::PositionClass;
using core::conlang::Pronoun;
using core::conlang::RewriteRule;
using core::conlang::SoundChangeRule;
using core::conlang::SoundChangeSet;
using core::conlang::SoundInventory;
using core::conlang::SyllableTemplate;

template <>
struct RecordOf<Phoneme>
{
    static constexpr auto entries = std::tuple(
        always<Data<&Phoneme::grapheme>>("grapheme"_L1), always<Data<&Phoneme::weight>>("weight"_L1),
        ifSet<Data<&Phoneme::phonemeClass>>("class"_L1), ifSet<Data<&Phoneme::features>>("features"_L1));
};

template <>
struct RecordOf<SoundInventory>
{
    static constexpr auto entries = std::tuple(
        ifSet<Data<&SoundInventory::phonemes>>("phonemes"_L1),
        ifSet<Data<&SoundInventory::stressRule>>("stressRule"_L1),
        ifSet<Data<&SoundInventory::tones>>("tones"_L1),
        ifSet<Data<&SoundInventory::articulations>>("articulations"_L1));
};

template <>
struct RecordOf<LexiconEntry>
{
    static constexpr auto entries = std::tuple(
        always<Data<&LexiconEntry::word>>("word"_L1), always<Data<&LexiconEntry::gloss>>("gloss"_L1),
        ifSet<Data<&LexiconEntry::partOfSpeech>>("partOfSpeech"_L1),
        ifSet<Data<&LexiconEntry::notes>>("notes"_L1),
        ifSet<Data<&LexiconEntry::semanticField>>("semanticField"_L1),
        ifSet<Data<&LexiconEntry::inflectionClass>>("inflectionClass"_L1),
        ifSet<Data<&LexiconEntry::rootId>>("rootId"_L1),
        ifSet<Data<&LexiconEntry::etymology>>("etymology"_L1),
        ifSet<Data<&LexiconEntry::oppositeGloss>>("oppositeGloss"_L1),
        ifSet<Data<&LexiconEntry::senses>>("senses"_L1),
        ifSet<Data<&LexiconEntry::components>>("components"_L1), ifSet<Data<&LexiconEntry::root>>("root"_L1),
        ifSet<Data<&LexiconEntry::pattern>>("pattern"_L1),
        ifSet<Data<&LexiconEntry::positionClass>>("positionClass"_L1),
        ifSet<Data<&LexiconEntry::hasOppositePolarity>>("oppositePolarity"_L1));
};

template <>
struct RecordOf<PhonemeCategory>
{
    static constexpr auto entries = std::tuple(
        always<Data<&PhonemeCategory::symbol>>("symbol"_L1),
        always<Data<&PhonemeCategory::members>>("members"_L1));
};

template <>
struct RecordOf<SyllableTemplate>
{
    static constexpr auto entries = std::tuple(
        always<Data<&SyllableTemplate::shape>>("shape"_L1),
        always<Data<&SyllableTemplate::weight>>("weight"_L1));
};

template <>
struct RecordOf<RewriteRule>
{
    static constexpr auto entries = std::tuple(
        always<Data<&RewriteRule::match>>("match"_L1),
        always<Data<&RewriteRule::replacement>>("replacement"_L1));
};

template <>
struct RecordOf<Phonotactics>
{
    static constexpr auto entries = std::tuple(
        ifSet<Data<&Phonotactics::categories>>("categories"_L1),
        ifSet<Data<&Phonotactics::templates>>("templates"_L1),
        ifSet<Data<&Phonotactics::rewriteRules>>("rewriteRules"_L1),
        ifSet<Data<&Phonotactics::forbiddenSequences>>("forbiddenSequences"_L1),
        ifSet<Data<&Phonotactics::harmonyGroups>>("harmonyGroups"_L1),
        ifSet<Data<&Phonotactics::dropoff>>("dropoff"_L1),
        ifSet<Data<&Phonotactics::monosyllableWeight>>("monosyllableWeight"_L1));
};

template <>
struct RecordOf<OrthographyMapping>
{
    static constexpr auto entries = std::tuple(
        always<Data<&OrthographyMapping::phoneme>>("phoneme"_L1),
        always<Data<&OrthographyMapping::grapheme>>("grapheme"_L1));
};

template <>
struct RecordOf<OrthographyScheme>
{
    static constexpr auto entries = std::tuple(
        always<Data<&OrthographyScheme::name>>("name"_L1),
        always<Data<&OrthographyScheme::mappings>>("mappings"_L1));
};

template <>
struct RecordOf<Orthography>
{
    static constexpr auto entries = std::tuple(
        ifSet<Data<&Orthography::schemes>>("schemes"_L1),
        ifSet<Data<&Orthography::defaultScheme>>("defaultScheme"_L1),
        ifSet<Data<&Orthography::polarityMarker>>("polarityMarker"_L1));
};

template <>
struct RecordOf<SoundChangeRule>
{
    static constexpr auto entries = std::tuple(
        always<Data<&SoundChangeRule::target>>("target"_L1),
        always<Data<&SoundChangeRule::replacement>>("replacement"_L1),
        always<Data<&SoundChangeRule::environment>>("environment"_L1));
};

template <>
struct RecordOf<SoundChangeSet>
{
    static constexpr auto entries = std::tuple(
        always<Data<&SoundChangeSet::name>>("name"_L1), always<Data<&SoundChangeSet::rules>>("rules"_L1));
};

template <>
struct RecordOf<PositionClass>
{
    static constexpr auto entries = std::tuple(
        always<Data<&PositionClass::name>>("name"_L1), always<Data<&PositionClass::position>>("position"_L1),
        ifSet<Data<&PositionClass::role>>("role"_L1), ifSet<Data<&PositionClass::fills>>("fills"_L1),
        always<Data<&PositionClass::isRequired>>("required"_L1));
};

template <>
struct RecordOf<ParadigmRule>
{
    static constexpr auto entries = std::tuple(
        ifSet<Data<&ParadigmRule::appliesTo>>("appliesTo"_L1), always<Data<&ParadigmRule::name>>("name"_L1),
        always<Data<&ParadigmRule::type>>("type"_L1), always<Data<&ParadigmRule::affix>>("affix"_L1),
        ifSet<Data<&ParadigmRule::positionClass>>("positionClass"_L1),
        ifSet<Data<&ParadigmRule::usesOppositePolarity>>("usesOppositePolarity"_L1),
        ifSet<Data<&ParadigmRule::rootWord>>("rootWord"_L1));
};

template <>
struct RecordOf<Paradigm>
{
    static constexpr auto entries = std::tuple(
        always<Data<&Paradigm::feature>>("feature"_L1), always<Data<&Paradigm::rules>>("rules"_L1));
};

template <>
struct RecordOf<Pronoun>
{
    static constexpr auto entries = std::tuple(
        always<Data<&Pronoun::label>>("label"_L1), always<Data<&Pronoun::form>>("form"_L1),
        always<Data<&Pronoun::gloss>>("gloss"_L1));
};

template <>
struct RecordOf<NumberWord>
{
    static constexpr auto entries =
        std::tuple(always<Data<&NumberWord::value>>("value"_L1), always<Data<&NumberWord::word>>("word"_L1));
};

template <>
struct RecordOf<NumberSystem>
{
    static constexpr auto entries = std::tuple(
        always<Data<&NumberSystem::base>>("base"_L1),
        ifSet<Data<&NumberSystem::formationNote>>("formationNote"_L1),
        ifSet<Data<&NumberSystem::digits>>("digits"_L1));
};

template <>
struct RecordOf<Grammar>
{
    static constexpr auto entries = std::tuple(
        ifSet<Data<&Grammar::typology>>("typology"_L1), ifSet<Data<&Grammar::wordOrder>>("wordOrder"_L1),
        ifSet<Data<&Grammar::adjectivePosition>>("adjectivePosition"_L1),
        ifSet<Data<&Grammar::notes>>("notes"_L1),
        ifSet<Data<&Grammar::positionClasses>>("positionClasses"_L1),
        ifSet<Data<&Grammar::paradigms>>("paradigms"_L1), ifSet<Data<&Grammar::pronouns>>("pronouns"_L1),
        ifSet<Data<&Grammar::numberSystem>>("numberSystem"_L1));
};

/** Sounds and shapes, which a hand also writes as one text with blanks between them. */
template <auto Member>
struct SoundList : Data<Member>
{
    static void edit(LanguageDetails& details, auto change)
    {
        QStringList& sounds = details.*Member;
        change(sounds);
        if (sounds.size() == 1)
            sounds = sounds.first().split(u' ', Qt::SkipEmptyParts);
    }
};

template <>
struct RecordOf<LanguageDetails>
{
    static constexpr auto entries = std::tuple(
        always<Data<&LanguageDetails::name>>("name"_L1),
        ifSet<SoundList<&LanguageDetails::consonants>>("consonants"_L1),
        ifSet<SoundList<&LanguageDetails::vowels>>("vowels"_L1),
        ifSet<SoundList<&LanguageDetails::patterns>>("patterns"_L1),
        always<Data<&LanguageDetails::minSyllables>>("minSyllables"_L1),
        always<Data<&LanguageDetails::maxSyllables>>("maxSyllables"_L1),
        ifSet<Data<&LanguageDetails::grammarNotes>>("grammarNotes"_L1),
        ifSet<Data<&LanguageDetails::speakerIds>>("speakerIds"_L1),
        ifSet<Data<&LanguageDetails::lexicon>>("lexicon"_L1),
        ifSet<Data<&LanguageDetails::inventory>>("inventory"_L1));
};

template <>
struct RecordOf<Language>
{
    static constexpr auto entries = std::tuple(
        ifSet<Property<&Language::phonotactics, &Language::setPhonotactics>>("phonotactics"_L1),
        ifSet<Property<&Language::orthography, &Language::setOrthography>>("orthography"_L1),
        ifSet<Property<&Language::soundChanges, &Language::setSoundChanges>>("soundChanges"_L1),
        ifSet<Property<&Language::grammar, &Language::setGrammar>>("grammar"_L1),
        ifSet<Property<&Language::writingSystem, &Language::setWritingSystem>>("writingSystem"_L1));
};

KindCodec languageCodec()
{
    return {
        [](JsonWriter& writer, const core::content::ContentObject& object) {
            const auto& language = static_cast<const Language&>(object);
            writeEntries(writer, language.details());
            writeEntries(writer, language);
        },
        [](const core::ContentId& id, const JsonNode& json,
           TextPool& texts) -> std::unique_ptr<core::content::ContentObject> {
            LanguageDetails details;
            readEntries(json, details, texts);
            auto language = std::make_unique<Language>(id, QString());
            language->setDetails(std::move(details));
            readEntries(json, *language, texts);
            return language;
        }};
}

} // namespace tw::app::persistence
