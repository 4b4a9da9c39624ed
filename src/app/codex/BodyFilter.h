#pragma once

#include "core/document/Document.h"

#include <QStringMatcher>

namespace tw::app::codex {

/**
 * Tells by its source whether a body can hold a text in its prose: whether its longest word stands there,
 * marks around and between words left aside. So most bodies need not be read as prose. A word that has marks
 * inside itself is missed.
 */
class BodyFilter
{
public:
    BodyFilter(const QString& text, Qt::CaseSensitivity sensitivity);

    [[nodiscard]] bool mayHoldText(const core::document::DocumentBody& body) const;

private:
    QStringMatcher m_word;
    bool m_isAsciiWord;
};

} // namespace tw::app::codex
