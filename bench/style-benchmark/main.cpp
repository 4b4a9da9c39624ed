#include "app/style/Proofreader.h"
#include "app/style/StyleTables.h"
#include "bench/InventedLanguage.h"
#include "bench/Measurement.h"
#include "tests/app/style/StyleExpressions.h"

#include <QCommandLineParser>
#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

/** The program's share of what the seven expressions take. */
constexpr double aim = 1.0 / 6;
constexpr int wordsOfADocument = 4'000;
/** About what the rules find in a first draft. */
constexpr int wordsBetweenFindings = 30;

/** What the rules find something in, in pieces that fit between two words. */
std::vector<QString> conspicuousWords()
{
    std::vector<QString> words{u"quickly"_s,        u"slowly"_s,         u"family"_s,
                               u"the the"_s,        u"early"_s,          u"was held"_s,
                               u"were not taken"_s, u"is newly built"_s, u"had been tired"_s};
    for (const auto phrases :
         {tw::app::style::clichePhrases(), tw::app::style::fillerPhrases(), tw::app::style::wordyPhrases()}) {
        for (const tw::app::style::Phrase& phrase : phrases)
            words.push_back(phrase.text.toString());
    }
    return words;
}

/** Documents of together this many words: invented prose among common English words. */
std::vector<QString> makeDocuments(int words)
{
    tw::bench::Random random(1);
    tw::bench::InventedLanguage language(random);
    const std::vector<QString> conspicuous = conspicuousWords();
    const std::vector<QString> common{u"the"_s, u"and"_s, u"of"_s, u"to"_s,
                                      u"was"_s, u"in"_s,  u"a"_s,  u"is"_s};
    std::vector<QString> documents;
    for (int done = 0; done < words; done += wordsOfADocument) {
        QString text;
        for (const QString& word : language.prose(wordsOfADocument).split(u' ')) {
            text += random.chance(35) ? random.oneOf(common) : word;
            text += u' ';
            if (random.below(wordsBetweenFindings) == 0)
                text += random.oneOf(conspicuous) + u' ';
        }
        documents.push_back(text);
    }
    return documents;
}

template <class Reader>
std::size_t countFindings(const std::vector<QString>& documents, const Reader& reader)
{
    std::size_t found = 0;
    for (const QString& document : documents)
        found += reader.findings(document).size();
    return found;
}

} // namespace

/** Prints how proofreading compares with the seven expressions; 1 when the aim is missed. */
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Measures the rules of style against their literal regular expressions, both on one thread."_s);
    parser.addHelpOption();
    const QCommandLineOption repetitions(
        u"repetitions"_s, u"Runs, of which the best counts."_s, u"count"_s, u"5"_s);
    const QCommandLineOption words(u"words"_s, u"Words of all texts."_s, u"count"_s, u"1200000"_s);
    parser.addOptions({repetitions, words});
    parser.process(application);
    if (parser.value(repetitions).toInt() < 1 || parser.value(words).toInt() < 1)
        parser.showHelp(2);

    const std::vector<QString> documents = makeDocuments(parser.value(words).toInt());
    const tw::test::StyleExpressions expressions;
    const tw::app::style::Proofreader proofreader;
    std::size_t expected = 0;
    std::size_t found = 0;
    const auto times = tw::bench::compare(
        {parser.value(repetitions).toInt(), tw::bench::Counted::Best},
        {[&] { expected = countFindings(documents, expressions); }},
        {[&] { found = countFindings(documents, proofreader); }});
    if (found != expected)
        qFatal("the expressions found %zu, the program %zu", expected, found);

    tw::bench::ResultTable table;
    table.addTitle(u"%1 documents, %2 findings"_s.arg(documents.size()).arg(found));
    table.addTimes(u"proofread everything"_s, u"the seven regular expressions"_s, times, aim);
    return table.areAimsReached() ? 0 : 1;
}
