// Reads whatever bytes the fuzzer thinks of as a journal of unsaved changes, and plans what it would bring
// back.
#include "app/persistence/journal/JournalFile.h"
#include "app/persistence/journal/JournalRestore.h"
#include "app/persistence/zip/Crc32.h"

#include <QtEndian>

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void read(const QByteArray& bytes)
{
    const auto parsed = parseJournal(bytes);
    require(parsed.isOk() == parsed.message().isEmpty());
    if (!parsed)
        return;
    const Journal& journal = parsed.value();
    require(journal.readableSize <= bytes.size() && !journal.files.contains(QString()));
    // All that counts lies before the torn end.
    const auto whole = parseJournal(bytes.first(journal.readableSize));
    require(whole.isOk() && whole.value().files == journal.files);

    for (const FileVersion& present : {FileVersion(), FileVersion("{\n    \"a\": 1\n}\n")}) {
        const JournalRestore plan = planRestore(journal, [&](const QString&) { return present; });
        for (const auto& [path, version] : plan.files)
            require(journal.files.contains(path) && version != present);
    }
}

/** The input as the payloads of sound records: checksums keep the fuzzer away from what is in them. */
QByteArray framed(QByteArrayView data)
{
    QByteArray journal = journalHeader(u"/books/tide"_s);
    while (!data.isEmpty()) {
        const qsizetype size = std::min(qsizetype{static_cast<quint8>(data[0])} + 1, data.size() - 1);
        const QByteArrayView payload = data.sliced(1, size);
        QByteArray frame(8, Qt::Uninitialized);
        qToLittleEndian(static_cast<quint32>(size), frame.data());
        qToLittleEndian(crc32(payload), frame.data() + 4);
        journal += frame + payload.toByteArray();
        data = data.sliced(1 + size);
    }
    return journal;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto bytes = QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    read(bytes);
    read(framed(bytes));
    return 0;
}
