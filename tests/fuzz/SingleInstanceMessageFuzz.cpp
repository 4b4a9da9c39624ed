// Hands the reader of messages whatever bytes the fuzzer thinks of, in pieces of whatever size.
#include "desktop/shell/SingleInstanceMessage.h"

#include <algorithm>
#include <cstdlib>

using namespace tw::desktop::shell;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

SingleInstanceMessage readInPieces(QByteArrayView bytes, qsizetype piece)
{
    SingleInstanceMessage message;
    for (qsizetype begin = 0; begin < bytes.size(); begin += piece)
        message.append(bytes.sliced(begin, std::min(piece, bytes.size() - begin)));
    return message;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using State = SingleInstanceMessage::State;
    if (size == 0)
        return 0;
    // The first byte says how the rest arrives.
    const QByteArrayView bytes(data + 1, static_cast<qsizetype>(size) - 1);
    const SingleInstanceMessage whole = readInPieces(bytes, std::max<qsizetype>(bytes.size(), 1));
    const SingleInstanceMessage pieces = readInPieces(bytes, qsizetype{data[0]} + 1);
    require(whole.state() == pieces.state() && whole.path() == pieces.path());
    require(whole.state() == State::Complete || whole.path().isEmpty());
    require(whole.path().size() < longestInstanceMessage && !whole.path().contains(u'\n'));

    // What was read is handed over again as it is.
    const QByteArray encoded = encodeInstanceMessage(whole.path());
    require(!encoded.isEmpty() || whole.state() != State::Complete);
    require(readInPieces(encoded, 1).path() == whole.path());
    return 0;
}
