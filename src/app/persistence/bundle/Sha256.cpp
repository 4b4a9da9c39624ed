#include "app/persistence/bundle/Sha256.h"

#include <QCryptographicHash>

#if defined(__x86_64__) && defined(__GNUC__)
#define TW_SHA_INSTRUCTIONS

#include <QtEndian>

#include <array>

#include <cpuid.h>
#include <immintrin.h>
#endif

namespace tw::app::persistence {

#ifdef TW_SHA_INSTRUCTIONS

namespace {

constexpr qsizetype blockSize = 64;
/** At the end of the last block stands the length of the message in bits. */
constexpr qsizetype lengthSize = 8;

using State = std::array<quint32, 8>;

constexpr State firstState{0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                           0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};

alignas(16) constexpr std::array<quint32, 64> roundConstants{
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

bool hasInstructions()
{
    unsigned int eax = 0;
    unsigned int ebx = 0;
    unsigned int ecx = 0;
    unsigned int edx = 0;
    if (!__get_cpuid(1, &eax, &ebx, &ecx, &edx) || (ecx & bit_SSSE3) == 0 || (ecx & bit_SSE4_1) == 0)
        return false;
    return __get_cpuid_count(7, 0, &eax, &ebx, &ecx, &edx) && (ebx & bit_SHA) != 0;
}

/** The letters in the names are those of the standard's working variables, the highest lane first. */
__attribute__((target("sha,sse4.1,ssse3"))) void addBlocks(State& state, const char* data, qsizetype blocks)
{
    const __m128i bigEndian = _mm_set_epi64x(0x0c0d0e0f08090a0b, 0x0405060700010203);
    auto* const words = reinterpret_cast<__m128i*>(state.data());
    const __m128i cdab = _mm_shuffle_epi32(_mm_loadu_si128(words), 0xB1);
    const __m128i efgh = _mm_shuffle_epi32(_mm_loadu_si128(words + 1), 0x1B);
    __m128i abef = _mm_alignr_epi8(cdab, efgh, 8);
    __m128i cdgh = _mm_blend_epi16(efgh, cdab, 0xF0);
    for (; blocks > 0; --blocks, data += blockSize) {
        const __m128i abefBefore = abef;
        const __m128i cdghBefore = cdgh;
        __m128i schedule[4]; // the last sixteen words
        for (int group = 0; group < 16; ++group) {
            __m128i& now = schedule[group % 4];
            if (group < 4) {
                const auto* const source = reinterpret_cast<const __m128i*>(data) + group;
                now = _mm_shuffle_epi8(_mm_loadu_si128(source), bigEndian);
            } else {
                const __m128i last = schedule[(group + 3) % 4];
                const __m128i sevenBack = _mm_alignr_epi8(last, schedule[(group + 2) % 4], 4);
                const __m128i begun = _mm_sha256msg1_epu32(now, schedule[(group + 1) % 4]);
                now = _mm_sha256msg2_epu32(_mm_add_epi32(begun, sevenBack), last);
            }
            const auto* const constants = reinterpret_cast<const __m128i*>(roundConstants.data()) + group;
            const __m128i sum = _mm_add_epi32(now, _mm_load_si128(constants));
            cdgh = _mm_sha256rnds2_epu32(cdgh, abef, sum);
            abef = _mm_sha256rnds2_epu32(abef, cdgh, _mm_shuffle_epi32(sum, 0x0E));
        }
        abef = _mm_add_epi32(abef, abefBefore);
        cdgh = _mm_add_epi32(cdgh, cdghBefore);
    }
    const __m128i feba = _mm_shuffle_epi32(abef, 0x1B);
    const __m128i dchg = _mm_shuffle_epi32(cdgh, 0xB1);
    _mm_storeu_si128(words, _mm_blend_epi16(feba, dchg, 0xF0));
    _mm_storeu_si128(words + 1, _mm_alignr_epi8(dchg, feba, 8));
}

QByteArray sha256ByInstructions(const QByteArray& bytes)
{
    State state = firstState;
    const qsizetype wholeBlocks = bytes.size() / blockSize;
    addBlocks(state, bytes.constData(), wholeBlocks);

    QByteArray end = bytes.sliced(wholeBlocks * blockSize);
    end.append(char(0x80));
    const bool hasRoom = end.size() + lengthSize <= blockSize;
    end.append((hasRoom ? 1 : 2) * blockSize - lengthSize - end.size(), '\0');
    const quint64 bits = qToBigEndian(quint64(bytes.size()) * 8);
    end.append(reinterpret_cast<const char*>(&bits), lengthSize);
    addBlocks(state, end.constData(), end.size() / blockSize);

    for (quint32& word : state)
        word = qToBigEndian(word);
    return QByteArray(reinterpret_cast<const char*>(state.data()), sizeof state);
}

} // namespace

#endif

QByteArray sha256(const QByteArray& bytes)
{
#ifdef TW_SHA_INSTRUCTIONS
    static const bool isByInstructions = hasInstructions();
    if (isByInstructions)
        return sha256ByInstructions(bytes);
#endif
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace tw::app::persistence
