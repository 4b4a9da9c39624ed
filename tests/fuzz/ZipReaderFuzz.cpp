// Gives the archive reader whatever bytes the fuzzer thinks of, and reads all that it accepts.
#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/zip/Inflate.h"
#include "app/persistence/zip/ZipReader.h"

#include <cstdlib>

using namespace tw::app::persistence;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/** Each entry lies in the archive, and what is read has the size that was announced. */
void readEntries(QByteArrayView archive)
{
    // Small enough for the fuzzer's own limit of memory.
    const ZipLimits limits{.total = 16U << 20};
    const auto reader = ZipReader::open(archive, ZipNames::CaseInsensitive, limits);
    if (!reader)
        return;
    for (const ZipEntry& entry : reader.value().entries()) {
        require(entry.packed.begin() >= archive.begin() && entry.packed.end() <= archive.end());
        const auto data = ZipReader::read(entry);
        require(!data || data.value().size() == qsizetype(entry.size));
    }
}

/** Every path that would be written stays inside the folder. */
void readProject(QByteArrayView archive)
{
    const auto contents = readBundle(archive, QStringLiteral("fuzzed.vellory"));
    if (!contents)
        return;
    for (const BundleFile& file : contents.value().files)
        require(isSafeEntryName(file.path) && !file.path.contains(u'\\'));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    readEntries(bytes);
    readProject(bytes);
    // The checksums of an archive keep the fuzzer away from the stream, so it also gets there directly.
    if (!bytes.isEmpty()) {
        const qsizetype expected = qsizetype(static_cast<quint8>(bytes[0])) * 64;
        const auto inflated = inflate(bytes.sliced(1), expected);
        require(!inflated || inflated.value().size() == expected);
    }
    return 0;
}
