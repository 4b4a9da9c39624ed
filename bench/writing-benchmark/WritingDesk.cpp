#include "bench/writing-benchmark/WritingDesk.h"

#include "bench/writing-benchmark/WrittenTexts.h"

#include <QDir>
#include <QFile>

namespace tw::bench {

using namespace Qt::Literals::StringLiterals;

namespace {

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qUtf8Printable(path));
}

} // namespace

WritingDesk::WritingDesk()
    : id(addDocument(u"Chapter"_s, {}, 0))
{}

void WritingDesk::setText(const QString& text)
{
    document(id).setBody({text, {}});
}

std::unique_ptr<desktop::proofreading::ProofreadingService> WritingDesk::makeProofreadingService()
{
    using namespace desktop::proofreading;
    const QString dictionaries = folder.filePath(u"dictionaries"_s);
    QDir().mkpath(dictionaries);
    const QStringList known = writtenWords().sliced(1);
    write(dictionaries + u"/en_US.aff"_s, "SET UTF-8\n");
    write(
        dictionaries + u"/en_US.dic"_s,
        QByteArray::number(known.size()) + '\n' + known.join(u'\n').toUtf8() + '\n');
    ProofreadingSettings chosen;
    chosen.languages = {u"en_US"_s};
    chosen.marksStyle = true;
    storeProofreadingSettings(settings, chosen);
    auto service = std::make_unique<ProofreadingService>(
        context, SpellingPlaces{folder.filePath(u"words.txt"_s), {dictionaries}}, nullptr);
    // Asking is what has the dictionary read.
    [[maybe_unused]] const auto check = service->check(id, CheckScope::WhileTyping);
    service->finishReading();
    return service;
}

} // namespace tw::bench
