// Bodies of documents for tests: random ones that use every construct, and odd ones.
#pragma once

#include "core/document/markup/Inline.h"

#include <QStringList>

#include <random>

namespace tw::test {

/** Makes random Markdown. Seeded, so that a failure repeats. */
class MarkdownBodies
{
public:
    explicit MarkdownBodies(quint32 seed)
        : m_random(seed)
    {}

    /** A body of up to `most` blocks of every kind. */
    [[nodiscard]] QString body(int most = 12);
    /** Inline Markdown of one block, as people write it. */
    [[nodiscard]] QString inlineText();
    /** Runs in random styles, whose texts are full of marks. */
    [[nodiscard]] std::vector<core::document::markup::Run> runs(int most = 8);
    /** Characters that mean something, in no order: hostile rather than probable. */
    [[nodiscard]] QString noise(int most = 40);

    [[nodiscard]] int number(int least, int most);

private:
    [[nodiscard]] bool chance(int outOf = 2) { return number(1, outOf) == 1; }
    [[nodiscard]] QString oneOf(const QStringList& choices);
    [[nodiscard]] QString words();
    [[nodiscard]] QString block();
    [[nodiscard]] QString blockGroup();
    [[nodiscard]] core::document::markup::RunStyle style();

    std::mt19937 m_random;
};

/** Unclosed, nested, half-written, right-to-left, far too long, ... */
[[nodiscard]] QStringList oddMarkdownBodies();

} // namespace tw::test
