#include "desktop/manuscript/TypingSettings.h"

#include <QLocale>
#include <QSettings>

namespace tw::desktop::manuscript {

app::typing::TypingRules typingRulesFrom(const QSettings& settings)
{
    app::typing::TypingRules rules;
    if (!settings.value(typingkeys::autoCorrect, true).toBool()) {
        rules.joinsDashes = false;
        rules.joinsEllipsis = false;
        return rules;
    }
    const QString language = settings.value(typingkeys::quotes, QLocale().name()).toString();
    if (language != typingkeys::quotesOff)
        rules.quotes = &app::typing::quotationMarksOf(language);
    rules.joinsDashes = settings.value(typingkeys::dashes, true).toBool();
    rules.joinsEllipsis = settings.value(typingkeys::ellipsis, true).toBool();
    return rules;
}

} // namespace tw::desktop::manuscript
