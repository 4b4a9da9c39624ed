// Reads whatever bytes the fuzzer thinks of as each of the files of a project.
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/codec/ProjectWriter.h"

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/** What was read once is written in a form that reads as the same. */
void readObject(const QByteArray& bytes)
{
    ParseScratch scratch;
    const auto object = parseObject(bytes, u"fuzzed.json"_s, scratch);
    require(object.isOk() == object.message().isEmpty());
    if (!object)
        return;
    const QByteArray written = serializeObject(*object.value());
    const auto again = parseObject(written, u"written.json"_s, scratch);
    require(again.isOk() && serializeObject(*again.value()) == written);
}

void readProject(const ProjectFileMap& files)
{
    const auto loaded = parseProject(files);
    require(loaded.isOk() == loaded.message().isEmpty());
    if (!loaded)
        return;
    const ProjectFileMap written = serializeProject(*loaded.value().project);
    const auto again = parseProject(written);
    require(again.isOk() && serializeProject(*again.value().project) == written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto bytes = QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    readObject(bytes);
    const QString id = u"00000000-0000-4000-8000-000000000001.json"_s;
    for (const QString& path : {u"project.json"_s, u"objects/"_s + id, u"taxonomy/"_s + id}) {
        ProjectFileMap files{{u"project.json"_s, "{}"}};
        files.insert_or_assign(path, bytes);
        readProject(files);
    }
    return 0;
}
