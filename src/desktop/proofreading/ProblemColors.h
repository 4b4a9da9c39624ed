#pragma once

#include "desktop/proofreading/ProseCheck.h"
#include "desktop/theme/Theme.h"

namespace tw::desktop::proofreading {

/** The colour that a kind of problem is marked with, in the text and in lists. */
[[nodiscard]] inline QColor problemColor(const theme::Theme& theme, ProblemKind kind)
{
    using theme::Role;
    switch (kind) {
    case ProblemKind::Spelling:
        return theme.color(Role::Error);
    case ProblemKind::RepeatedWord:
        return theme.color(Role::Warning);
    case ProblemKind::LongSentence:
        return theme.color(Role::QuietInk);
    case ProblemKind::PassiveVoice:
        return theme.color(Role::Thread6);
    case ProblemKind::FillerWord:
        return theme.color(Role::Thread3);
    case ProblemKind::Wordiness:
        return theme.color(Role::Thread4);
    case ProblemKind::Adverb:
        return theme.color(Role::Thread7);
    case ProblemKind::Cliche:
        break;
    }
    return theme.color(Role::Thread8);
}

} // namespace tw::desktop::proofreading
