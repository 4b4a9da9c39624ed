#include "bench/writing-benchmark/WrittenTexts.h"

#include "bench/Random.h"

namespace tw::bench {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint64 seed = 7;

const std::vector<QString>& words()
{
    static const std::vector<QString> words{
        u"tide"_s,  u"the"_s,   u"a"_s,     u"harbour"_s, u"she"_s,  u"came"_s, u"down"_s,    u"before"_s,
        u"stone"_s, u"house"_s, u"light"_s, u"and"_s,     u"with"_s, u"salt"_s, u"nothing"_s, u"they"_s,
    };
    return words;
}

QString sentence(Random& random)
{
    QString text;
    for (int count = random.count(5, 18); count > 0; --count) {
        const QString& word = random.oneOf(words());
        text += text.isEmpty() ? word.left(1).toUpper() + word.mid(1) : u' ' + word;
    }
    return text + u'.';
}

} // namespace

QString writtenText(qsizetype characters)
{
    Random random(seed);
    QString text;
    while (text.size() < characters) {
        if (random.chance(2))
            text += u"## "_s + sentence(random) + u"\n\n"_s;
        else if (random.chance(2))
            text += u"* * *\n\n"_s;
        const bool isSpeech = random.chance(40);
        text += isSpeech ? u"“"_s : QString();
        for (int sentences = isSpeech ? random.count(1, 3) : random.count(3, 8); sentences > 0; --sentences)
            text += sentence(random) + u' ';
        text += random.chance(15) ? u"*%1*"_s.arg(sentence(random)) : sentence(random);
        text += isSpeech ? u"”\n\n"_s : u"\n\n"_s;
    }
    return text.trimmed();
}

QStringList writtenWords()
{
    return QStringList(words().begin(), words().end());
}

} // namespace tw::bench
