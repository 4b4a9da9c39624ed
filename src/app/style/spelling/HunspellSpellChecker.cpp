#include "app/style/spelling/HunspellSpellChecker.h"

#include "app/style/spelling/DictionaryFiles.h"
#include "app/style/spelling/SpellingWords.h"

#include <QFile>
#include <QHash>
#include <QStringDecoder>
#include <QStringEncoder>

#include <hunspell.hxx>

#include <algorithm>
#include <mutex>
#include <optional>

namespace tw::app::style::spelling {

namespace {

/** So many words are remembered; a novel has some 20,000 different ones. */
constexpr qsizetype mostVerdicts = 100'000;

bool hasOnlyScripts(const QString& word, const QSet<QChar::Script>& scripts)
{
    for (qsizetype index = 0; index < word.size(); ++index) {
        const bool isPair = word[index].isHighSurrogate() && index + 1 < word.size();
        const char32_t character =
            isPair ? QChar::surrogateToUcs4(word[index], word[index + 1]) : char32_t(word[index].unicode());
        if (QChar::isLetter(character) && !scripts.contains(QChar::script(character)))
            return false;
        index += isPair ? 1 : 0;
    }
    return true;
}

} // namespace

/** The library and what was asked of it, behind one lock. */
class HunspellSpellChecker::Library
{
public:
    Library(const Dictionary& dictionary, DictionaryFacts facts)
        : m_facts(std::move(facts))
        , m_encoder(m_facts.encoding.constData())
        , m_decoder(m_facts.encoding.constData())
        , m_hunspell(
              QFile::encodeName(dictionary.affixPath).constData(),
              QFile::encodeName(dictionary.wordsPath).constData())
    {}

    bool canJudge(const QString& word)
    {
        const std::scoped_lock lock(m_mutex);
        return hasOnlyScripts(word, m_facts.scripts) && encoded(word).has_value();
    }

    bool isCorrect(const QString& word)
    {
        const std::scoped_lock lock(m_mutex);
        if (const auto known = m_verdicts.constFind(word); known != m_verdicts.constEnd())
            return known.value();
        if (m_verdicts.size() >= mostVerdicts)
            m_verdicts.clear();
        const std::optional<std::string> bytes = encoded(word);
        const bool isRight = bytes && m_hunspell.spell(*bytes);
        m_verdicts.insert(word, isRight);
        return isRight;
    }

    QStringList suggestions(const QString& word)
    {
        const std::scoped_lock lock(m_mutex);
        QStringList words;
        const std::optional<std::string> bytes = encoded(word);
        if (!bytes)
            return words;
        for (const std::string& suggestion : m_hunspell.suggest(*bytes)) {
            m_decoder.resetState();
            words.append(m_decoder.decode(QByteArrayView(suggestion)));
        }
        return words;
    }

private:
    /** None when the encoding has no place for a character of the word. */
    std::optional<std::string> encoded(const QString& word)
    {
        m_encoder.resetState();
        const QByteArray bytes = m_encoder.encode(word);
        m_decoder.resetState();
        // Some encoders put a question mark and report nothing.
        if (m_encoder.hasError() || QString(m_decoder.decode(bytes)) != word)
            return std::nullopt;
        return bytes.toStdString();
    }

    std::mutex m_mutex;
    DictionaryFacts m_facts;
    QStringEncoder m_encoder;
    QStringDecoder m_decoder;
    Hunspell m_hunspell;
    QHash<QString, bool> m_verdicts;
};

core::Result<std::shared_ptr<const HunspellSpellChecker>> HunspellSpellChecker::open(
    const Dictionary& dictionary)
{
    core::Result<DictionaryFacts> facts = examineDictionary(dictionary);
    if (!facts)
        return core::Failure{facts.message()};
    return std::shared_ptr<const HunspellSpellChecker>(
        new HunspellSpellChecker(std::make_unique<Library>(dictionary, std::move(facts).value())));
}

HunspellSpellChecker::HunspellSpellChecker(std::unique_ptr<Library> library)
    : m_library(std::move(library))
{}

HunspellSpellChecker::~HunspellSpellChecker() = default;

bool HunspellSpellChecker::canJudge(const QString& word) const
{
    return word.size() <= longestSpellingWord && m_library->canJudge(word);
}

bool HunspellSpellChecker::isCorrect(const QString& word) const
{
    return word.size() <= longestSpellingWord && m_library->isCorrect(word);
}

QStringList HunspellSpellChecker::suggestions(const QString& word) const
{
    return word.size() <= longestSpellingWord ? m_library->suggestions(word) : QStringList();
}

} // namespace tw::app::style::spelling
